#include "src/entry/cls_goods_request.h"

#include "src/register/frm_master.h"

namespace goods {
namespace {

using late::Arguments;
using late::Value;

constexpr std::int32_t kInterfaceId = 1503;  // this component's id in the suite

/// Nothing is taken too: it brings back the state in which the host has set none.
late::ObjectPtr ObjectOrNothing(const Value& value) {
  const late::ObjectPtr* object = value.If<late::ObjectPtr>();
  return object ? *object : value.ToObject();
}

}  // namespace

const late::MemberTable<clsGoodsRequest>& clsGoodsRequest::Members() {
  using Class = clsGoodsRequest;
  static const late::MemberTable<Class> table{
      {"adocon", [](Class& self, Arguments&) { return Value(self.adocon()); },
       [](Class& self, Arguments& arguments) { self.adocon(ObjectOrNothing(arguments[0])); }},
      {"strMsgboxCaption", [](Class& self, Arguments&) { return Value(self.strMsgboxCaption); },
       [](Class& self, Arguments& arguments) { self.strMsgboxCaption = arguments[0].ToText(); }},
      {"intCompanyID", [](Class& self, Arguments&) { return Value(self.intCompanyID); },
       [](Class& self, Arguments& arguments) { self.intCompanyID = arguments[0].ToInt32(); }},
      {"intUserID", [](Class& self, Arguments&) { return Value(self.intUserID); },
       [](Class& self, Arguments& arguments) { self.intUserID = arguments[0].ToInt32(); }},
      {"intShopID", [](Class& self, Arguments&) { return Value(self.intShopID); },
       [](Class& self, Arguments& arguments) { self.intShopID = arguments[0].ToInt32(); }},
      {"dtProcessDate", [](Class& self, Arguments&) { return Value(self.dtProcessDate); },
       [](Class& self, Arguments& arguments) { self.dtProcessDate = arguments[0].ToDate(); }},
      {"Show",
       [](Class& self, Arguments&) {
         self.Show();
         return Value();
       },
       nullptr},
  };
  return table;
}

const late::ObjectPtr& clsGoodsRequest::adocon() {
  if (!connection_) connection_ = module_.Session().services.factory.Create("ADODB.Connection");
  return connection_;
}

void clsGoodsRequest::Show() {
  // A register that is open goes on with the session it was opened for.
  const Module::Showing showing(module_);
  basGoodsRequest& session = module_.Session();
  session.gAdoCon = ado::Connection(adocon());
  session.gIntCompanyID = intCompanyID;
  session.gIntUserID = intUserID;
  session.gIntShopID = intShopID;
  session.gStrMsgboxCaption = strMsgboxCaption;
  session.gLngInterfaceID = kInterfaceId;
  session.gDtProcessDate = dtProcessDate;
  session.gRsFetchItems = {};  // of the shop and the connection before
  module_.Register().Show();
}

}  // namespace goods
