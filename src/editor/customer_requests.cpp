#include "src/editor/customer_requests.h"

#include <algorithm>
#include <functional>
#include <set>
#include <unordered_map>

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"
#include "src/records/customer_documents.h"
#include "src/records/query_rows.h"
#include "src/records/request_store.h"

namespace goods {
namespace {

double DocumentQuantity(const late::Array& documentLines, std::size_t record) {
  const late::Value& quantity = documentLines.At(kDocLineQty, record);
  return quantity.IsNull() ? 0 : quantity.ToDouble();
}

/// Equal to the last decimal that is kept: two ways to the same figure may differ in the lower bits.
bool SameQuantity(double a, double b) {
  return QuantityText(a) == QuantityText(b);
}

/// Where the items are in the list, so that a long document on a long list does not search it for every line. An item that has
/// several lines is found in the first.
class LinesByItem {
 public:
  explicit LinesByItem(const RequestLines& lines) {
    for (int line = lines.Count(); line >= 1; --line) places_[lines.ItemId(line)].push_back(line);
  }
  /// 0 when the item has no line.
  int Find(std::int32_t itemId) const {
    const auto found = places_.find(itemId);
    return found == places_.end() || found->second.empty() ? 0 : found->second.back();
  }
  void Added(std::int32_t itemId, int line) { places_[itemId].push_back(line); }
  void ForgetFirst(std::int32_t itemId) { places_[itemId].pop_back(); }

 private:
  std::unordered_map<std::int32_t, std::vector<int>> places_;  ///< the last one is the first line of the item
};

/// A document of the list is an invoice unless it has a re-export number.
CustomerLink LinkTo(const controls::ListItem& document, int position) {
  const bool isInvoice = vb::Trim(document.SubItem(kDocumentReexportNo)).empty();
  return {isInvoice ? CustomerLink::Kind::Invoice : CustomerLink::Kind::Reexport,
          vb::CLng(vb::Val(document.SubItem(kDocumentId))), document.SubItem(kDocumentRequestNo),
          static_cast<std::size_t>(position)};
}

}  // namespace

void CustomerRequests::ShowOnOffer() {
  Documents documents;
  AppendOnOffer(documents);
  Show(documents);
}

bool CustomerRequests::ShowOwn(std::int32_t requestId) {
  Documents documents;
  AppendOwn(documents, requestId);
  const bool hasOwn = !documents.empty();
  if (hasOwn) AppendOnOffer(documents);
  Show(documents);
  return hasOwn;
}

void CustomerRequests::AppendOwn(Documents& documents, std::int32_t requestId) const {
  // The next save rewrites the links from the list, so each of them must be in it: re-exports, too, and a document that the
  // shop no longer has.
  for (const CustomerLink& link : RequestStore(session_, db_).LinksOf(requestId)) {
    documents.push_back({link.number, link.kind == CustomerLink::Kind::Reexport ? link.number : "", link.id, true});
  }
}

void CustomerRequests::AppendOnOffer(Documents& documents) const {
  std::set<std::pair<bool, std::int32_t>> own;
  for (const Document& document : documents) own.insert({document.reexportNo.empty(), document.id});
  const late::ArrayPtr rows = ReadRows(session_, DocumentsOnOfferQuery(session_.gIntShopID, session_.gIntCompanyID));
  for (std::size_t row = 0; row < rows->columns; ++row) {
    const late::Value& invoiceNo = rows->At(kOfferInvoiceNo, row);
    std::string reexportNo = rows->At(kOfferReexportNo, row).TextOrEmpty();
    const std::int32_t id = rows->At(kOfferId, row).ToInt32();
    // A cancelled request that is looked at holds its documents no longer: they are both its own and on offer.
    if (own.contains({reexportNo.empty(), id})) continue;
    std::string number = invoiceNo.IsNull() ? reexportNo : invoiceNo.TextOrEmpty();
    documents.push_back({std::move(number), std::move(reexportNo), id, false});
  }
}

void CustomerRequests::Show(const Documents& documents) {
  documents_.Clear();
  for (const Document& document : documents) {
    controls::ListItem& entry = documents_.Add(std::to_string(documents_.Count() + 1));
    entry.SetSubItem(kDocumentRequestNo, document.number);
    entry.SetSubItem(kDocumentId, std::to_string(document.id));
    entry.SetSubItem(kDocumentReexportNo, document.reexportNo);
    entry.SetChecked(document.isOwn);
  }
}

void CustomerRequests::Clear() {
  documents_.Clear();
}

void CustomerRequests::UncheckAll() {
  std::vector<std::pair<controls::ListItem*, late::ArrayPtr>> checked;
  for (int entry = 1; entry <= documents_.Count(); ++entry) {
    controls::ListItem& document = documents_.Item(entry);
    if (document.Checked()) checked.emplace_back(&document, LinesOf(document));
  }
  for (auto& [document, documentLines] : checked) {
    TakeOutQuantities(*documentLines);
    document->SetChecked(false);
  }
}

void CustomerRequests::TakeChecked(controls::ListItem& document) {
  late::ArrayPtr documentLines;
  try {
    documentLines = LinesOf(document);
  } catch (const vb::RunTimeError&) {
    document.SetChecked(!document.Checked());
    throw;
  }
  if (document.Checked()) {
    AddQuantities(*documentLines);
  } else {
    TakeOutQuantities(*documentLines);
  }
}

late::ArrayPtr CustomerRequests::LinesOf(const controls::ListItem& document) const {
  const CustomerLink link = LinkTo(document, 0);
  return ReadRows(session_, link.kind == CustomerLink::Kind::Invoice ? InvoiceLinesQuery(link.id, session_.gIntShopID)
                                                                     : ReexportLinesQuery(link.id, session_.gIntShopID));
}

void CustomerRequests::AddQuantities(const late::Array& documentLines) {
  LinesByItem places(lines_);
  for (std::size_t record = 0; record < documentLines.columns; ++record) {
    const std::int32_t itemId = documentLines.At(kDocLineItemId, record).ToInt32();
    const double quantity = DocumentQuantity(documentLines, record);
    if (const int place = places.Find(itemId)) {
      lines_.SetQuantity(place, lines_.Quantity(place) + quantity);
      continue;
    }
    lines_.Append({.itemCode = documentLines.At(kDocLineCode, record).TextOrEmpty(),
                   .itemName = documentLines.At(kDocLineName, record).TextOrEmpty(),
                   .quantity = QuantityText(quantity),
                   .itemId = itemId,
                   .remarks = documentLines.At(kDocLineRemarks, record).TextOrEmpty(),
                   .unit = documentLines.At(kDocLineUnit, record).TextOrEmpty(),
                   .partCode = ""});
    places.Added(itemId, lines_.Count());
  }
}

void CustomerRequests::TakeOutQuantities(const late::Array& documentLines) {
  LinesByItem places(lines_);
  std::set<int, std::greater<>> doomed;  // from the last one up, so that the numbers of the others stay right
  for (std::size_t record = 0; record < documentLines.columns; ++record) {
    const std::int32_t itemId = documentLines.At(kDocLineItemId, record).ToInt32();
    const double quantity = DocumentQuantity(documentLines, record);
    const int place = places.Find(itemId);
    if (place == 0) continue;
    if (SameQuantity(lines_.Quantity(place), quantity)) {
      doomed.insert(place);
      places.ForgetFirst(itemId);
    } else {
      // Changed by hand in between, it may well become negative: the user then sees what is wrong.
      lines_.SetQuantity(place, lines_.Quantity(place) - quantity);
    }
  }
  for (const int line : doomed) RemoveLine(line);
  if (!doomed.empty()) lines_.Renumber();
}

void CustomerRequests::RemoveLine(int line) {
  // The helper removes the selected line; the user's own selection moves along with its line.
  controls::ListView& list = lines_.List();
  const int selected = list.SelectedItem();
  list.Select(line);
  db_.fnDeleteListview(list, line, list.Count());
  if (selected != line) list.Select(selected > line ? selected - 1 : selected);
}

std::vector<CustomerLink> CustomerRequests::CheckOnly(const std::vector<CustomerLink>& links) {
  std::vector<CustomerLink> missing = links;
  for (int entry = 1; entry <= documents_.Count(); ++entry) {
    controls::ListItem& document = documents_.Item(entry);
    const CustomerLink here = LinkTo(document, entry);
    const auto wanted = std::find_if(missing.begin(), missing.end(),
                                     [&](const CustomerLink& link) { return link.kind == here.kind && link.id == here.id; });
    document.SetChecked(wanted != missing.end());
    if (wanted != missing.end()) missing.erase(wanted);
  }
  return missing;
}

std::vector<CustomerLink> CustomerRequests::Checked() const {
  std::vector<CustomerLink> links;
  for (int entry = 1; entry <= documents_.Count(); ++entry) {
    const controls::ListItem& document = documents_.Item(entry);
    if (document.Checked()) links.push_back(LinkTo(document, entry));
  }
  return links;
}

}  // namespace goods
