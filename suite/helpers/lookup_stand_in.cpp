#include "suite/helpers/lookup_stand_in.h"

#include <algorithm>
#include <utility>

#include "base/vb/number.h"
#include "base/vb/text.h"

namespace suite {

using late::Arguments;
using late::Value;

namespace {

/// A list of texts, given as an array or as one text with commas.
std::vector<std::string> Texts(const Value& value) {
  std::vector<std::string> texts;
  if (value.IsText()) {
    for (const std::string& part : vb::Split(value.ToText(), ",")) texts.emplace_back(vb::Trim(part));
    return texts;
  }
  for (const Value& item : value.ToArray()->items) texts.push_back(item.TextOrEmpty());
  return texts;
}

/// A property kept as it is put.
template <class T, class Convert>
late::Member<LookupStandIn> Property(std::string_view name, T LookupStandIn::*member, Convert convert) {
  return {name, [member](LookupStandIn& self, Arguments&) { return Value(self.*member); },
          [member, convert](LookupStandIn& self, Arguments& arguments) { self.*member = convert(arguments[0]); }};
}

/// A method of one argument that is kept.
template <class Keep>
late::Member<LookupStandIn> Setter(std::string_view name, Keep keep) {
  return {name,
          [keep](LookupStandIn& self, Arguments& arguments) {
            keep(self, arguments[0]);
            return Value();
          },
          nullptr, 1, 1};
}

}  // namespace

const late::MemberTable<LookupStandIn>& LookupStandIn::Members() {
  const auto text = [](const Value& value) { return value.TextOrEmpty(); };
  const auto number = [](const Value& value) { return value.ToInt32(); };
  const auto flag = [](const Value& value) { return value.TrueOrFalse(); };
  static const late::MemberTable<LookupStandIn> table{
      {"adocon", [](LookupStandIn& self, Arguments&) { return Value(self.connection_.Object()); },
       [](LookupStandIn& self, Arguments& arguments) {
         self.connection_ = ado::Connection(arguments[0].ToObject());
         self.surroundings_->lastConnection = self.connection_.Object();
       }},
      Property("strQuery", &LookupStandIn::strQuery_, text),
      Property("strMsgboxTitle", &LookupStandIn::strMsgboxTitle_, text),
      Property("lngUserID", &LookupStandIn::lngUserID_, number),
      Property("InterfaceId", &LookupStandIn::interfaceId_, number),
      Property("DataIdentifier", &LookupStandIn::dataIdentifier_, text),
      Property("ForcedRefresh", &LookupStandIn::forcedRefresh_, flag),
      Property("PreserveData", &LookupStandIn::preserveData_, flag),
      Setter("setFetchType", [](LookupStandIn& self, const Value& value) { self.fetchType_ = value.TextOrEmpty(); }),
      Setter("setLocationType", [](LookupStandIn& self, const Value& value) { self.locationType_ = value.TextOrEmpty(); }),
      Setter("setShopId", [](LookupStandIn& self, const Value& value) { self.shopId_ = value.ToInt32(); }),
      {"setRecordSet",
       [](LookupStandIn& self, Arguments& arguments) {
         self.setRecordSet(arguments);
         return Value();
       },
       nullptr, 1, 1},
      Setter("setFieldNames",
             [](LookupStandIn& self, const Value& value) {
               std::vector<std::string> names = Texts(value);
               if (names != self.fieldNames_) self.heldIdentifier_.reset();  // rows are kept as these fields
               self.fieldNames_ = std::move(names);
             }),
      Setter("setFieldCaptions", [](LookupStandIn& self, const Value& value) { self.fieldCaptions_ = Texts(value); }),
      Setter("setFieldWidths",
             [](LookupStandIn& self, const Value& value) {
               self.fieldWidths_.clear();
               for (const std::string& width : Texts(value)) self.fieldWidths_.push_back(vb::CLng(vb::Val(width)));
             }),
      Setter("setDefaultFetchField", [](LookupStandIn& self, const Value& value) { self.defaultField_ = value.ToInt32(); }),
      Setter("setInterfaceCaption",
             [](LookupStandIn& self, const Value& value) { self.interfaceCaption_ = value.TextOrEmpty(); }),
      {"Show",
       [](LookupStandIn& self, Arguments&) {
         self.Show();
         return Value();
       },
       nullptr},
      {"getCancelledStatus", [](LookupStandIn& self, Arguments&) { return Value(self.cancelled_); }, nullptr},
  };
  return table;
}

void LookupStandIn::setRecordSet(Arguments& arguments) {
  const Value& given = arguments[0];
  const late::ObjectPtr* object = given.If<late::ObjectPtr>();
  if (object == nullptr || *object == nullptr) {
    recordset_ = ado::Recordset::Create(surroundings_->factory);
    arguments.Write(0, recordset_.Object());
    return;
  }
  if (recordset_.Object() != *object) {
    recordset_ = ado::Recordset(*object);
    heldIdentifier_.reset();
  }
}

bool LookupStandIn::HasRows() {
  if (forcedRefresh_ || !preserveData_ || !recordset_.IsOpen()) return false;
  if (!heldIdentifier_) TakeHandedRows();
  return heldIdentifier_ == dataIdentifier_ && rows_.Count() > 0;
}

void LookupStandIn::TakeHandedRows() {
  try {
    const std::string source = recordset_.Object()->Get("Source").ToText();
    if (vb::Trim(source) != vb::Trim(strQuery_) || (recordset_.Bof() && recordset_.Eof())) return;
    recordset_.MoveFirst();
    rows_.Read(recordset_, FieldNames());
    heldIdentifier_ = dataIdentifier_;
  } catch (const vb::RunTimeError&) {
    // Rows that cannot be read again are read from the database.
  }
}

void LookupStandIn::LoadRows() {
  heldIdentifier_.reset();
  recordset_.CloseIfOpen();
  recordset_.SetCursorLocation(ado::kUseClient);
  recordset_.Open(strQuery_, connection_, ado::kStatic, ado::kReadOnly);
  rows_.Read(recordset_, FieldNames());
  heldIdentifier_ = dataIdentifier_;
}

std::vector<std::string> LookupStandIn::FieldNames() {
  if (!fieldNames_.empty()) return fieldNames_;
  std::vector<std::string> names;
  const int count = recordset_.FieldCount();
  names.reserve(static_cast<std::size_t>(count));
  for (int field = 0; field < count; ++field) names.push_back(recordset_.FieldName(field));
  return names;
}

std::vector<LookupColumn> LookupStandIn::Columns() {
  const std::vector<std::string> names = FieldNames();
  std::vector<LookupColumn> columns;
  for (std::size_t field = 0; field < names.size(); ++field) {
    columns.push_back({field < fieldCaptions_.size() ? fieldCaptions_[field] : names[field],
                       field < fieldWidths_.size() ? fieldWidths_[field] : 1440});
  }
  return columns;
}

void LookupStandIn::Show() {
  cancelled_ = true;
  if (!recordset_) recordset_ = ado::Recordset::Create(surroundings_->factory);
  if (!HasRows()) LoadRows();
  // What the user typed and sorted last time is not remembered: every showing starts with all rows as they came.
  if (!window_) window_ = std::make_shared<frmLookup>(surroundings_->desktop);
  const std::optional<std::size_t> taken =
      window_->Pick(rows_, Columns(), static_cast<std::size_t>(std::max(defaultField_, 0)), interfaceCaption_, strMsgboxTitle_);
  if (!taken) return;
  recordset_.MoveFirst();
  recordset_.Object()->Call("Move", {static_cast<std::int32_t>(*taken)});
  cancelled_ = false;
}

}  // namespace suite
