#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/controls/list_view.h"
#include "src/module/session.h"
#include "src/records/request_lines.h"

namespace goods {

class CommonDb;

/// Columns of the customer-request list; 0 is the line's own text.
enum CustomerRequestColumn : int {
  kDocumentSlNo = 0,
  kDocumentRequestNo = 1,
  kDocumentId = 2,          ///< the invoice's id, or the re-export's
  kDocumentReexportNo = 3,  ///< empty for an invoice
};

/// The customer invoices and re-exports that a request can be raised for: which are on offer, which an existing request holds,
/// and what checking one does to the request's lines. Knows the two lists, not the window around them.
class CustomerRequests {
 public:
  /// All but the face over the lines outlive this object; so does their list.
  CustomerRequests(basGoodsRequest& session, CommonDb& db, controls::ListView& documents, RequestLines lines)
      : session_(session), db_(db), documents_(documents), lines_(lines) {}

  /// Shows the documents on offer, unchecked. A database error leaves the list as it was.
  void ShowOnOffer();
  /// Shows the documents of an existing request, checked, followed by those on offer; the list is empty when the request has
  /// none. Whether it has any. Everything is read before the list (and with it the form) is touched: a database error leaves
  /// both as they were.
  bool ShowOwn(std::int32_t requestId);
  /// Empties the list; the request's lines stay.
  void Clear();
  /// Takes the quantities of the checked documents out of the lines and unchecks them. A database error changes nothing.
  void UncheckAll();
  /// After a person has checked or unchecked the document: adds its quantities to the lines, or takes them out. A database error
  /// puts the mark back and is raised.
  void TakeChecked(controls::ListItem& document);
  /// Checks these documents of the list and unchecks the others; the request's lines stay. Returns those that the list lacks.
  std::vector<CustomerLink> CheckOnly(const std::vector<CustomerLink>& links);
  /// The checked documents.
  std::vector<CustomerLink> Checked() const;

 private:
  struct Document {
    std::string number;
    std::string reexportNo;  ///< empty for an invoice
    std::int32_t id = 0;
    bool isOwn = false;
  };
  using Documents = std::vector<Document>;

  void AppendOwn(Documents& documents, std::int32_t requestId) const;
  void AppendOnOffer(Documents& documents) const;
  void Show(const Documents& documents);
  /// The document's lines as (field, record); see the fields beside the queries.
  late::ArrayPtr LinesOf(const controls::ListItem& document) const;
  void AddQuantities(const late::Array& documentLines);
  void TakeOutQuantities(const late::Array& documentLines);
  void RemoveLine(int line);

  basGoodsRequest& session_;
  CommonDb& db_;
  controls::ListView& documents_;
  RequestLines lines_;
};

}  // namespace goods
