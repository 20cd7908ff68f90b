' A late-bound client: every property written and read back, with the conversions a script relies on.
Option Explicit
Dim failures : failures = 0

Sub Expect(what, got, wanted)
  If got = wanted Then Exit Sub
  failures = failures + 1
  WScript.Echo what & ": got " & CStr(got) & ", expected " & CStr(wanted)
End Sub

Dim request : Set request = CreateObject("tq8v4461.clsGoodsRequest")
Expect "caption at first", request.strMsgboxCaption, ""
Expect "company at first", request.intCompanyID, 0
request.strMsgboxCaption = "Goods Request"
request.intCompanyID = 70000
request.intUserID = "12"
request.intShopID = 2.5
request.dtProcessDate = #3/15/2024#
Expect "caption", request.strMsgboxCaption, "Goods Request"
Expect "company", request.intCompanyID, 70000
Expect "user from text", request.intUserID, 12
Expect "shop rounds half to even", request.intShopID, 2
Expect "date", CDbl(request.dtProcessDate), 45366
Expect "member names fold", request.INTSHOPID, 2

' A connection never set is made, unopened; one that is set comes back as itself, with Set and without.
Expect "unopened connection", request.adocon Is Nothing, False
Dim database : Set database = CreateObject("ShopSuite.Database")
Dim connection : Set connection = database.Open("")
Set request.adocon = connection
Expect "same connection", request.adocon Is connection, True
Expect "its state", request.adocon.State, 1

On Error Resume Next
request.intShopID = "no number"
Expect "no number is refused", Err.Number, 13
Err.Clear
request.intNothing = 1
Expect "unknown member", Err.Number, 438
Err.Clear
request.Show 1
Expect "too many arguments", Err.Number, 450
Err.Clear
connection.Execute "select nothing from nowhere"
Expect "an engine error has a number", Err.Number <> 0, True
Expect "and says what it is about", InStr(1, Err.Description, "nowhere", 1) > 0, True
Err.Clear
On Error Goto 0

' Rows of the embedded database through the bridge.
Dim rows : Set rows = connection.Execute("select ShopID, shopname from aShops order by ShopID")
Expect "field by name", rows.Fields.Item("shopname").Value, "Harbour Street"
Dim block : block = rows.GetRows()
Expect "last field of the block", UBound(block, 1), 1
Expect "last record of the block", UBound(block, 2), 2
Expect "a cell", block(1, 2), "Mill Lane Bakery"

' Each helper component answers under its name, whatever the letter case.
Dim name, helper
For Each name In Array("ShopCommon.clscommondb", "ShopCommon.clsCommonGen", "Lookup.clsFetch", "Theme.clsFormcolor", _
                       "Audit.clsUserAuditing", "GridPrefs.clsMasterGridSetting", "ErrLog.ErrorDetails")
  Set helper = CreateObject(name)
  Expect name, helper Is Nothing, False
Next
Set helper = CreateObject("ShopCommon.clsCommonDB")
Set helper.adocon = connection
helper.strTableName = "aShops"
Expect "a helper's look-up", helper.fnReturnField("shopname", "ShopID=2"), "Hill Square"
Expect "no row is null", IsNull(helper.fnReturnField("shopname", "ShopID=99")), True

If failures > 0 Then WScript.Quit 1
WScript.Echo "all as expected"
