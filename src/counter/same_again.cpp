#include "src/counter/same_again.h"

#include <algorithm>
#include <set>

#include "src/records/request_store.h"

namespace goods {
namespace {

constexpr std::size_t kMaxTold = 20;

}  // namespace

SameAgain LinesToRepeat(basGoodsRequest& session, CommonDb& db, std::int32_t requestId) {
  RequestStore store(session, db);
  SameAgain again;
  again.lines = store.LinesOf(requestId);
  const std::set<std::int32_t> onSale = store.ItemsForSale(again.lines);
  const auto gone = std::stable_partition(again.lines.begin(), again.lines.end(),
                                          [&](const RequestLine& line) { return onSale.contains(line.itemId); });
  again.leftOut.assign(gone, again.lines.end());
  again.lines.erase(gone, again.lines.end());
  return again;
}

std::string LinesToTell(const std::vector<RequestLine>& lines) {
  std::string text;
  const std::size_t told = std::min(lines.size(), kMaxTold);
  for (std::size_t line = 0; line < told; ++line) {
    text += "\r\n" + lines[line].itemCode + " " + lines[line].itemName + ", " + lines[line].quantity;
  }
  if (lines.size() > told) text += "\r\nand " + std::to_string(lines.size() - told) + " more";
  return text;
}

}  // namespace goods
