form: frmMaster "Goods Request to HQ"
> # The stock-out proposal becomes a request, is changed the same day, and cancelled in the end.
> click cmdnew
message: "Do you want to add stock out items?" title="Shop" icon=information buttons=yesno default=1
> answer yes
form: frmRequest "Goods Request"
> get form
value: "frmRequest"
> get lvwrequest.Count
value: 27
> get lvwrequest.SubItem(4,2)
value: "Stock pot 8 l"
> get lvwrequest.SubItem(4,3)
value: "0.000"
> 
> # The line without a quantity goes; the lines behind it move up.
> row lvwrequest 4
> press lvwrequest Delete
message: "Are you sure you want to delete \rStock pot 8 l" title="Shop" icon=question buttons=yesno default=2
> answer no
> get lvwrequest.Count
value: 27
> press lvwrequest Delete
message: "Are you sure you want to delete \rStock pot 8 l" title="Shop" icon=question buttons=yesno default=2
> answer yes
> get lvwrequest.Count
value: 26
> get lvwrequest.SubItem(4,0)
value: "4"
> get lvwrequest.SubItem(4,2)
value: "Dinner plate white 27 cm"
> get lvwrequest.SubItem(26,0)
value: "26"
> set txtRemarks Stock-out order, 'urgent'
> get txtRemarks.Text
value: "Stock-out order, 'urgent'"
> 
> # Nothing is stored before OK.
> sql select count(*) from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID>28
row: 0
> click cmdOK
closed: frmRequest
> get form
value: "frmMaster"
> get flexMaster.TextMatrix(17,0)
value: "29"
> get flexMaster.TextMatrix(17,1)
value: "GR24/21"
> sql select GRHrequestID, GRHrequestno, GRHrequestdate, GRHrequestTime, GRHremarks, GRHrecaddUser, GRHNoofDetails, GRHrequesttype, GRHcancel from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID>28
row: 29	GR24/21	2024-03-15 00:00:00	2024-03-15 09:30:00	Stock-out order, 'urgent'	Nora Halvard	26	G	0
> sql select count(*), min(GRDDetailid), max(GRDDetailid) from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=29
row: 26	1	26
> sql select ItemID, RequestRaised from aShopItemDetail where ShopID=1 and ItemID in (3, 9, 20) order by ItemID
row: 3	1
row: 9	0
row: 20	1
> 
> # In the afternoon: the first line gets its quantity, the second goes. The lines are stored anew, numbered from 1.
> row flexMaster 17
> press flexMaster Enter
form: frmRequest "Goods Request"
> get form
value: "frmRequest"
> get txtRequestNo.Text
value: "GR24/21"
> get optgoodreq.Enabled
value: false
> row lvwrequest 1
> dblclick lvwrequest
form: frmRequestDetail "Goods Request Details"
> get form
value: "frmRequestDetail"
> get frmRequest.lngCurrentLine
value: 1
> set txtQuantity 7.5
> press txtQuantity Enter
> click cmdOk
> close
closed: frmRequestDetail
> row lvwrequest 2
> press lvwrequest Delete
message: "Are you sure you want to delete \rSaucepan with lid 2 l" title="Shop" icon=question buttons=yesno default=2
> answer yes
> get lvwrequest.SubItem(1,3)
value: "7.500"
> click cmdOK
closed: frmRequest
> sql select GRHNoofDetails, GRHrecmoduser from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=29
row: 25	Nora Halvard
> sql select GRDDetailid, GRDitemID, GRDgoodQty from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=29 and GRDDetailid<4 order by GRDDetailid
row: 1	3	7.5
row: 2	8	25
row: 3	20	25
> sql select count(*) from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=29
row: 25
> 
> # Cancelling wants an answer and a reason; No is proposed.
> click CmdDelete
message: "Are you sure you want to Delete GR24/21 ?" title="Shop" icon=critical buttons=yesno default=2
> answer no
> click CmdDelete
message: "Are you sure you want to Delete GR24/21 ?" title="Shop" icon=critical buttons=yesno default=2
> answer yes
form: frmcancelreason "Reason for deletion"
> get form
value: "frmcancelreason"
> click cmdok
message: "Enter reason for deletion" title="Shop" icon=information buttons=ok default=1
> answer ok
> set txtcanreason Ordered by telephone
> click cmdok
closed: frmcancelreason
> get flexMaster.TextMatrix(17,4)
value: "Yes"
> get flexMaster.CellForeColor(17,3)
value: 255
> get CmdDelete.Enabled
value: true
> sql select GRHcancel, GRHcancelRemarks from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=29
row: 1	Nora Halvard:Ordered by telephone
> sql select ItemID, RequestRaised from aShopItemDetail where ShopID=1 and ItemID in (3, 9, 20) order by ItemID
row: 3	0
row: 9	0
row: 20	0
> 
> # A cancelled request can be looked at, not changed.
> click CmdEdit
message: "This record is already Deleted " title="Shop" icon=information buttons=ok default=1
> answer ok
form: frmRequest "Goods Request"
> type txtRemarks again
> get txtRemarks.Text
value: "Stock-out order, 'urgent'"
> get cmdOK.Enabled
value: false
> click cmdOK
error: cmdOK is disabled
> close
closed: frmRequest
> close
closed: frmMaster
exit status 1
