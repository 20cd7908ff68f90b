form: frmMaster "Goods Request to HQ"
> # A day on which the server fails: nothing typed is lost, nothing is stored by half, and a failed save never looks like a finished one.
> click cmdnew
message: "Do you want to add stock out items?" title="Shop" icon=information buttons=yesno default=1
> answer yes
form: frmRequest "Goods Request"
> set txtRemarks Before the storm
> 
> # The insert of the third line fails. The save is rolled back and the editor stays as it was.
> trace on
> fail 15 The transaction log is full.
> click cmdOK
pointer: hourglass
sql: "begin"
sql: "select GRHrequestID from mosGoodsRequestHeader where grhrequestno='' and grhshopid=1"
call: ShopCommon.clsCommonDB.strTableName = "mosGoodsRequestHeader where grhshopid = 1"
call: ShopCommon.clsCommonDB.fnGetNextMaxNo("grhrequestid")
sql: "select max(grhrequestid) from mosGoodsRequestHeader where grhshopid = 1"
sql: "SELECT Prefix FROM aPrefix WHERE InterfaceID = 1503AND FinancialId = (Select FinancialId from aFinancialYear where CurFinancialYear = 1) and shopid=1"
sql: "Select isnull(max(convert(int,right(GRHrequestNo,len(GRHrequestNo)-5))),0) from mosGoodsRequestHeader where GRHshopid = 1 and len(GRHrequestNo)>len('GR24/') and  isnumeric(isnull(right(GRHrequestNo,len(GRHrequestNo)-5),0)) =1 and substring(GRHrequestNo,1,len('GR24/'))='GR24/'"
call: ShopCommon.clsCommonDB.strTableName = "aUsers"
call: ShopCommon.clsCommonDB.fnReturnField("UserName", "Userid = 1")
sql: "select UserName from aUsers where Userid = 1"
sql: "select * from mosGoodsRequestHeader"
sql: "select CURRENT_TIMESTAMP"
sql: "insert mosGoodsRequestHeader GRHrequestID=29 GRHrequestno=GR24/21 GRHrequestdate=2024/03/15 GRHshopID=1 GRHremarks=Before the storm GRHrecaddUser=Nora Halvard GRHTransFinished=0 GRHNoofDetails=27 GRHrequestTime=2024-03-15 09:30:00 GRHhqrequestgenerated=0 GRHrequesttype=G"
call: Audit.clsUserAuditing.SaveUserAuditingInfo("29", "GR24/21", true, "N", frmRequest)
sql: "select object_id('smpUserAudit')"
sql: "create table smpUserAudit (companyid int,shopid int,userid int,interfaceid int,loggedtime datetime,savedtime datetime,recordid int,recordno varchar(50),action varchar(10),changes varchar(4000))"
sql: "insert into smpUserAudit (companyid,shopid,userid,interfaceid,loggedtime,savedtime,recordid,recordno,action,changes) values (1,1,1,1503,'20240315 09:30:00',getdate(),29,'GR24/21','N','txtRequestNo:  -> GR24/21\ntxtRemarks:  -> Before the storm\n')"
call: ShopCommon.clsCommonDB.strTableName = "mosGoodsRequestDetail"
sql: "select * from mosGoodsRequestDetail where GRDshopID=1"
sql: "insert mosGoodsRequestDetail GRDDetailid=1 GRDshopID=1 GRDrequestID=29 GRDitemID=3 GRDreqcomments= GRDgoodQty=25 GRDexpectremarks=Before the storm"
sql: "insert mosGoodsRequestDetail GRDDetailid=2 GRDshopID=1 GRDrequestID=29 GRDitemID=6 GRDreqcomments= GRDgoodQty=25 GRDexpectremarks=Before the storm"
sql: "insert mosGoodsRequestDetail GRDDetailid=3 GRDshopID=1 GRDrequestID=29 GRDitemID=8 GRDreqcomments= GRDgoodQty=25 GRDexpectremarks=Before the storm"
sql: "rollback"
pointer: default
call: ShopCommon.clsCommonDB.adocon = <object>
call: ShopCommon.clsCommonDB.strTableName = "LOUSERS where userid=1 and shopid = 1"
call: ShopCommon.clsCommonDB.fnReturnField("username")
sql: "select username from LOUSERS where userid=1 and shopid = 1"
call: ErrLog.ErrorDetails.ErrorTrack("frmRequest ", "Nora Halvard", "cmdOK_Click", -2147217900, "Embedded Database Engine", "The transaction log is full.", "N", true)
log: "frmRequest " "Nora Halvard" "cmdOK_Click" -2147217900 "Embedded Database Engine" "The transaction log is full." "N"
message: "The transaction log is full.\n(frmRequest cmdOK_Click, -2147217900)" title="Error" icon=exclamation buttons=ok default=1
> get form
value: "frmRequest"
> answer ok
> trace off
> get form
value: "frmRequest"
> get lvwrequest.Count
value: 27
> get txtRemarks.Text
value: "Before the storm"
> get cmdOK.Enabled
value: true
> sql select count(*) from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID>28
row: 0
> sql select count(*) from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID>28
row: 0
> 
> # Even the commit may fail.
> fail 69 Connection lost.
> click cmdOK
log: "frmRequest " "Nora Halvard" "cmdOK_Click" -2147217900 "Embedded Database Engine" "Connection lost." "N"
message: "Connection lost.\n(frmRequest cmdOK_Click, -2147217900)" title="Error" icon=exclamation buttons=ok default=1
> answer ok
> get form
value: "frmRequest"
> sql select count(*) from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID>28
row: 0
> 
> # Another workstation wins a deadlock: the server has undone everything itself, and there is nothing left to roll back.
> fail 40 rolled back by the server
> click cmdOK
log: "frmRequest " "Nora Halvard" "cmdOK_Click" -2147467259 "Embedded Database Engine" "Another workstation was using the same data, and the request was not saved. What you typed is still here: press OK again.\r\n\r\nrolled back by the server" "N"
message: "Another workstation was using the same data, and the request was not saved. What you typed is still here: press OK again.\r\n\r\nrolled back by the server\n(frmRequest cmdOK_Click, -2147467259)" title="Error" icon=exclamation buttons=ok default=1
> answer ok
> get form
value: "frmRequest"
> get lvwrequest.Count
value: 27
> sql select count(*) from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID>28
row: 0
> sql select count(*) from aShopItemDetail where RequestRaised=1 and ShopID=1
row: 60
> 
> # The next attempt is the one that counts: the number was not used up.
> click cmdOK
closed: frmRequest
> get form
value: "frmMaster"
> sql select GRHrequestID, GRHrequestno, GRHNoofDetails from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID>28
row: 29	GR24/21	27
> sql select count(*) from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=29
row: 27
> 
> # A cancellation that fails leaves the request alive.
> click CmdDelete
message: "Are you sure you want to Delete GR24/21 ?" title="Shop" icon=critical buttons=yesno default=2
> answer yes
form: frmcancelreason "Reason for deletion"
> set txtcanreason Storm
> fail 1
> click cmdok
closed: frmcancelreason
log: "frmMaster " "Nora Halvard" "CmdDelete_Click" -2147217900 "Embedded Database Engine" "Server error: the statement has been terminated." "N"
message: "Server error: the statement has been terminated.\n(frmMaster CmdDelete_Click, -2147217900)" title="Error" icon=exclamation buttons=ok default=1
> answer ok
> get form
value: "frmMaster"
> sql select GRHcancel from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=29
row: 0
> 
> # Every error was written down.
> cat errors.log
text: 2024-03-15 09:30:00	Nora Halvard	frmRequest	cmdOK_Click	-2147217900	Embedded Database Engine	The transaction log is full.	N
text: 2024-03-15 09:30:00	Nora Halvard	frmRequest	cmdOK_Click	-2147217900	Embedded Database Engine	Connection lost.	N
text: 2024-03-15 09:30:00	Nora Halvard	frmRequest	cmdOK_Click	-2147467259	Embedded Database Engine	Another workstation was using the same data, and the request was not saved. What you typed is still here: press OK again.    rolled back by the server	N
text: 2024-03-15 09:30:00	Nora Halvard	frmMaster	CmdDelete_Click	-2147217900	Embedded Database Engine	Server error: the statement has been terminated.	N
> quit
closed: frmMaster
exit status 0
