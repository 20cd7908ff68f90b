#include "platform/windows/products/shophost/options.h"

#include "base/vb/error.h"
#include "base/vb/number.h"

namespace windows {

const char* const kUsage =
    "shophost [--connection STRING | --database FILE] [--company ID] [--shop ID] [--user ID] [--date DD/MM/YYYY] [--unattended]\n"
    "\n"
    "--connection  the shop's database by an ADO connection string\n"
    "--database    a file of the embedded database; without either, the user's own, which is the sample shop at first\n"
    "--company, --shop, --user, --date   chosen in the window as it opens, instead of the last time's\n"
    "--unattended  opens the goods requests at once, without the window\n";

namespace {

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
    if (name == "--help" || name == "-?" || name == "/?") {
      options.help = true;
      return options;
    }
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
    if (name == "--company") options.logOn.companyId = Id(name, words[i]);
    if (name == "--shop") options.logOn.shopId = Id(name, words[i]);
    if (name == "--user") options.logOn.userId = Id(name, words[i]);
    if (name == "--date") options.logOn.processDate = DateOf(name, words[i]);
  }
  return options;
}

}  // namespace windows
