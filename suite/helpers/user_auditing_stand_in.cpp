#include "suite/helpers/user_auditing_stand_in.h"

#include <cstdint>

#include "base/vb/text.h"
#include "suite/helpers/own_tables.h"

namespace suite {

using late::Arguments;
using late::Value;

namespace {

constexpr long kChangesWidth = 4000;
// Without hyphens, which a log-in with another order of dates reads otherwise.
constexpr std::string_view kStamp = "yyyymmdd hh:nn:ss";
constexpr OwnTable kTable = {"smpUserAudit",
                             "companyid int,shopid int,userid int,interfaceid int,loggedtime datetime,savedtime datetime,"
                             "recordid int,recordno varchar(50),action varchar(10),changes varchar(4000)"};

/// What a control shows, as text; false for kinds that hold no entry of the user.
bool ShownValue(late::Object& control, std::string& shown) {
  const std::string kind = control.TypeName();
  if (kind == "TextBox" || kind == "ComboBox") {
    shown = control.Get("Text").TextOrEmpty();
  } else if (kind == "CheckBox" || kind == "OptionButton") {
    shown = control.Get("Value").TextOrEmpty();
  } else {
    return false;
  }
  return true;
}

template <class Visit>
void ForEachEntry(late::Object& form, Visit visit) {
  const late::ObjectPtr controls = form.Get("Controls").ToObject();
  const std::int32_t count = controls->Get("Count").ToInt32();
  for (std::int32_t index = 0; index < count; ++index) {
    const late::ObjectPtr control = controls->Get("Item", {index}).ToObject();
    std::string shown;
    if (ShownValue(*control, shown)) visit(*control, shown);
  }
}

std::string Quoted(std::string_view text) {
  return "'" + vb::DoubleApostrophes(text) + "'";
}

}  // namespace

const late::MemberTable<UserAuditingStandIn>& UserAuditingStandIn::Members() {
  static const late::MemberTable<UserAuditingStandIn> table{
      {"OpenObject",
       [](UserAuditingStandIn& self, Arguments& arguments) {
         self.Open(arguments);
         return Value();
       },
       nullptr, 6, 6},
      {"LoggedTime", [](UserAuditingStandIn& self, Arguments&) { return Value(self.loggedTime_); },
       [](UserAuditingStandIn& self, Arguments& arguments) { self.loggedTime_ = arguments[0].ToDate(); }},
      {"SaveInToTag",
       [](UserAuditingStandIn&, Arguments& arguments) {
         SaveInToTag(*arguments[0].ToObject());
         return Value();
       },
       nullptr, 1, 1},
      {"SaveUserAuditingInfo",
       [](UserAuditingStandIn& self, Arguments& arguments) {
         self.SaveUserAuditingInfo(arguments);
         return Value();
       },
       nullptr, 4, 5},
  };
  return table;
}

void UserAuditingStandIn::Open(Arguments& arguments) {
  connection_ = ado::Connection(arguments[0].ToObject());
  surroundings_->lastConnection = connection_.Object();
  companyId_ = arguments[1].ToInt32();
  shopId_ = arguments[2].ToInt32();
  userId_ = arguments[3].ToInt32();
  interfaceId_ = arguments[4].ToInt32();
  loggedTime_ = arguments[5].ToDate();
}

void UserAuditingStandIn::SaveInToTag(late::Object& form) {
  ForEachEntry(form, [](late::Object& control, const std::string& shown) { control.Put("Tag", shown); });
}

std::string UserAuditingStandIn::ChangesSinceTag(late::Object& form) {
  std::string changes;
  ForEachEntry(form, [&](late::Object& control, const std::string& shown) {
    const std::string before = control.Get("Tag").TextOrEmpty();
    if (before != shown) changes += control.Get("Name").ToText() + ": " + before + " -> " + shown + "\n";
  });
  return vb::Left(changes, kChangesWidth);
}

void UserAuditingStandIn::SaveUserAuditingInfo(Arguments& arguments) {
  if (FindOrMake(surroundings_, connection_, kTable) == OwnTableState::Refused) return;
  const std::string changes = arguments.Has(4) ? ChangesSinceTag(*arguments[4].ToObject()) : std::string();
  connection_.ExecuteNoRecords(
      "insert into smpUserAudit (companyid,shopid,userid,interfaceid,loggedtime,savedtime,recordid,recordno,"
      "action,changes) values (" +
      std::to_string(companyId_) + "," + std::to_string(shopId_) + "," + std::to_string(userId_) + "," +
      std::to_string(interfaceId_) + "," + Quoted(vb::FormatDate(loggedTime_, kStamp)) + ",getdate()," +
      std::to_string(arguments[0].ToInt32()) + "," + Quoted(arguments[1].ToText()) + "," + Quoted(arguments[3].ToText()) + "," +
      Quoted(changes) + ")");
}

}  // namespace suite
