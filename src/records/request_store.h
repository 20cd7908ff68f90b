#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "src/faces/common_db.h"
#include "src/module/session.h"
#include "src/records/request.h"

namespace goods {

/// The requests of the session's shop as they are in the database. Each routine is a step of a save, a load or a cancellation;
/// transactions are the caller's. Database errors are raised.
class RequestStore {
 public:
  /// Both outlive this object.
  RequestStore(basGoodsRequest& session, CommonDb& db) : session_(session), db_(db) {}

  // Identity. Only inside the save's transaction does it stay what it was.

  /// One more than the shop's greatest request id.
  std::int32_t NextId();
  /// The shop's next request number: the prefix of the current financial year and one more than the greatest number after it.
  /// Error 6 when the counter would pass 32,767.
  std::string fnGenerateRequestNo();
  /// Whether it is a request number of the shop already. Error 5 when it contains an apostrophe.
  bool fnRequestNoExists(const std::string& requestNo);

  // A request's rows.

  void AddHeader(const Request& request);
  /// Is asked with the stored header before anything is written to it.
  using MayWrite = std::function<bool(const StoredHeader& stored)>;
  /// Remarks, confirmation, number of lines, user and time; the rest of a header never changes. Whether it was written.
  bool UpdateHeader(const Request& request, const MayWrite& mayWrite);
  void AddLines(const Request& request);
  void ReplaceLines(const Request& request);
  void AddLinks(const Request& request);
  void DeleteLinks(std::int32_t requestId);
  /// Sets or clears the request-raised mark of the items of the request's stored lines, in every shop.
  void SetOrdeRaisedStatus(std::int16_t flag, std::int32_t requestId);

  /// The stored lines with a quantity above 0, in the order in which they were entered where the database can tell. A unit that
  /// cannot be read is left empty, and the first such error reported.
  std::vector<RequestLine> LinesOf(std::int32_t requestId);
  /// Whether the request of that id and number is stored with exactly these items and quantities.
  bool IsStored(std::int32_t requestId, std::string_view number, const std::vector<RequestLine>& lines);
  /// The ids among those of the lines that are items of the suite.
  std::set<std::int32_t> KnownItems(const std::vector<RequestLine>& lines);
  /// The ids among those of the lines that are active items for sale.
  std::set<std::int32_t> ItemsForSale(const std::vector<RequestLine>& lines);
  /// Every stored link: invoices that the shop still has, then the others. Where the shop no longer has the document, the id
  /// takes the place of its number.
  std::vector<CustomerLink> LinksOf(std::int32_t requestId);
  /// Which of the documents are linked to another request that is not cancelled. `ownId` is the id of the stored request that the
  /// links belong to, 0 for a new one.
  std::vector<TakenDocument> TakenByOthers(const std::vector<CustomerLink>& links, std::int32_t ownId);
  /// Whether an invoice among the links is a project request.
  bool HasProjectRequest(const std::vector<CustomerLink>& links);

  // Cancellation.

  /// Marks the header as cancelled, with the remark. Whether it was written; `mayWrite` is not asked when there is no such
  /// request.
  bool Cancel(std::int32_t requestId, std::string_view remark, const MayWrite& mayWrite);
  /// Clears the request-raised mark of the cancelled request's items, in every shop.
  void RemoveRequestRaised(std::int32_t requestId);
  /// Rewrites header and lines with their own values, so that whatever the database does on an update runs again.
  void Refresh(std::int32_t requestId);

 private:
  std::set<std::int32_t> ItemsWhere(std::string_view condition, const std::vector<RequestLine>& lines);
  ado::Recordset OpenForAdding(std::string_view query, ado::LockType lock);
  ado::Recordset OpenHeader(const std::string& query);
  void AddLinesTo(const std::string& source, const Request& request);
  void MarkItems(const std::string& linesQuery, std::int16_t flag);
  std::string UserName(const std::string& condition);

  basGoodsRequest& session_;
  CommonDb& db_;
};

}  // namespace goods
