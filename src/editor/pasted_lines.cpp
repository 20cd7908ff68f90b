#include "src/editor/pasted_lines.h"

#include "base/controls/table_text.h"
#include "base/vb/text.h"
#include "src/counter/outcome.h"
#include "src/itementry/line_rules.h"

namespace goods {
namespace {

void AddRow(controls::TableText& table, const std::vector<std::string>& cells) {
  for (const std::string& cell : cells) table.AddCell(cell);
  table.EndRow();
}

}  // namespace

PastedLines::PastedLines(basGoodsRequest& session, CommonDb& db, RequestLines lines)
    : session_(session), db_(db), lines_(lines), unitCodes_(session) {
  for (const RequestLine& line : lines_.All()) requested_.insert(line.itemId);
}

std::optional<vb::RunTimeError> PastedLines::Take(std::string_view text, const Progress& progress) {
  table_ = ReadPastedLines(text);
  std::optional<vb::RunTimeError> failure;
  for (std::size_t i = 0; i < table_.rows.size(); ++i) {
    std::string reason = failure ? failure->Description() : "";
    try {
      if (i == 0) limit_ = ReadLineLimit(session_, db_);
      if (!failure) reason = TakeRow(table_.rows[i]);
    } catch (const vb::RunTimeError& error) {
      failure = error;
      reason = error.Description();
    }
    if (!reason.empty()) refused_.push_back({table_.rows[i], std::move(reason)});
    progress(i + 1, table_.rows.size());
  }
  return failure;
}

std::string PastedLines::TakeRow(const PastedRow& row) {
  if (row.code.empty()) return std::string(kUnknownCode);
  const std::optional<PickedItem> item = FindItemByCode(session_, db_, row.code);
  if (!item) return std::string(kUnknownCode);
  const std::optional<std::string> quantity =
      row.quantity.empty() ? std::string() : QuantityAsTyped(row.quantity, table_.hasDecimalComma);
  if (!quantity) return "Enter quantity with at most three decimals";
  if (const std::string_view refusal = QuantityRefusal(session_, *quantity); !refusal.empty()) return std::string(refusal);
  if (vb::Len(row.remarks) > kCommentsLength) return "At most " + std::to_string(kCommentsLength) + " characters of comments";
  if (requested_.contains(item->itemId)) return item->itemDescription + std::string(kAlreadyExists);
  if (limit_ >= 1 && lines_.Count() + 1 > limit_) return std::string(kNoMoreItems);
  lines_.Append({item->itemCode, item->itemDescription, QuantityText(QuantityTyped(*quantity)), item->itemId, row.remarks,
                 unitCodes_.Of(item->itemId), std::string(vb::Trim(item->partCode))});
  requested_.insert(item->itemId);
  ++added_;
  return {};
}

std::string PastedLines::Outcome() const {
  std::vector<std::string> refused;
  for (const auto& [row, reason] : refused_)
    refused.push_back(row.code + ", " + row.quantity + ": " + std::string(vb::Trim(reason)));
  return OutcomeToTell(added_, refused, ", ready on the clipboard to be mended and pasted again");
}

std::string PastedLines::RefusedTable() const {
  if (refused_.empty()) return {};
  controls::TableText table;
  if (!table_.headings.empty()) AddRow(table, table_.headings);
  for (const Refused& refused : refused_) AddRow(table, refused.row.cells);
  return table.Text();
}

}  // namespace goods
