form: frmMaster "Goods Request to HQ"
> # options: --report-server
> # The same request on the printer, on the screen, and as a report.
> row flexMaster 13
> get flexMaster.TextMatrix(13,1)
value: "GR24/17"
> click Cmdprev
form: frmPrint "Print"
> get optScreen.Value
value: true
> get optwindowsprint.Visible
value: true
> click optPrint
> click cmdOK
closed: frmPrint
> cat LPT1
text:                              Goods Request To Hq                              
text: Meridian Household Trading
text: 4 Customs Quay
text: Old Harbour
text: PO Box 210
text: Harbour Street
text: 12 Harbour Street Old Harbour                         Request No     : GR24/17
text: Aveiro , Portugal                                  Request Date   : 12/03/2024
text: Tel:+351 555 0112  Fax: +351 555 0113
text: Remarks      :  
text: ------------------------------------------------------------------------------
text: Sl.No Code     Item Description                       Quantity  Unit   Sell Pr
text: ------------------------------------------------------------------------------
text:     1 LE1019   Extension lead 8 sockets 5 m               3.00   PCS     32.60
text: ------------------------------------------------------------------------------
text:                                       Grand Total:       3.000
text: 
text: Received by: ____________________
text:                          Goods are checked on arrival
text:                                                 Harbour Street, goods entrance
text: 
text: Nora Halvard - 15/03/2024 09:30:00
> 
> # On the screen the same slip is a file at the root of drive C, opened in the text viewer.
> click Cmdprev
form: frmPrint "Print"
> trace on
> click cmdOK
pointer: hourglass
sql: "select u.UnitCode, h.GRHrequestNO,d.GRDItemId,GRDgoodqty, vw.itemdescription,a.itemcode, itemrate from mosGoodsRequestHeader h, mosGoodsRequestDetail d,  aItem a, vwItemDescriptionPrint vw, aUnit u  where h.GRHrequestID=d.GRDrequestID and a.ItemId=vw.ItemId and  a.ItemId=d.GRDItemId and h.GRHShopId=1 and h.GRHShopId=d.GRDShopId and h.GRHrequestID=25 and a.UnitsId = u.UnitId  order by d.grdrequestid, d.grdItemId"
sql: "SELECT PriceFixedAtHq FROM aItem WHERE ItemId = 67"
sql: "SELECT SellingPrice  FROM vwItemRetailPacking irp,  losShopItemShipmentDetail sisd WHERE irp.ItemId = sisd.ItemId AND irp.PackingTypeId = sisd.PackingTypeId AND sisd.ItemId = 67 AND sisd.ShopId = 1"
sql: "select * from ashopprintmessages where shopid = 1 and transtype = 'POSPO' order by messageid"
sql: "select Username from Lousers where userid = 1 and shopid = 1"
run: "C:\\WINDOWS\\command\\edit.com   c:\\Reqtohq.txt" style=3
pointer: default
closed: frmPrint
> trace off
> cat Reqtohq.txt
text: ------------------------------------------------------------------------------
text: Sl.No Code     Item Description                       Quantity  Unit   Sell Pr
text: ------------------------------------------------------------------------------
text:     1 LE1019   Extension lead 8 sockets 5 m               3.00   PCS     32.60
text: ------------------------------------------------------------------------------
text:                                       Grand Total:       3.000
text: 
text: Received by: ____________________
text:                          Goods are checked on arrival
text:                                                 Harbour Street, goods entrance
text: 
text: Nora Halvard - 15/03/2024 09:30:00
> 
> # The report server gets its log-on, its file and its six values.
> click Cmdprev
form: frmPrint "Print"
> click optwindowsprint
> trace on
> click cmdOK
call: ShopCommon.clsCommonDB.adocon = <object>
call: ShopCommon.clsCommonDB.strTableName = "lousers where userid=1"
call: ShopCommon.clsCommonDB.fnReturnField("username")
sql: "select username from lousers where userid=1"
call: Crystal.CRPE.Application.LogOnServer("pdsodbc.dll", "admindsnv2", "adminv2", "admin", "plumgate0417")
call: Crystal.CRPE.Application.OpenReport("shop\\reports\\reqtohq.rpt")
call: Crystal.CRPE.Application.OpenReport.ParameterFields
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item(1)
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item.SetCurrentValue("Request To HQ")
call: Crystal.CRPE.Application.OpenReport.ParameterFields
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item(2)
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item.SetCurrentValue(" ")
call: Crystal.CRPE.Application.OpenReport.ParameterFields
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item(3)
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item.SetCurrentValue(25)
call: Crystal.CRPE.Application.OpenReport.ParameterFields
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item(4)
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item.SetCurrentValue(1)
call: Crystal.CRPE.Application.OpenReport.ParameterFields
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item(5)
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item.SetCurrentValue("Nora Halvard")
call: ShopCommon.clsCommonDB.strTableName = "ashops a,adepartmentmaster b where shopid=1 and  a.DepartmentID=b.departmentid"
call: ShopCommon.clsCommonDB.fnReturnField("departmentname")
sql: "select departmentname from ashops a,adepartmentmaster b where shopid=1 and  a.DepartmentID=b.departmentid"
call: Crystal.CRPE.Application.OpenReport.ParameterFields
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item(6)
call: Crystal.CRPE.Application.OpenReport.ParameterFields.Item.SetCurrentValue("Household")
call: Crystal.CRPE.Application.OpenReport.PrintWindowOptions
call: Crystal.CRPE.Application.OpenReport.PrintWindowOptions.HasPrintButton = true
call: Crystal.CRPE.Application.OpenReport.PrintWindowOptions.HasPrintSetupButton = true
call: Crystal.CRPE.Application.OpenReport.PrintWindowOptions.HasNavigationControls = true
call: Crystal.CRPE.Application.OpenReport.PrintWindowOptions.HasZoomControl = true
call: Crystal.CRPE.Application.OpenReport.Preview("Request To HQ", 0, 0, 0, 0, 30343168)
closed: frmPrint
> trace off
> get form
value: "frmMaster"
> click Cmdprev
form: frmPrint "Print"
> press optScreen Esc
closed: frmPrint
> get form
value: "frmMaster"
> close
closed: frmMaster
exit status 0
