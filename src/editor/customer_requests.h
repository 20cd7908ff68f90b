#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/controls/list_view.h"
#include "src/entry/session.h"
#include "src/shared/common_db.h"

namespace goods {

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
  /// All four outlive this object.
  CustomerRequests(basGoodsRequest& session, CommonDb& db, controls::ListView& documents, controls::ListView& lines)
      : session_(session), db_(db), documents_(documents), lines_(lines) {}

  /// Clears the list and shows the documents on offer. A database error leaves the list as it was.
  void ShowOnOffer();
  /// Shows the documents of an existing request, checked, and behind them those on offer; the list stays empty when the request
  /// has none. Whether it has any.
  bool ShowOwn(std::int32_t requestId);
  /// Empties the list.
  void Clear();
  /// Takes the quantities of every checked document out of the lines again and unchecks it. A database error changes nothing.
  void UncheckAll();
  /// After a person has checked or unchecked the document: adds its lines, or takes them out. A database error puts the mark
  /// back and is raised.
  void TakeChecked(controls::ListItem& document);
  /// Whether one of the checked documents is a project request.
  bool IsProjectRequestChecked() const;

  /// A document of the list is an invoice unless it has a re-export number.
  static bool IsInvoice(const controls::ListItem& document);
  static std::int32_t DocumentId(const controls::ListItem& document);

 private:
  struct Document {
    std::string number;
    std::int32_t id = 0;
    bool isReexport = false;
    bool isOwn = false;
  };
  struct DocumentLine {
    std::int32_t itemId = 0;
    std::string description;
    std::string code;
    double quantity = 0;
    std::string remarks;
    std::string unit;
  };

  std::vector<Document> OwnDocuments(std::int32_t requestId) const;
  std::vector<Document> DocumentsOnOffer() const;
  std::vector<DocumentLine> LinesOf(const controls::ListItem& document) const;
  void Show(const std::vector<Document>& documents);
  void AddLines(const std::vector<DocumentLine>& documentLines);
  void TakeOutLines(const std::vector<DocumentLine>& documentLines);
  void RemoveLine(int line);

  basGoodsRequest& session_;
  CommonDb& db_;
  controls::ListView& documents_;
  controls::ListView& lines_;
};

}  // namespace goods
