' Show on a closed connection: the failure is reported, the register opens empty, Show returns when it closes.
Dim database : Set database = CreateObject("ShopSuite.Database")
Dim connection : Set connection = database.Open("")
connection.Close
Dim request : Set request = CreateObject("tq8v4461.clsGoodsRequest")
Set request.adocon = connection
request.strMsgboxCaption = "Goods Request"
request.intShopID = 1
request.Show
WScript.Echo "script: returned"
