#include "src/records/request_store.h"

#include <initializer_list>
#include <set>

#include "base/vb/date.h"
#include "base/vb/format.h"
#include "base/vb/number.h"
#include "base/vb/text.h"
#include "src/records/customer_documents.h"
#include "src/records/item_lookups.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

std::string HeaderQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from mosGoodsRequestHeader where grhrequestid=" + std::to_string(requestId) +
         " and grhshopid=" + std::to_string(shopId);
}

std::string UpdateTimeStatement(std::int32_t requestId, std::int32_t shopId) {
  return "Update mosGoodsRequestHeader set updatetime=getdate() where grhrequestid=" + std::to_string(requestId) +
         "  and grhshopid=" + std::to_string(shopId);
}

std::string DeleteLinesStatement(std::int32_t requestId, std::int32_t shopId) {
  return "delete mosGoodsRequestdetail where grdrequestid=" + std::to_string(requestId) +
         " and grdshopid=" + std::to_string(shopId);
}

std::string ShopLinesQuery(std::int32_t shopId) {
  return "select * from mosGoodsRequestDetail where GRDshopID=" + std::to_string(shopId);
}

std::string RequestLinesQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from mosGoodsRequestDetail where grdrequestid=" + std::to_string(requestId) +
         " and GRDshopID=" + std::to_string(shopId);
}

std::string StoredLinesQuery(std::int32_t requestId) {
  return "select * from mosGoodsRequestDetail where GRDrequestID = " + std::to_string(requestId);
}

std::string DeleteLinksStatement(std::int32_t requestId, std::int32_t companyId, std::int32_t shopId) {
  return "delete from mosRequestInvDetail where reqdid = " + std::to_string(requestId) +
         " and reqcompanyid=" + std::to_string(companyId) + " and reqinvdshopid=" + std::to_string(shopId);
}

std::string RowIdentifierQuery() {
  return "select count(*) from syscolumns where colstat=2 and id=object_id('mosgoodsrequestdetail')";
}

std::string ItemsQuery(std::string_view condition, const std::vector<RequestLine>& lines) {
  std::string query = "select ItemId from aItem where " + std::string(condition) + "ItemId in (";
  for (const RequestLine& line : lines) query += std::to_string(line.itemId) + ",";
  query.back() = ')';
  return query;
}

std::string LinesToShowQuery(std::int32_t requestId, std::int32_t shopId, std::string_view orderClause) {
  return "select itemcode,a.grditemid,cast(cast(a.grdgoodqty as decimal(18,3)) as varchar(20)) as grdgoodqty, "
         " z.ItemDescription,a.grdshopid, grdreqcomments,isnull(b.part_code,'') part_code "
         " from mosgoodsrequestdetail a,aitem b,vwitemdescription z where a.grditemid=b.itemid "
         "and b.itemid=z.itemid and GRDgoodQty >0 and a.grdrequestid=" +
         std::to_string(requestId) + " and a.grdshopid=" + std::to_string(shopId) + std::string(orderClause);
}

/// Fields of LinesToShowQuery.
enum LineField : std::size_t { kItemCode, kItemId, kQuantity, kDescription, kShopId, kComments, kPartCode };

std::string CancelledHeaderQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from  mosGoodsRequestHeader where GRHrequestID  = " + std::to_string(requestId) +
         " and grhshopid=" + std::to_string(shopId);
}

std::string CancelledLinesQuery(std::int32_t requestId, std::int32_t shopId) {
  return "select * from mosGoodsRequestDetail where GRDrequestID=" + std::to_string(requestId) +
         " and grdshopid=" + std::to_string(shopId);
}

std::string RefreshHeaderStatement(std::int32_t requestId, std::int32_t shopId) {
  return "update mosgoodsrequestheader set GRHcancel=GRHcancel where  GRHrequestID=" + std::to_string(requestId) +
         " and GRHshopID=" + std::to_string(shopId);
}

std::string RefreshLinesStatement(std::int32_t requestId, std::int32_t shopId) {
  return "update mosgoodsrequestdetail set GRDbadQty=GRDbadQty where GRDrequestID=" + std::to_string(requestId) +
         " and GRDshopID=" + std::to_string(shopId);
}

struct Column {
  const char* name;
  late::Value value;
};

void AddRow(ado::Recordset& rows, std::initializer_list<Column> columns) {
  std::vector<late::Value> names;
  std::vector<late::Value> values;
  for (const Column& column : columns) {
    names.emplace_back(column.name);
    values.push_back(column.value);
  }
  rows.AddNew(late::Array::List(std::move(names)), std::move(values));
}

StoredHeader ReadHeader(ado::Recordset& header) {
  return {.number = header.Field("grhrequestno").TextOrEmpty(),
          .issued = header.Field("grhIssuenotegenerated").TrueOrFalse(),
          .finished = header.Field("grhTransFinished").TrueOrFalse(),
          .cancelled = header.Field("grhcancel").TrueOrFalse(),
          .updateTime = header.Field("updatetime"),
          .changedBy = header.Field("grhrecmoduser").TextOrEmpty()};
}

/// A place in a list: they are numbered in 16 bits. Error 6 beyond.
std::int16_t Place(std::size_t number) {
  return vb::CInt(static_cast<double>(number));
}

}  // namespace

std::int32_t RequestStore::NextId() {
  db_.strTableName("mosGoodsRequestHeader where grhshopid = " + std::to_string(session_.gIntShopID));
  return db_.fnGetNextMaxNo("grhrequestid");
}

void RequestStore::AddHeader(const Request& request) {
  const std::string userName(vb::Trim(UserName("Userid = " + std::to_string(session_.gIntUserID))));
  ado::Recordset header = OpenForAdding("select * from mosGoodsRequestHeader", ado::kOptimistic);
  const late::Value serverTime = ExecuteForValue(session_, "select CURRENT_TIMESTAMP");
  AddRow(header, {{"grhrequestid", request.id},
                  {"grhrequestno", vb::Trim(request.number)},
                  {"grhrequestdate", vb::FormatDate(vb::ParseDate(request.date), "yyyy/mm/dd")},
                  {"grhshopid", session_.gIntShopID},
                  {"grhremarks", vb::Trim(request.remarks)},
                  {"grhrecaddUser", userName},
                  {"grhTransFinished", request.finished ? 1 : 0},
                  {"grhNoofDetails", static_cast<std::int32_t>(request.lines.size())},
                  {"GRHrequestTime", serverTime},
                  {"grhhqrequestgenerated", 0},
                  {"grhrequesttype", request.type == RequestType::ToGodown ? "G" : "P"}});
  header.Close();
}

bool RequestStore::UpdateHeader(const Request& request, const MayWrite& mayWrite) {
  const std::string userName =
      UserName("ShopID=" + std::to_string(session_.gIntShopID) + " and Userid=" + std::to_string(session_.gIntUserID));
  ado::Recordset header = OpenHeader(HeaderQuery(request.id, session_.gIntShopID));
  if (!mayWrite(ReadHeader(header))) {
    header.Close();
    return false;
  }
  header.SetField("grhremarks", vb::Trim(request.remarks));
  header.SetField("grhrecmoduser", userName);
  header.SetField("grhTransFinished", request.finished ? 1 : 0);
  header.SetField("grhNoofDetails", static_cast<std::int32_t>(request.lines.size()));
  header.Update();
  header.Close();
  session_.gAdoCon.ExecuteNoRecords(UpdateTimeStatement(request.id, session_.gIntShopID));
  return true;
}

void RequestStore::AddLines(const Request& request) {
  AddLinesTo(ShopLinesQuery(session_.gIntShopID), request);
}

void RequestStore::ReplaceLines(const Request& request) {
  session_.gAdoCon.ExecuteNoRecords(DeleteLinesStatement(request.id, session_.gIntShopID));
  AddLinesTo(RequestLinesQuery(request.id, session_.gIntShopID), request);
}

void RequestStore::AddLinesTo(const std::string& source, const Request& request) {
  db_.strTableName("mosGoodsRequestDetail");
  ado::Recordset rows = OpenForAdding(source, ado::kBatchOptimistic);
  std::size_t number = 0;
  for (const RequestLine& line : request.lines) {
    AddRow(rows, {{"GRDDetailid", Place(++number)},
                  {"GRDshopID", session_.gIntShopID},
                  {"GRDrequestID", request.id},
                  {"GRDitemID", line.itemId},
                  {"grdreqcomments", line.remarks},
                  {"GRDgoodQty", line.Quantity()},
                  {"grdexpectremarks", request.remarks}});
  }
  rows.UpdateBatch();
  rows.CloseIfOpen();
}

void RequestStore::DeleteLinks(std::int32_t requestId) {
  session_.gAdoCon.ExecuteNoRecords(DeleteLinksStatement(requestId, session_.gIntCompanyID, session_.gIntShopID));
}

void RequestStore::AddLinks(const Request& request) {
  ado::Recordset rows = OpenForAdding("select * from mosRequestInvDetail", ado::kOptimistic);
  for (const CustomerLink& link : request.links) {
    const bool isInvoice = link.kind == CustomerLink::Kind::Invoice;
    AddRow(rows, {{"reqcompanyid", session_.gIntCompanyID},
                  {"reqdid", request.id},
                  {"reqddetailid", Place(link.position)},
                  {"reqinvdshopid", session_.gIntShopID},
                  {isInvoice ? "reqinvdinvoiceid" : "reqReexportID", link.id},
                  {isInvoice ? "reqReexportID" : "reqinvdinvoiceid", late::Null{}}});
  }
  rows.Close();
}

void RequestStore::SetOrdeRaisedStatus(std::int16_t flag, std::int32_t requestId) {
  MarkItems(StoredLinesQuery(requestId), flag);
}

void RequestStore::MarkItems(const std::string& linesQuery, std::int16_t flag) {
  db_.strTableName("aShopItemDetail");
  std::vector<std::int32_t> itemIds;  // read first: the updates need the connection to themselves
  ReadQuery(session_, linesQuery, [&](ado::Recordset& lines) {
    if (lines.Eof()) return;
    std::size_t itemId = 0;
    while (!vb::EqualNoCase(lines.FieldName(static_cast<int>(itemId)), "GRDitemID")) ++itemId;
    ado::ForEachRow(lines,
                    [&](const late::Array& block, std::size_t record) { itemIds.push_back(block.At(itemId, record).ToInt32()); });
  });
  // The condition names the item alone: its mark changes in every shop.
  for (const std::int32_t itemId : itemIds) {
    db_.fnUpdateSelectedRecord("Itemid = " + std::to_string(itemId), "RequestRaised", flag);
  }
}

std::vector<RequestLine> RequestStore::LinesOf(std::int32_t requestId) {
  // Only a database set up for replication knows in which order the lines were entered.
  const bool hasRowIdentifier = ExecuteForValue(session_, RowIdentifierQuery()).ToInt32() > 0;
  const late::ArrayPtr rows =
      ReadRows(session_, LinesToShowQuery(requestId, session_.gIntShopID, hasRowIdentifier ? " order by a.rowguid" : " "));
  UnitCodes unitCodes(session_);
  std::vector<RequestLine> lines;
  for (std::size_t row = 0; row < rows->columns; ++row) {
    const std::int32_t itemId = rows->At(kItemId, row).ToInt32();
    lines.push_back({.itemCode = rows->At(kItemCode, row).TextOrEmpty(),
                     .itemName = rows->At(kDescription, row).TextOrEmpty(),
                     .quantity = rows->At(kQuantity, row).TextOrEmpty(),
                     .itemId = itemId,
                     .remarks = rows->At(kComments, row).TextOrEmpty(),
                     .unit = unitCodes.Of(itemId),
                     .partCode = rows->At(kPartCode, row).TextOrEmpty()});
  }
  return lines;
}

bool RequestStore::IsStored(std::int32_t requestId, std::string_view number, const std::vector<RequestLine>& lines) {
  db_.strTableName("mosGoodsRequestHeader");
  const std::string condition =
      "grhrequestid=" + std::to_string(requestId) + " and grhshopid=" + std::to_string(session_.gIntShopID);
  if (vb::Trim(db_.fnReturnField("grhrequestno", condition).TextOrEmpty()) != number) return false;
  const auto quantities = [](const std::vector<RequestLine>& of) {
    std::multiset<std::pair<std::int32_t, double>> set;
    for (const RequestLine& line : of) {
      if (line.Quantity() > 0) set.emplace(line.itemId, line.Quantity());
    }
    return set;
  };
  return quantities(lines) == quantities(LinesOf(requestId));
}

std::set<std::int32_t> RequestStore::KnownItems(const std::vector<RequestLine>& lines) {
  return ItemsWhere("", lines);
}

std::set<std::int32_t> RequestStore::ItemsForSale(const std::vector<RequestLine>& lines) {
  return ItemsWhere("Active=1 and forsales=1 and ", lines);
}

std::set<std::int32_t> RequestStore::ItemsWhere(std::string_view condition, const std::vector<RequestLine>& lines) {
  std::set<std::int32_t> items;
  if (lines.empty()) return items;
  const late::ArrayPtr rows = ReadRows(session_, ItemsQuery(condition, lines));
  for (std::size_t row = 0; row < rows->columns; ++row) items.insert(rows->At(0, row).ToInt32());
  return items;
}

std::vector<CustomerLink> RequestStore::LinksOf(std::int32_t requestId) {
  using Kind = CustomerLink::Kind;
  std::vector<CustomerLink> links;
  const auto append = [&](Kind kind, std::int32_t id, std::string number) {
    links.push_back({kind, id, std::move(number), links.size() + 1});
  };
  std::set<std::int32_t> invoices;
  const late::ArrayPtr linked = ReadRows(session_, LinkedInvoicesQuery(requestId, session_.gIntShopID, session_.gIntCompanyID));
  for (std::size_t row = 0; row < linked->columns; ++row) {
    const std::int32_t id = linked->At(kLinkedInvoiceId, row).ToInt32();
    invoices.insert(id);
    append(Kind::Invoice, id, linked->At(kLinkedInvoiceNo, row).TextOrEmpty());
  }
  const late::ArrayPtr all = ReadRows(session_, LinksQuery(requestId, session_.gIntShopID, session_.gIntCompanyID));
  for (std::size_t row = 0; row < all->columns; ++row) {
    if (const late::Value& reexport = all->At(kLinkReexportId, row); !reexport.IsNull()) {
      const std::string number(vb::Trim(all->At(kLinkReexportNo, row).TextOrEmpty()));
      append(Kind::Reexport, reexport.ToInt32(), number.empty() ? std::to_string(reexport.ToInt32()) : number);
    } else if (const late::Value& invoice = all->At(kLinkInvoiceId, row); !invoice.IsNull()) {
      if (!invoices.contains(invoice.ToInt32())) append(Kind::Invoice, invoice.ToInt32(), std::to_string(invoice.ToInt32()));
    }
  }
  return links;
}

std::vector<TakenDocument> RequestStore::TakenByOthers(const std::vector<CustomerLink>& links, std::int32_t ownId) {
  std::vector<TakenDocument> taken;
  if (links.empty()) return taken;
  const late::ArrayPtr rows = ReadRows(session_, LinksOfOthersQuery(links, ownId, session_.gIntShopID, session_.gIntCompanyID));
  for (std::size_t row = 0; row < rows->columns; ++row) {
    const late::Value& invoice = rows->At(kTakenInvoiceId, row);
    const auto kind = invoice.IsNull() ? CustomerLink::Kind::Reexport : CustomerLink::Kind::Invoice;
    const std::int32_t id = (invoice.IsNull() ? rows->At(kTakenReexportId, row) : invoice).ToInt32();
    for (const CustomerLink& link : links) {
      if (link.kind == kind && link.id == id) taken.push_back({link.number, rows->At(kTakenBy, row).TextOrEmpty()});
    }
  }
  return taken;
}

bool RequestStore::HasProjectRequest(const std::vector<CustomerLink>& links) {
  for (const CustomerLink& link : links) {
    if (link.kind != CustomerLink::Kind::Invoice) continue;
    const std::string query = ProjectRequestQuery(link.id, session_.gIntShopID, session_.gIntCompanyID);
    if (ReadRows(session_, query)->columns > 0) return true;
  }
  return false;
}

bool RequestStore::Cancel(std::int32_t requestId, std::string_view remark, const MayWrite& mayWrite) {
  ado::Recordset header = OpenHeader(CancelledHeaderQuery(requestId, session_.gIntShopID));
  const bool cancels = !header.Eof() && mayWrite(ReadHeader(header));
  if (cancels) {
    header.SetField("grhcancel", std::int32_t{1});
    header.SetField("grhcancelRemarks", remark);
    header.Update();
  }
  header.Close();
  return cancels;
}

void RequestStore::RemoveRequestRaised(std::int32_t requestId) {
  MarkItems(CancelledLinesQuery(requestId, session_.gIntShopID), 0);
}

void RequestStore::Refresh(std::int32_t requestId) {
  session_.gAdoCon.ExecuteNoRecords(RefreshHeaderStatement(requestId, session_.gIntShopID));
  session_.gAdoCon.ExecuteNoRecords(RefreshLinesStatement(requestId, session_.gIntShopID));
}

/// A recordset for adding rows, which a batch can only collect on the client. The rows that its query names are of no interest
/// and may be millions: with a limit of one row no more is fetched at opening.
ado::Recordset RequestStore::OpenForAdding(std::string_view query, ado::LockType lock) {
  ado::Recordset rows = ado::Recordset::Create(session_.services.factory);
  rows.SetCursorLocation(ado::kUseClient);
  rows.SetMaxRecords(1);
  rows.Open(query, session_.gAdoCon, ado::kStatic, lock);
  return rows;
}

ado::Recordset RequestStore::OpenHeader(const std::string& query) {
  ado::Recordset header = ado::Recordset::Create(session_.services.factory);
  header.SetCursorLocation(ado::kUseServer);  // a host's client-side cursors miss the row when a trigger counts others
  header.Open(query, session_.gAdoCon, ado::kKeyset, ado::kOptimistic);
  return header;
}

std::string RequestStore::UserName(const std::string& condition) {
  db_.strTableName("aUsers");
  return db_.fnReturnField("UserName", condition).TextOrEmpty();
}

}  // namespace goods
