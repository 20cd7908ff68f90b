form: frmMaster "Goods Request to HQ"
> # options: --company 2 --shop 3 --user 10 --init bakery_day.sql
> # A bakery (its type flag is a small "b") keeps items of type B alone; the suite calls its places by other names.
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
> get optall.Caption
value: "All I&tems in Store"
> get optStockoutitems.Caption
value: "&Stock Out Items"
> get optAvaingodnotinshop.Caption
value: "Available in Warehouse Not available in Store"
> get optItemsNotInShop.Caption
value: "Items &not in Store"
> get optItemsNotInShop.Visible
value: false
> 
> # A household code is none of the bakery's; its own is.
> set txtitemcode KT1003
> press txtitemcode Enter
message: "Scan valid barcode " title="Shop" icon=information buttons=ok default=1
> answer ok
> get txtitemcode.Text
value: "KT1003"
> press txtitemcode F3
form: frmLookup "Item Fetch"
> dump flexMaster
row: Item ID	Item Code	Item Description	Brand	Model No	Part Code
row: 278	90001	White loaf 500 g	Sunmill		
row: 279	90002	White loaf 1 kg	Sunmill		
row: 280	90003	Rye loaf 500 g	Sunmill		
row: 281	90004	Rye loaf 1 kg	Sunmill		
row: 282	90005	Spelt loaf 750 g	Sunmill		
row: 283	90006	Baguette 250 g	Sunmill		
row: 284	90007	Bread roll plain	Sunmill		
row: 285	90008	Bread roll poppy seed	Sunmill		
row: 286	90009	Bread roll pumpkin seed	Sunmill		
row: 287	90010	Croissant butter	Sunmill		
row: 288	90011	Croissant almond	Sunmill		
row: 289	90012	Cinnamon bun	Sunmill		
row: 290	90013	Pretzel salted	Sunmill		
row: 291	90014	Apple strudel portion	Sunmill		
row: 292	90015	Apple strudel whole	Sunmill		
row: 293	90016	Cheesecake portion	Sunmill		
row: 294	90017	Cheesecake whole	Sunmill		
row: 296	90019	Chocolate cake whole	Sunmill		
row: 297	90020	Butter biscuits	Sunmill		
row: 298	90021	Bread dough white	Sunmill		
> press txtsearch Enter
closed: frmLookup
> get cboItem.Text
value: "White loaf 500 g"
> set txtQuantity 1.5
> click cmdOk
> 
> # The same in the fetch dialog, which opens on this shop's preferred field.
> click optStockoutitems
> press txtitemcode Shift+F3
form: FrmFetch "Fetch Item"
> get cboFetch.Text
value: "ItemCode"
> press txtFetch Enter
> dump flexMaster
row: 	Item Code	Item Description	Brand	Model No	Part Code
row: 293	90016	Cheesecake portion	Sunmill		
row: 297	90020	Butter biscuits	Sunmill		
> close
closed: FrmFetch
> close
closed: frmRequestDetail
> dump lvwrequest
row: Sl No.	Item Code	Item Name	Qty.	Item ID	Request Remarks	Unit	Part Code
row: 1	90001	White loaf 500 g	1.500	278		PCS	
> click cmdOK
closed: frmRequest
> close
closed: frmMaster
exit status 0
