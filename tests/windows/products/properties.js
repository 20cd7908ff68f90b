// A client of the other script language: it sends its puts and calls in other forms.
var failures = 0;
function expect(what, got, wanted) {
  if (got === wanted) return;
  ++failures;
  WScript.Echo(what + ": got " + got + ", expected " + wanted);
}
var request = new ActiveXObject("tq8v4461.clsGoodsRequest");
request.strMsgboxCaption = "B\u00fccher \u2014 \u20ac";
expect("text beyond ASCII", request.strMsgboxCaption, "B\u00fccher \u2014 \u20ac");
request.intCompanyID = 3;
expect("company", request.intCompanyID, 3);
var database = new ActiveXObject("ShopSuite.Database");
var connection = database.Open();
request.adocon = connection;
expect("connection", request.adocon.State, 1);
try {
  request.intUserID = 99999999999;
  expect("too large a number", "no error", "error 6");
} catch (error) {
  expect("too large a number", error.number & 0xFFFF, 6);
}
if (failures === 0) WScript.Echo("all as expected");
