#include "tests/src/itementry/recording_lookup.h"

namespace itementry_test {
namespace {

std::string Written(const late::Value& value) {
  if (value.IsObject()) return "<" + value.ToObject()->TypeName() + ">";
  const auto* array = value.If<late::ArrayPtr>();
  if (array == nullptr) return value.TextOrEmpty();
  std::string text;
  for (const late::Value& item : (*array)->items) text += (text.empty() ? "" : ",") + item.TextOrEmpty();
  return text;
}

}  // namespace

late::Value RecordingLookup::Invoke(std::string_view member, late::Access, std::span<late::Value> arguments) {
  if (member == "getCancelledStatus") return diary_->cancelled;
  std::string line(member);
  if (!arguments.empty()) line += "=" + Written(arguments[0]);
  if (member == "setRecordSet") {
    if (!arguments[0].IsByRef()) line += " (by value)";
    if (diary_->onTake) diary_->onTake(arguments[0].Deref());
    diary_->handed = ado::Recordset(arguments[0].ToObject());
  }
  diary_->told.push_back(line);
  if (member == "Show" && diary_->onShow) diary_->onShow();
  return {};
}

std::shared_ptr<LookupDiary> InstallRecordingLookup(late::ClassRegistry& registry) {
  auto diary = std::make_shared<LookupDiary>();
  registry.Unregister("Lookup.clsFetch");
  registry.Register("Lookup.clsFetch", [diary] { return std::make_shared<RecordingLookup>(diary); });
  return diary;
}

}  // namespace itementry_test
