form: frmMaster "Goods Request to HQ"
> # A request that is filled from what customers are waiting for: invoices and re-exports.
> click cmdnew
message: "Do you want to add stock out items?" title="Shop" icon=information buttons=yesno default=1
> answer no
form: frmRequest "Goods Request"
> get sstabGoodsReq.TabVisible(1)
value: false
> tab sstabGoodsReq 1
error: page 1 is hidden
> check chkcutomerrequest
> tab sstabGoodsReq 1
> dump lvwCustomerReq
row: Sl No.	Request No	Invoice ID	Re-export No
row: 1	CR24/101	1001	
row: 2	CR24/102	1002	
row: 3	CR24/103	1003	
row: 4	CR24/108	1008	
row: 5	RX24/31	501	RX24/31
row: 6	RX24/34	504	RX24/34
row: 7	RX24/36	1001	RX24/36
> 
> # Checking a document adds its quantities, unchecking takes them out again.
> check lvwCustomerReq 1
> check lvwCustomerReq 2
> dump lvwrequest
row: Sl No.	Item Code	Item Name	Qty.	Item ID	Request Remarks	Unit	Part Code
row: 1	KT1001	Frying pan 20 cm	4.000	1	for the school kitchen	PCS	
row: 2	KT1002	Frying pan 24 cm	8.000	2		PCS	
row: 3	TX1009	Bed linen set single white	10.000	97	white only	SET	
> uncheck lvwCustomerReq 1
> dump lvwrequest
row: Sl No.	Item Code	Item Name	Qty.	Item ID	Request Remarks	Unit	Part Code
row: 1	KT1002	Frying pan 24 cm	2.000	2		PCS	
row: 2	TX1009	Bed linen set single white	10.000	97	white only	SET	
> check lvwCustomerReq 5
> dump lvwrequest
row: Sl No.	Item Code	Item Name	Qty.	Item ID	Request Remarks	Unit	Part Code
row: 1	KT1002	Frying pan 24 cm	2.000	2		PCS	
row: 2	TX1009	Bed linen set single white	10.000	97	white only	SET	
row: 3	SN1001	Notebook A5 ruled	50.000	124	conference folders	PCS	
row: 4	SN1006	Ballpoint pen black	100.000	129		PCS	
> click cmdOK
closed: frmRequest
> sql select GRDDetailid, GRDitemID, GRDgoodQty from mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=29 order by GRDDetailid
row: 1	2	2
row: 2	97	10
row: 3	124	50
row: 4	129	100
> sql select reqdid, reqddetailid, reqinvdshopid, reqinvdinvoiceid, reqReexportID from mosRequestInvDetail where reqcompanyid=1 and reqdid=29
row: 29	2	1	1002	\N
row: 29	5	1	\N	501
> 
> # The next request is not offered the invoice that this one holds.
> click cmdnew
message: "Do you want to add stock out items?" title="Shop" icon=information buttons=yesno default=1
> answer no
form: frmRequest "Goods Request"
> check chkcutomerrequest
> tab sstabGoodsReq 1
> dump lvwCustomerReq
row: Sl No.	Request No	Invoice ID	Re-export No
row: 1	CR24/101	1001	
row: 2	CR24/103	1003	
row: 3	CR24/108	1008	
row: 4	RX24/34	504	RX24/34
row: 5	RX24/36	1001	RX24/36
> close
closed: frmRequest
> 
> # Reopened, its own documents stand first, checked; saving it again loses no link.
> click CmdEdit
form: frmRequest "Goods Request"
> get chkcutomerrequest.Value
value: 1
> get chkcutomerrequest.Enabled
value: false
> tab sstabGoodsReq 1
> dump lvwCustomerReq
row: Sl No.	Request No	Invoice ID	Re-export No
row: 1	CR24/102	1002	
row: 2	RX24/31	501	RX24/31
row: 3	CR24/101	1001	
row: 4	CR24/103	1003	
row: 5	CR24/108	1008	
row: 6	RX24/34	504	RX24/34
row: 7	RX24/36	1001	RX24/36
> get lvwCustomerReq.Checked(1)
value: true
> get lvwCustomerReq.Checked(2)
value: true
> get lvwCustomerReq.Checked(3)
value: false
> set txtRemarks Two customers
> click cmdOK
closed: frmRequest
> sql select reqdid, reqddetailid, reqinvdshopid, reqinvdinvoiceid, reqReexportID from mosRequestInvDetail where reqcompanyid=1 and reqdid=29
row: 29	1	1	1002	\N
row: 29	2	1	\N	501
> sql select GRHremarks from mosGoodsRequestHeader where GRHshopID=1 and GRHrequestID=29
row: Two customers
> close
closed: frmMaster
exit status 1
