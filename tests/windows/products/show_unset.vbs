' Show of a host that gave no connection: the component makes one of its own, which is closed; that is reported and Show returns.
Dim request : Set request = CreateObject("tq8v4461.clsGoodsRequest")
request.strMsgboxCaption = "Goods Request"
request.intShopID = 1
request.Show
WScript.Echo "script: returned"
