#include "platform/console/value_text.h"

#include "base/controls/form.h"
#include "base/vb/date.h"
#include "base/vb/number.h"
#include "platform/console/escape.h"

namespace console {
namespace {

std::string DateTimeText(vb::Date date) {
  return vb::FormatDate(date, "yyyy-mm-dd hh:nn:ss");
}

std::string ObjectText(const late::ObjectPtr& object) {
  if (!object) return "nothing";
  if (const auto* form = dynamic_cast<const controls::Form*>(object.get())) return form->Name();
  if (const auto* control = dynamic_cast<const controls::Control*>(object.get())) return control->Name();
  return "<object>";
}

/// Numbers and dates are written the same everywhere.
struct PlainText {
  std::string operator()(std::int16_t number) const { return std::to_string(number); }
  std::string operator()(std::int32_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return vb::NumberText(number); }
  std::string operator()(late::Currency amount) const { return vb::Decimal{amount.units, 4}.ToText(); }
  std::string operator()(const vb::Decimal& number) const { return number.ToText(); }
  std::string operator()(vb::Date date) const { return DateTimeText(date); }
  std::string operator()(const late::ObjectPtr& object) const { return ObjectText(object); }
  std::string operator()(const late::ArrayPtr&) const { return "<array>"; }
  std::string operator()(late::Missing) const { return "missing"; }
  std::string operator()(const late::Value* target) const { return ValueText(*target); }
};

struct AnswerText : PlainText {
  using PlainText::operator();
  std::string operator()(late::Empty) const { return "empty"; }
  std::string operator()(late::Null) const { return "null"; }
  std::string operator()(bool flag) const { return flag ? "true" : "false"; }
  std::string operator()(const std::string& text) const { return Quote(text); }
};

struct RowText : PlainText {
  using PlainText::operator();
  std::string operator()(late::Empty) const { return {}; }
  std::string operator()(late::Null) const { return "\\N"; }
  std::string operator()(bool flag) const { return flag ? "1" : "0"; }
  std::string operator()(const std::string& text) const { return Escape(text); }
};

}  // namespace

std::string ValueText(const late::Value& value) {
  return std::visit(AnswerText{}, value.Alternatives());
}

std::string CellText(const late::Value& value) {
  return std::visit(RowText{}, value.Alternatives());
}

}  // namespace console
