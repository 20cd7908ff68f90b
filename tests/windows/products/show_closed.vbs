' Show on a connection that was never opened: the failure is reported, the register opens empty, Show returns when it closes.
Dim request : Set request = CreateObject("tq8v4461.clsGoodsRequest")
request.strMsgboxCaption = "Goods Request"
request.intShopID = 1
request.Show
WScript.Echo "script: returned"
