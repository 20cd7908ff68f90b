#include "src/itementry/item_lists.h"

#include <array>

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"
#include "src/faces/item_fetch.h"
#include "src/fetch/item_type_filter.h"

namespace goods {
namespace {

struct ListFace {
  ItemListMode list;
  std::string_view fetchMode;
  std::string_view dataIdentifier;
};

constexpr std::array<ListFace, 4> kLists{{
    {ItemListMode::StockOut, "QUERY1", "01"},
    {ItemListMode::InGodownNotInShop, "QUERY2", "02"},
    {ItemListMode::AllInShop, "QUERY3", "03"},
    {ItemListMode::NotInShop, "QUERY4", "04"},
}};

const ListFace& FaceOf(ItemListMode list) {
  for (const ListFace& face : kLists) {
    if (face.list == list) return face;
  }
  vb::Raise(vb::kInvalidCall);
}

const std::vector<FetchColumn>& FetchColumns() {
  static const std::vector<FetchColumn> columns{
      {"ItemID", "Item ID", 0}, {"ItemCode", "Item Code", 2000}, {"ItemDescription", "Item Description", 4000},
      {"Brand", "Brand", 2000}, {"ModelNo", "Model No", 2000},   {"Part_Code", "Part Code", 2000},
  };
  return columns;
}

std::string StockOutItemsQuery(std::string_view stockView, std::string_view itemTypeFilter, std::int32_t shopId) {
  std::string query = "select a.itemid ,a.itemcode, v.itemdescription,a.brand,a.modelno,isnull(a.part_code,'')part_code  from ";
  query.append(stockView).append(" ms, aitem a, vwitemdescription v, ashopitemdetail sd ");
  query.append(" Where a.active = 1 and forsales=1 and a.itemID = ms.itemID and a.itemID = v.itemID ").append(itemTypeFilter);
  query.append(" and sd.itemid=a.itemid and sd.shopid=ms.shopid and sd.shopid=").append(std::to_string(shopId));
  query.append(
      " group by sd.shopid,a.itemid ,a.itemcode, sd.itemReorderLevel,a.brand,a.modelno,v.itemdescription,a.part_code"
      " having sum(stock)< = sd.itemReorderLevel");
  return query;
}

std::string GodownItemsQuery(std::int32_t shopId) {
  return " spgodownitemnotinshop " + std::to_string(shopId) + ", '',1";
}

std::string ShopItemsQuery(std::string_view itemTypeFilter, std::int32_t shopId) {
  std::string query =
      "select a.itemid,a.itemcode,v.itemdescription ,a.brand,a.modelno,isnull(a.part_code,'')part_code "
      " from ashopitemdetail s,vwitemdescription v, aitem a where a.itemid = v.itemid ";
  query.append(itemTypeFilter).append(" and s.itemid = v.itemid and s.shopid = ").append(std::to_string(shopId));
  query.append(" and a.Active = 1 and forsales=1");
  return query;
}

std::string ItemsNotInShopQuery(std::int32_t shopId) {
  return "select i.ItemId, i.ItemCode, v.ItemDescription, i.Brand, i.ModelNo,  isnull(i.part_code,'')part_code from aItem i"
         " inner join vwitemdescription v on i.ItemId=v.ItemId"
         " left outer join aShopItemDetail si on i.ItemId=si.ItemId and si.ShopId=" +
         std::to_string(shopId) + " where si.ItemId is null and Active=1 and forsales=1";
}

/// The statement that lists the items. Refreshes the session's item-type filter for the lists that it applies to.
std::string ItemListQuery(basGoodsRequest& session, CommonDb& db, ItemListMode list) {
  switch (list) {
    case ItemListMode::StockOut:
      session.gStrItemTypeFilter = ListItemTypeFilter(db, session.gIntShopID);
      return StockOutItemsQuery(session.gStrStockView, session.gStrItemTypeFilter, session.gIntShopID);
    case ItemListMode::InGodownNotInShop:
      return GodownItemsQuery(session.gIntShopID);
    case ItemListMode::AllInShop:
      session.gStrItemTypeFilter = ListItemTypeFilter(db, session.gIntShopID);
      return ShopItemsQuery(session.gStrItemTypeFilter, session.gIntShopID);
    case ItemListMode::NotInShop:
      return ItemsNotInShopQuery(session.gIntShopID);
  }
  vb::Raise(vb::kInvalidCall);
}

/// Index of the column that the lookup searches first: the shop's preferred one, the description where there is none. The hidden
/// item id is no column to search in.
std::int32_t DefaultFetchField(CommonDb& db, std::int32_t shopId) {
  constexpr std::int32_t kDescription = 2;
  db.strTableName("lossettings");
  const std::string preferred = db.fnReturnField("defaultfetch", "ShopID=" + std::to_string(shopId)).TextOrEmpty();
  const auto& columns = FetchColumns();
  for (std::size_t index = 1; index < columns.size(); ++index) {
    if (vb::EqualNoCase(preferred, columns[index].name)) return static_cast<std::int32_t>(index);
  }
  return kDescription;
}

/// A recordset for the item list. On the client: one on the server ends with the next save.
ado::Recordset NewItemRecordset(basGoodsRequest& session) {
  ado::Recordset recordset = ado::Recordset::Create(session.services.factory);
  recordset.SetCursorLocation(ado::kUseClient);
  return recordset;
}

/// Closes the list. Where that fails, a lookup put a recordset on the server here and a save has ended it: a fresh one takes its
/// place.
void CloseItemList(basGoodsRequest& session) {
  try {
    session.gRsFetchItems.CloseIfOpen();
  } catch (const vb::RunTimeError&) {
    session.gRsFetchItems = NewItemRecordset(session);
  }
}

}  // namespace

std::string_view FetchModeOf(ItemListMode list) {
  return FaceOf(list).fetchMode;
}

ItemListMode ListOfFetchMode(std::string_view fetchMode) {
  for (const ListFace& face : kLists) {
    if (face.fetchMode == fetchMode) return face.list;
  }
  return ItemListMode::AllInShop;
}

bool ShowItemList(basGoodsRequest& session, CommonDb& db, ItemFetch& fetch, ItemListMode list) {
  const ListFace& face = FaceOf(list);
  const std::string query = ItemListQuery(session, db, list);
  const std::int32_t defaultField = DefaultFetchField(db, session.gIntShopID);

  if (!session.gRsFetchItems) session.gRsFetchItems = NewItemRecordset(session);
  const bool modeChanged = session.gStrFetchMode != face.fetchMode;
  if (modeChanged) {
    session.gStrFetchMode = face.fetchMode;
    CloseItemList(session);
  }

  // The lookup may put a recordset of its own here, when it gets it or while it shows.
  late::Value recordset(session.gRsFetchItems.Object());
  fetch.adocon(session.gAdoCon);
  fetch.strMsgboxTitle(session.gStrMsgboxCaption);
  fetch.lngUserID(session.gIntUserID);
  fetch.strQuery(query);
  fetch.setRecordSet(recordset);
  fetch.setFieldNames(FetchColumns());
  fetch.setFieldCaptions(FetchColumns());
  fetch.setFieldWidths(FetchColumns());
  fetch.setDefaultFetchField(defaultField);
  fetch.setInterfaceCaption("Item Fetch");
  fetch.setShopId(session.gIntShopID);
  fetch.setFetchType("I");
  fetch.setLocationType("S");
  fetch.PreserveData(session.gBlnPreserveItemDetails);
  fetch.InterfaceId(session.gLngInterfaceID);
  fetch.DataIdentifier(face.dataIdentifier);
  fetch.ForcedRefresh(modeChanged);
  fetch.Show();
  session.services.desktop.DoEvents();

  session.gRsFetchItems = ado::Recordset(recordset.ToObject());
  return !fetch.getCancelledStatus() && session.gRsFetchItems.IsOpen() && !session.gRsFetchItems.Eof();
}

}  // namespace goods
