#include "suite/shop/generator.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/ado/connection.h"
#include "suite/engine/objects/database.h"
#include "suite/shop/shop.h"

namespace suite {
namespace {

constexpr int kDaysInRange = 60;  // 16 January to the process date
constexpr int kMaxPoolItems = 5000;

using Settings = std::initializer_list<std::pair<std::string_view, int>>;

/// Puts numbers in the place of the statement's @names.
std::string WithNumbers(std::string_view statement, Settings settings) {
  std::string result(statement);
  for (const auto& [name, number] : settings)
    for (auto at = result.find(name); at != std::string::npos; at = result.find(name))
      result.replace(at, name.size(), std::to_string(number));
  return result;
}

int Highest(ado::Connection& connection, std::string_view column, std::string_view table) {
  std::string query("select isnull(max(");
  query.append(column).append("), 0) from ").append(table);
  return connection.Execute(query).Field(0).ToInt32();
}

/// Numbers 0, 1, ... below `count` to select from; the table doubles itself, so a million takes twenty statements.
void MakeNumbers(ado::Connection& connection, int count) {
  connection.Execute("create table genNumber (n int not null primary key)");
  if (count > 0) connection.Execute("insert into genNumber (n) values (0)");
  for (int have = 1; have < count; have *= 2)
    connection.Execute(WithNumbers("insert into genNumber (n) select n + @have from genNumber where n < @missing",
                                   {{"@have", have}, {"@missing", count - have}}));
}

void MakeDays(ado::Connection& connection) {
  connection.Execute("create table genDay (n int not null primary key, workday datetime not null)");
  const vb::Date last = SampleProcessDate();
  for (int n = 0; n < kDaysInRange; ++n) {
    const std::string day = vb::FormatDate(vb::Date{last.days - (kDaysInRange - 1 - n)}, "yyyymmdd");
    connection.Execute("insert into genDay (n, workday) values (" + std::to_string(n) + ", '" + day + "')");
  }
}

/// The items that request lines are made of, numbered from 0; gives their count.
int MakeItemPool(ado::Connection& connection) {
  auto items = connection.Execute(
      "select si.ItemID from aShopItemDetail si inner join aItem i on i.ItemId = si.ItemID"
      " where si.ShopID = 1 and i.active = 1 and i.forsales = 1 and i.itemtype <> 'B' order by si.ItemID desc");
  std::vector<int> ids;
  ado::ForEachRow(items, [&](const late::Array& block, std::size_t record) {
    if (ids.size() < kMaxPoolItems) ids.push_back(block.At(0, record).ToInt32());
  });
  connection.Execute("create table genItem (n int not null primary key, ItemID int not null)");
  for (std::size_t n = 0; n < ids.size(); ++n)
    connection.Execute("insert into genItem (n, ItemID) values (" + std::to_string(n) + ", " + std::to_string(ids[n]) + ")");
  return static_cast<int>(ids.size());
}

void AddItems(ado::Connection& connection, int count) {
  const int last = Highest(connection, "ItemId", "aItem");
  for (const std::string_view statement : {
           "insert into aItem (ItemId, ItemCode, brand, modelno, itemtype, active, forsales, UnitsId, PriceFixedAtHq, itemrate)"
           " select @last + 1 + n, 'MX' + cast(@last + 1 + n as varchar(10)),"
           " case n % 4 when 0 then 'Oskeda' when 1 then 'Gravenor' when 2 then 'Drevik' else 'Solvenne' end,"
           " 'M-' + cast(n % 997 as varchar(10)), 'N', 1, 1, 1, n % 2, cast(1 + n % 90 as decimal(18,3)) from genNumber where n "
           "< @count",
           "insert into smpItemDescription (ItemID, ItemDescription, code)"
           " select @last + 1 + n, case n % 5 when 0 then 'Storage box' when 1 then 'Shelf board' when 2 then 'Wall hook'"
           " when 3 then 'Picture frame' else 'Flower pot' end + ' no. ' + cast(n + 1 as varchar(10)),"
           " 'MX' + cast(@last + 1 + n as varchar(10)) from genNumber where n < @count",
           "insert into aItemPackingDetail (itemid, packingtypeid, packingbarcode, active)"
           " select @last + 1 + n, 1, cast(29000000 + @last + 1 + n as varchar(20)), 1 from genNumber where n < @count",
           "insert into smpItemRetailPacking (ItemId, PackingTypeId) select @last + 1 + n, 1 from genNumber where n < @count",
           "insert into losShopItemShipmentDetail (ItemId, PackingTypeId, ShopId, SellingPrice)"
           " select @last + 1 + n, 1, case n % 2 when 1 then null else 1 end, cast(2 + n % 120 as decimal(18,3)) from genNumber "
           "where n < @count",
           "insert into aShopItemDetail (ShopID, ItemID, ItemReorderLevel, ReorderQuantity, RequestRaised, shortcutno)"
           " select 1, @last + 1 + n, 10, 25, 0, 0 from genNumber where n < @count",
           // One item in fifty is at its reorder level or below it.
           "insert into smpShopStock (shopid, itemid, stock)"
           " select 1, @last + 1 + n, case n % 50 when 0 then n % 11 else 11 + n % 40 end from genNumber where n < @count",
           "insert into smpGodownStock (godownid, gsitemid, gsstock)"
           " select 11 + n % 2, @last + 1 + n, n % 200 from genNumber where n < @count",
       })
    connection.Execute(WithNumbers(statement, {{"@last", last}, {"@count", count}}));
}

/// The requests have a prefix of their own: with the shop's prefix a hundred thousand would carry its 16-bit counter past the
/// end. Of ten requests one is cancelled, two are finished, one has its issue note and six are open. The items' request-raised
/// flags stay.
void AddRequests(ado::Connection& connection, int count, int lines, int poolItems) {
  const int last = Highest(connection, "GRHrequestID", "mosGoodsRequestHeader where GRHshopID = 1");
  for (const std::string_view statement : {
           "insert into mosGoodsRequestHeader (GRHrequestID, GRHshopID, GRHrequestno, GRHrequestdate, GRHrequestTime, GRHremarks,"
           " GRHrecaddUser, GRHTransFinished, GRHNoofDetails, GRHhqrequestgenerated, GRHrequesttype, GRHIssuenotegenerated, "
           "GRHcancel,"
           " GRHcancelRemarks)"
           " select @last + 1 + s.n, 1, 'GX/' + cast(@last + 1 + s.n as varchar(10)), d.workday, d.workday,"
           " 'Order no. ' + cast(s.n + 1 as varchar(10)), 'Nora Halvard', case s.n % 10 when 1 then 1 when 2 then 1 else 0 end, "
           "@lines, 0,"
           " case s.n % 3 when 2 then 'P' else 'G' end, case s.n % 10 when 3 then 1 else 0 end, case s.n % 10 when 0 then 1 else "
           "0 end,"
           " case s.n % 10 when 0 then 'Nora Halvard:No longer needed' end"
           " from genNumber s inner join genDay d on d.n = s.n * @days / @count where s.n < @count",
           "insert into mosGoodsRequestDetail (GRDDetailid, GRDshopID, GRDrequestID, GRDitemID, GRDgoodQty, GRDexpectremarks)"
           " select l.n + 1, 1, @last + 1 + s.n, p.ItemID, 1 + (s.n + l.n) % 48, 'Order no. ' + cast(s.n + 1 as varchar(10))"
           " from genNumber s cross join genNumber l inner join genItem p on p.n = (s.n % @pool * 31 + l.n) % @pool"
           " where s.n < @count and l.n < @lines",
       })
    connection.Execute(WithNumbers(
        statement,
        {{"@last", last}, {"@count", count}, {"@lines", lines}, {"@pool", std::max(poolItems, 1)}, {"@days", kDaysInRange}}));
}

}  // namespace

void GenerateShop(ado::Connection& connection, const Scale& scale) {
  const int requests = std::max(scale.requests, 0);
  const int items = std::max(scale.items, 0);
  const int lines = std::max(scale.linesPerRequest, 0);
  MakeNumbers(connection, std::max({requests, items, lines}));
  MakeDays(connection);
  AddItems(connection, items);
  AddRequests(connection, requests, lines, MakeItemPool(connection));
  for (const auto* table : {"genNumber", "genDay", "genItem"}) connection.Execute(std::string("drop table ") + table);
}

void GenerateShop(Database& database, const Scale& scale) {
  ado::Connection connection(database.Connect());
  ado::Transaction transaction(connection);
  GenerateShop(connection, scale);
  transaction.Commit();
}

void GenerateShop(Database& database, int requests, int items) {
  GenerateShop(database, Scale{.requests = requests, .items = items});
}

}  // namespace suite
