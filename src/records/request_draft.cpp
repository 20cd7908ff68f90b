#include "src/records/request_draft.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>
#include <vector>

#include "base/vb/format.h"
#include "base/vb/text.h"

namespace goods {
namespace {

constexpr std::string_view kFirstLine = "Goods request draft, version 1";
constexpr std::string_view kSeparator = ": ";
constexpr std::array<std::pair<char, char>, 4> kEscapes = {{{'\\', '\\'}, {'\t', 't'}, {'\r', 'r'}, {'\n', 'n'}}};

// Keys.
constexpr std::string_view kSavedAt = "saved at";
constexpr std::string_view kBelongsTo = "belongs to";  // a request's id, or "a new request"
constexpr std::string_view kBasedOn = "based on the request of";
constexpr std::string_view kSavingAs = "being saved as";  // id, number
constexpr std::string_view kNumber = "number";
constexpr std::string_view kDate = "date";
constexpr std::string_view kType = "type";
constexpr std::string_view kRemarks = "remarks";
constexpr std::string_view kFinished = "finished";
constexpr std::string_view kLine = "line";           // item id, code, name, quantity, unit, part code, remarks
constexpr std::string_view kInvoice = "invoice";     // id, number
constexpr std::string_view kReexport = "re-export";  // id, number
constexpr std::string_view kEnd = "end";             // the counts of both, which an early end of the file lacks
constexpr std::string_view kNewRequest = "a new request";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    const auto* const escape =
        std::find_if(kEscapes.begin(), kEscapes.end(), [&](auto& pair) { return pair.first == character; });
    if (escape == kEscapes.end()) {
      escaped += character;
    } else {
      escaped.append({'\\', escape->second});
    }
  }
  return escaped;
}

/// Nothing when a backslash is followed by a letter without a meaning.
std::optional<std::string> Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\') {
      plain += text[at];
      continue;
    }
    if (++at == text.size()) return std::nullopt;
    const auto* const escape =
        std::find_if(kEscapes.begin(), kEscapes.end(), [&](auto& pair) { return pair.second == text[at]; });
    if (escape == kEscapes.end()) return std::nullopt;
    plain += escape->first;
  }
  return plain;
}

class Writer {
 public:
  Writer() : text_(std::string(kFirstLine) + '\n') {}
  void Write(std::string_view key, std::initializer_list<std::string_view> fields) {
    text_.append(key).append(kSeparator);
    const char* between = "";
    for (const std::string_view field : fields) {
      text_.append(between).append(Escaped(field));
      between = "\t";
    }
    text_ += '\n';
  }
  std::string Take() { return std::move(text_); }

 private:
  std::string text_;
};

using Fields = std::vector<std::string>;

std::optional<std::int32_t> WholeNumber(std::string_view text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

bool TakeLine(const Fields& fields, Request& request) {
  if (fields.size() != 7) return false;
  const std::optional<std::int32_t> itemId = WholeNumber(fields[0]);
  if (!itemId) return false;
  request.lines.push_back({.itemCode = fields[1],
                           .itemName = fields[2],
                           .quantity = fields[3],
                           .itemId = *itemId,
                           .remarks = fields[6],
                           .unit = fields[4],
                           .partCode = fields[5]});
  return true;
}

bool TakeLink(CustomerLink::Kind kind, const Fields& fields, Request& request) {
  if (fields.size() != 2) return false;
  const std::optional<std::int32_t> id = WholeNumber(fields[0]);
  if (!id) return false;
  request.links.push_back({kind, *id, fields[1], request.links.size() + 1});
  return true;
}

std::string Counts(const Request& request) {
  return std::to_string(request.lines.size()) + " lines, " + std::to_string(request.links.size()) + " documents";
}

/// Whether the key is one of the draft's and its value can be read.
bool Take(std::string_view key, const Fields& fields, RequestDraft& draft) {
  if (key == kLine) return TakeLine(fields, draft.request);
  if (key == kInvoice) return TakeLink(CustomerLink::Kind::Invoice, fields, draft.request);
  if (key == kReexport) return TakeLink(CustomerLink::Kind::Reexport, fields, draft.request);
  if (key == kSavingAs) {
    const std::optional<std::int32_t> id = WholeNumber(fields.front());
    draft.savingId = id.value_or(0);
    draft.savingNumber = fields.back();
    return fields.size() == 2 && id;
  }
  if (fields.size() != 1) return false;
  const std::string& value = fields.front();
  if (key == kSavedAt) {
    const std::optional<vb::Date> time = vb::TryParseDate(value);
    draft.savedAt = time.value_or(vb::Date{});
    return time.has_value();
  }
  if (key == kBelongsTo) {
    draft.isNew = value == kNewRequest;
    const std::optional<std::int32_t> id = WholeNumber(value);
    draft.request.id = id.value_or(0);
    return draft.isNew || id;
  }
  if (key == kType) {
    draft.request.type = value == "P" ? RequestType::PurchaseOrder : RequestType::ToGodown;
    return value == "P" || value == "G";
  }
  if (key == kFinished) {
    draft.request.finished = value == "1";
    return true;
  }
  if (key == kBasedOn) return draft.basedOn = value, true;
  if (key == kNumber) return draft.request.number = value, true;
  if (key == kDate) return draft.request.date = value, true;
  if (key == kRemarks) return draft.request.remarks = value, true;
  return false;
}

}  // namespace

std::string DraftText(const RequestDraft& draft) {
  const Request& request = draft.request;
  Writer writer;
  writer.Write(kSavedAt, {vb::FormatDate(draft.savedAt, "yyyy/mm/dd hh:nn:ss")});
  writer.Write(kBelongsTo, {draft.isNew ? std::string(kNewRequest) : std::to_string(request.id)});
  writer.Write(kBasedOn, {draft.basedOn});
  if (draft.savingId) writer.Write(kSavingAs, {std::to_string(draft.savingId), draft.savingNumber});
  writer.Write(kNumber, {request.number});
  writer.Write(kDate, {request.date});
  writer.Write(kType, {request.type == RequestType::ToGodown ? "G" : "P"});
  writer.Write(kRemarks, {request.remarks});
  writer.Write(kFinished, {request.finished ? "1" : "0"});
  for (const RequestLine& line : request.lines) {
    writer.Write(kLine, {std::to_string(line.itemId), line.itemCode, line.itemName, line.quantity, line.unit, line.partCode,
                         line.remarks});
  }
  for (const CustomerLink& link : request.links) {
    writer.Write(link.kind == CustomerLink::Kind::Invoice ? kInvoice : kReexport, {std::to_string(link.id), link.number});
  }
  writer.Write(kEnd, {Counts(request)});
  return writer.Take();
}

std::optional<RequestDraft> ParseDraft(std::string_view text) {
  RequestDraft draft;
  bool isFirst = true;
  while (const std::optional<std::string_view> next = vb::TakeLine(text)) {  // however an editor of support staff's ends lines
    const std::string_view line = *next;
    if (std::exchange(isFirst, false)) {
      if (line != kFirstLine) return std::nullopt;
      continue;
    }
    const std::size_t separator = line.find(kSeparator);
    if (separator == std::string_view::npos) return std::nullopt;
    Fields fields;
    for (const std::string& part : vb::Split(line.substr(separator + kSeparator.size()), "\t")) {
      std::optional<std::string> field = Unescaped(part);
      if (!field) return std::nullopt;
      fields.push_back(std::move(*field));
    }
    if (fields.empty()) fields.emplace_back();
    const std::string_view key = line.substr(0, separator);
    if (key == kEnd) {
      if (fields != Fields{Counts(draft.request)}) return std::nullopt;
      return draft;
    }
    if (!Take(key, fields, draft)) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace goods
