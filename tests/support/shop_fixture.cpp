#include "tests/support/shop_fixture.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "base/ado/connection.h"
#include "base/vb/error.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"
#include "suite/engine/values/errors.h"
#include "suite/helpers/register_helpers.h"
#include "suite/shop/shop.h"

namespace support {
namespace {

constexpr long kServerError = -2147217900;

std::string CellText(const late::Value& value) {
  if (value.IsNull()) return "NULL";
  if (const bool* flag = value.If<bool>()) return *flag ? "1" : "0";
  if (const vb::Decimal* number = value.If<vb::Decimal>()) return number->ToText();
  if (value.IsDate()) return vb::FormatDate(value.ToDate(), "yyyy-mm-dd hh:nn:ss");
  return value.TextOrEmpty();
}

}  // namespace

bool StatementLog::Sent(std::string_view statement) const {
  return std::find(lines.begin(), lines.end(), statement) != lines.end();
}

std::vector<std::string> StatementLog::Starting(std::string_view start) const {
  std::vector<std::string> found;
  for (const std::string& line : lines) {
    if (line.starts_with(start)) found.push_back(line);
  }
  return found;
}

void StatementLog::Statement(std::string_view text) {
  Count(std::string(text));
}

void StatementLog::RowChange(Change change, std::string_view table, std::span<const ColumnValue> values) {
  std::string line = change == Change::Insert ? "insert " : change == Change::Update ? "update " : "delete ";
  line += table;
  for (const auto& [column, value] : values) line += " " + column + "=" + CellText(value);
  Count(line);
}

void StatementLog::Commit() {
  Count("commit");
}

void StatementLog::SecondLogIn() {
  ADD_FAILURE() << "rows are unread while the connection runs " << lines.back();
}

void StatementLog::Count(const std::string& what) {
  lines.push_back(what);
  if (!refused_.empty() && what.starts_with(refused_)) suite::RaiseServer(native_, "Refused by the test");
  if (failIn_ == 0 || --failIn_ > 0) return;
  failed_ = true;
  if (native_ != 0) suite::RaiseServer(native_, "Failed by the test");
  throw vb::RunTimeError(kServerError, "Connection broken by the test", "Embedded engine");
}

Shop::Shop(Stock stock, bool replication)
    : database(suite::Database::Open("", {[this] { return workstation.now; }})),
      module({desktop, workstation, registry}),
      session(module.Session()),
      surroundings_(std::make_shared<suite::Surroundings>(suite::Surroundings{desktop, workstation, registry, {}})) {
  suite::LoadSchema(*database, replication);
  if (stock == Stock::Sample) suite::LoadSample(*database);
  suite::RegisterAdo(registry);
  suite::RegisterHelpers(registry, surroundings_);
  session.gAdoCon = ado::Connection(database->Connect(&log));
  session.gStrMsgboxCaption = "Shop";
  session.gIntCompanyID = session.gIntShopID = session.gIntUserID = 1;
  session.gLngInterfaceID = 1503;
  session.gDtProcessDate = suite::SampleProcessDate();
}

void Shop::LogOn() {
  session.gObjFormColor = goods::FormColor(registry);
  goods::OpenUserAuditing(session);
  goods::CommonDb db(registry, session.gAdoCon);
  db.strTableName("lousers where userid=" + std::to_string(session.gIntUserID) +
                  " and ShopID=" + std::to_string(session.gIntShopID));
  session.gStrUserName = db.fnReturnField("username").TextOrEmpty();
  db.strTableName("aPackageSettings");
  session.gBlnIntegerQuantity = db.fnReturnField("IntegerQuantity").TrueOrFalse();
  session.gStrStockView =
      db.fnReturnField("TransactionsSummary").TrueOrFalse() ? "vwInquiryShopStockSummary" : "vwInquiryShopStock";
  db.strTableName("aShops");
  const std::string thisShop = "ShopID=" + std::to_string(session.gIntShopID);
  session.gBlnRequestForNonShopItem = db.fnReturnField("RequestForNonShopItem", thisShop).TrueOrFalse();
  session.gBlnPreserveItemDetails = db.fnReturnField("PreserveItemDetails", thisShop).TrueOrFalse();
  log.Clear();
}

void Shop::Run(std::string_view script) {
  database->RunScript(script);
}

std::vector<std::string> Shop::Rows(std::string_view query) {
  ado::Connection connection(database->Connect());
  ado::Recordset rows = connection.Execute(query);
  std::vector<std::string> lines;
  ado::ForEachRow(rows, [&](const late::Array& block, std::size_t record) {
    std::string line;
    for (std::size_t field = 0; field < block.rows; ++field) {
      line += (field == 0 ? "" : "|") + CellText(block.At(field, record));
    }
    lines.push_back(line);
  });
  return lines;
}

std::string Shop::Row(std::string_view query) {
  const std::vector<std::string> rows = Rows(query);
  return rows.empty() ? std::string() : rows.front();
}

}  // namespace support
