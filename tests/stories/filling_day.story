form: frmMaster "Goods Request to HQ"
> # A request filled from every list that the shop has: no code is typed.
> click cmdnew
message: "Do you want to add stock out items?" title="Shop" icon=information buttons=yesno default=1
> answer no
form: frmRequest "Goods Request"
> rightclick lvwrequest
menu: mnuPopup
item: mnuAdd "&Add" enabled
item: mnuEdit "&Edit" disabled
item: mnudel "&Delete" disabled
item: mnuCancel "&Cancel Menu" enabled
> pick mnuAdd
form: frmRequestDetail "Goods Request Details"
> get optall.Value
value: true
> get cmdFetch.ToolTipText
value: "Fetch items (F3), search items (Shift+F3)"
> 
> # All items of the shop, by a part of the name. The lookup hands over the code; what is on the way and in stock is shown.
> press txtitemcode F3
form: frmLookup "Item Fetch"
> get lblcount.Caption
value: "219 of 219"
> type txtsearch kni
> get lblcount.Caption
value: "5 of 219"
> press txtsearch Down
> press txtsearch Enter
closed: frmLookup
> get form
value: "frmRequestDetail"
> get txtitemcode.Text
value: "KT1016"
> get cboItem.Text
value: "Knife set 8 pieces with block"
> get txtavailqty.Text
value: "72"
> get txtavailqty.ToolTipText
value: ""
> get focus
value: "frmRequestDetail.txtQuantity"
> dump lvwpacktype
row: ID	Packing Type	Packs
row: 1	Single	
row: 2	Inner box	
row: 3	Carton	
> set txtQuantity 2
> click cmdOk
> get frmRequest.lvwrequest.Count
value: 1
> 
> # A lookup that is left takes nothing and changes nothing.
> set txtitemcode KT1003
> press txtitemcode Enter
> get cboItem.Text
value: "Frying pan 28 cm"
> press txtitemcode F3
form: frmLookup "Item Fetch"
> close
closed: frmLookup
> get cboItem.Text
value: "Frying pan 28 cm"
> get txtitemcode.Text
value: "KT1003"
> set txtQuantity 1
> click cmdOk
> 
> # Sorted by brand, the other way round, and no such item.
> press txtitemcode F3
form: frmLookup "Item Fetch"
> choose cboColNames Brand
> get flexMaster.TextMatrix(1,3)
value: ""
> choose cboColNames Brand
> get flexMaster.TextMatrix(1,3)
value: "Zenoka"
> set txtsearch no such thing
> get lblcount.Caption
value: "0 of 219"
> click cmdOk
> get form
value: "frmLookup"
> close
closed: frmLookup
> 
> # What runs out, in stock in the godown, and what the shop has never kept.
> click optStockoutitems
> press txtitemcode F3
form: frmLookup "Item Fetch"
> get lblcount.Caption
value: "26 of 26"
> get flexMaster.TextMatrix(1,1)
value: "KT1003"
> dblclick flexMaster
closed: frmLookup
> get cboItem.Text
value: "Frying pan 28 cm"
> get txtQuantity.Text
value: "25"
> click cmdOk
message: "Frying pan 28 cm Already Exists" title="Shop" icon=information buttons=ok default=1
> answer ok
> press txtitemcode F3
form: frmLookup "Item Fetch"
> row flexMaster 2
> press flexMaster Enter
closed: frmLookup
> get cboItem.Text
value: "Saucepan with lid 2 l"
> click cmdOk
> click optAvaingodnotinshop
> press txtitemcode F3
form: frmLookup "Item Fetch"
> get lblcount.Caption
value: "12 of 12"
> close
closed: frmLookup
> click optItemsNotInShop
> press txtitemcode F3
form: frmLookup "Item Fetch"
> get lblcount.Caption
value: "66 of 66"
> get flexMaster.TextMatrix(1,2)
value: "Saucepan with lid 1.5 l"
> press txtsearch Enter
closed: frmLookup
> get cboItem.Text
value: "Saucepan with lid 1.5 l"
> set txtQuantity 6
> click cmdOk
> dump frmRequest.lvwrequest
row: Sl No.	Item Code	Item Name	Qty.	Item ID	Request Remarks	Unit	Part Code
row: 1	KT1016	Knife set 8 pieces with block	2.000	16		SET	
row: 2	KT1003	Frying pan 28 cm	1.000	3		PCS	
row: 3	KT1006	Saucepan with lid 2 l	25.000	6		PCS	
row: 4	KT1005	Saucepan with lid 1.5 l	6.000	5		PCS	
> 
> # The mode stays for the next lines; the list is read from the server once for a mode.
> trace on
> press txtitemcode F3
call: ShopCommon.clsCommonDB.strTableName = "lossettings"
call: ShopCommon.clsCommonDB.fnReturnField("defaultfetch", "ShopID=1")
sql: "select defaultfetch from lossettings where ShopID=1"
call: Lookup.clsFetch.adocon = <object>
call: Lookup.clsFetch.strMsgboxTitle = "Shop"
call: Lookup.clsFetch.lngUserID = 1
call: Lookup.clsFetch.strQuery = "select i.ItemId, i.ItemCode, v.ItemDescription, i.Brand, i.ModelNo,  isnull(i.part_code,'')part_code from aItem i inner join vwitemdescription v on i.ItemId=v.ItemId left outer join aShopItemDetail si on i.ItemId=si.ItemId and si.ShopId=1 where si.ItemId is null and Active=1 and forsales=1"
call: Lookup.clsFetch.setRecordSet(<object>)
call: Lookup.clsFetch.setFieldNames(<array>)
call: Lookup.clsFetch.setFieldCaptions(<array>)
call: Lookup.clsFetch.setFieldWidths(<array>)
call: Lookup.clsFetch.setDefaultFetchField(2)
call: Lookup.clsFetch.setInterfaceCaption("Item Fetch")
call: Lookup.clsFetch.setShopId(1)
call: Lookup.clsFetch.setFetchType("I")
call: Lookup.clsFetch.setLocationType("S")
call: Lookup.clsFetch.PreserveData = true
call: Lookup.clsFetch.InterfaceId = 1503
call: Lookup.clsFetch.DataIdentifier = "04"
call: Lookup.clsFetch.ForcedRefresh = false
call: Lookup.clsFetch.Show()
form: frmLookup "Item Fetch"
> close
closed: frmLookup
call: ShopCommon.clsCommonDB.strTableName = "apackagesettings"
call: ShopCommon.clsCommonDB.fnReturnField("alias")
sql: "select alias from apackagesettings"
call: Lookup.clsFetch.getCancelledStatus()
> trace off
> 
> # The fetch dialog: a field, a text, Enter; an apostrophe is none of the keys but may be pasted.
> click optall
> press txtitemcode Shift+F3
form: FrmFetch "Fetch Item"
> get cboFetch.Text
value: "ItemDescription"
> get txtFetch.ToolTipText
value: "Press Enter to list the items that contain this text"
> type txtFetch CHEF'S
> get txtFetch.Text
value: "CHEFS"
> set txtFetch
> paste txtFetch chef's
> press txtFetch Enter
> dump flexMaster
row: 	Item Code	Item Description	Brand	Model No	Part Code
row: 12	KT1012	Chef's knife 20 cm	Hakkomi	KN-20	
> get txtFetch.Text
value: ""
> choose cboFetch Brand
> type txtFetch tashira
> press txtFetch Enter
> get flexMaster.Rows
value: 6
> choose cboFetch Part_Code
> type txtFetch nothing has this
> press txtFetch Enter
> dump flexMaster
row: 	Item Code	Item Description	Brand	Model No	Part Code
row: 					
> click CmdOk
> get form
value: "FrmFetch"
> 
> # Listed whole, sorted by the code downwards, then searched while typing.
> press txtFetch Enter
> get flexMaster.Rows
value: 225
> click optDescend
> choose cboColNames ItemCode
> get flexMaster.TextMatrix(1,1)
value: "TY1022"
> choose cboSearch ItemDescription
> type txtsearch crè
> get flexMaster.Row
value: 47
> get flexMaster.TopRow
value: 47
> get flexMaster.TextMatrix(1,2)
value: "Alkaline batteries AA, 4 pieces"
> press flexMaster Enter
closed: FrmFetch
> get form
value: "frmRequestDetail"
> get txtitemcode.Text
value: "KT1028"
> get cboItem.Text
value: "Crème brûlée dish 12 cm"
> set txtQuantity 4
> click cmdOk
> 
> # The godown's list comes from its procedure; the apostrophe that the user pasted is doubled for the text, and again for the call.
> click optAvaingodnotinshop
> press txtitemcode Shift+F3
form: FrmFetch "Fetch Item"
> trace on
> paste txtFetch o'd
> press txtFetch Enter
pointer: hourglass
sql: "spgodownitemnotinshop 1,' and v.itemdescription like ''%o''''d%'' '"
pointer: default
> trace off
> press txtFetch Enter
> get flexMaster.Rows
value: 13
> close
closed: FrmFetch
> 
> # The server fails once: the text is still there, and the next Enter lists.
> click optall
> press txtitemcode Shift+F3
form: FrmFetch "Fetch Item"
> type txtFetch glass
> fail 1 The connection was lost
> press txtFetch Enter
log: "FrmFetch " "Nora Halvard" "GridPopulate" -2147217900 "Embedded Database Engine" "The connection was lost" "N"
message: "The connection was lost\n(FrmFetch GridPopulate, -2147217900)" title="Error" icon=exclamation buttons=ok default=1
> answer ok
> get txtFetch.Text
value: "glass"
> press txtFetch Enter
> get flexMaster.Rows
value: 3
> close
closed: FrmFetch
> close
closed: frmRequestDetail
> dump lvwrequest
row: Sl No.	Item Code	Item Name	Qty.	Item ID	Request Remarks	Unit	Part Code
row: 1	KT1016	Knife set 8 pieces with block	2.000	16		SET	
row: 2	KT1003	Frying pan 28 cm	1.000	3		PCS	
row: 3	KT1006	Saucepan with lid 2 l	25.000	6		PCS	
row: 4	KT1005	Saucepan with lid 1.5 l	6.000	5		PCS	
row: 5	KT1028	Crème brûlée dish 12 cm	4.000	28		PCS	
> click cmdOK
closed: frmRequest
> sql select GRDDetailid, GRDitemID, GRDgoodQty from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=29 order by GRDDetailid
row: 1	16	2
row: 2	3	1
row: 3	6	25
row: 4	5	6
row: 5	28	4
> close
closed: frmMaster
exit status 0
