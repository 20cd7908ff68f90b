#include "platform/windows/products/shophost/options.h"

#include "base/vb/error.h"
#include "base/vb/number.h"

namespace windows {
namespace {

constexpr const char* kUsage =
    "shophost [--connection STRING | --database FILE] [--unattended] [--company ID] [--shop ID] [--user ID] [--date DD/MM/YYYY]";

[[noreturn]] void Refuse(const std::string& text) {
  vb::Raise(vb::kInvalidCall, text + "\n\n" + kUsage, "shophost");
}

std::int32_t Id(const std::string& name, const std::string& text) {
  try {
    return vb::CLng(text);
  } catch (const vb::RunTimeError&) {
    Refuse(name + " needs a number");
  }
}

vb::Date DateOf(const std::string& name, const std::string& text) {
  if (const auto date = vb::TryParseDate(text)) return *date;
  Refuse(name + " needs a date");
}

}  // namespace

Options ReadOptions(const std::vector<std::string>& words) {
  Options options;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& name = words[i];
    if (name == "--unattended") {
      options.unattended = true;
      continue;
    }
    const bool known = name == "--connection" || name == "--database" || name == "--company" || name == "--shop" ||
                       name == "--user" || name == "--date";
    if (!known) Refuse("Unknown switch: " + name);
    if (++i == words.size()) Refuse(name + " needs a value");
    if (name == "--connection") options.connection = words[i];
    if (name == "--database") options.database = words[i];
    if (name == "--company") options.company = Id(name, words[i]);
    if (name == "--shop") options.shop = Id(name, words[i]);
    if (name == "--user") options.user = Id(name, words[i]);
    if (name == "--date") options.date = DateOf(name, words[i]);
  }
  return options;
}

}  // namespace windows
