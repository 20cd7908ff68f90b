#include "platform/console/traced_object.h"

#include <array>

#include "base/vb/text.h"
#include "platform/console/escape.h"
#include "platform/console/value_text.h"

namespace console {
namespace {

/// Callers write ProgIDs in varying case; the trace always as they are registered.
constexpr std::array<std::string_view, 8> kProgIds = {
    "ShopCommon.clsCommonDB", "ShopCommon.clsCommonGen",        "Lookup.clsFetch",     "Theme.clsFormcolor",
    "Audit.clsUserAuditing",  "GridPrefs.clsMasterGridSetting", "ErrLog.ErrorDetails", "Crystal.CRPE.Application"};

std::string JoinedArguments(std::span<const late::Value> arguments) {
  std::string text;
  for (const late::Value& argument : arguments) {
    if (!text.empty()) text += ", ";
    text += ValueText(argument);
  }
  return text;
}

std::string CallText(std::string_view path, std::string_view member, late::Access access,
                     std::span<const late::Value> arguments) {
  std::string text = std::string(path) + '.' + std::string(member);
  const bool put = access == late::Access::Put || access == late::Access::PutRef;
  const auto indexes = put && !arguments.empty() ? arguments.first(arguments.size() - 1) : arguments;
  if (access == late::Access::Call || !indexes.empty()) text += '(' + JoinedArguments(indexes) + ')';
  if (put && !arguments.empty()) text += " = " + ValueText(arguments.back());
  return text;
}

/// Form, user, routine, number, source, description, mode.
std::string LogText(std::span<const late::Value> arguments) {
  std::string text;
  for (std::size_t i = 0; i < arguments.size() && i < 7; ++i) {
    if (i > 0) text += ' ';
    text += i == 3 ? arguments[i].TextOrEmpty() : Quote(arguments[i].TextOrEmpty());
  }
  return text;
}

}  // namespace

late::Value TracedObject::Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) {
  if (output_.IsTracing()) output_.Line("call", CallText(progId_, member, access, arguments));
  if (vb::EqualNoCase(progId_, "ErrLog.ErrorDetails") && vb::EqualNoCase(member, "ErrorTrack")) {
    output_.Line("log", LogText(arguments));
  }
  return inner_->Invoke(member, access, arguments);
}

late::Value& RecordingObject::Remembered(std::string_view member) {
  for (auto& [name, value] : remembered_) {
    if (vb::EqualNoCase(name, member)) return value;
  }
  return remembered_.emplace_back(std::string(member), late::Value()).second;
}

late::Value RecordingObject::Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) {
  if (output_.IsTracing()) output_.Line("call", CallText(path_, member, access, arguments));
  late::Value& value = Remembered(member);
  if (access == late::Access::Put || access == late::Access::PutRef) {
    if (!arguments.empty()) value = arguments.back().Deref();
    return {};
  }
  if (value.IsEmpty()) value = late::Value(std::make_shared<RecordingObject>(path_ + '.' + std::string(member), output_));
  return value;
}

late::ObjectPtr TracingFactory::Create(std::string_view progId) {
  late::ObjectPtr object = inner_.Create(progId);
  for (const std::string_view known : kProgIds) {
    if (!vb::EqualNoCase(known, progId)) continue;
    if (dynamic_cast<const RecordingObject*>(object.get())) return object;
    return std::make_shared<TracedObject>(std::move(object), std::string(known), output_);
  }
  return object;
}

}  // namespace console
