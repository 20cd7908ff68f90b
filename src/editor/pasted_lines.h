#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/vb/error.h"
#include "src/counter/pasted_table.h"
#include "src/faces/common_db.h"
#include "src/itementry/item_lookup.h"
#include "src/module/session.h"
#include "src/records/item_lookups.h"
#include "src/records/request_lines.h"

namespace goods {

/// Takes lines from a table that another program, or a list of this one, has put on the clipboard: each goes through the
/// look-ups, the refusals and the limit of item entry.
class PastedLines {
 public:
  /// All outlive this object.
  PastedLines(basGoodsRequest& session, CommonDb& db, RequestLines lines);

  /// Called after each row with the number of rows done and of all.
  using Progress = std::function<void(std::size_t done, std::size_t all)>;
  /// Appends what can be taken; the rest is kept as refused. A database error ends the look-ups: the rows from there on are
  /// refused for it. Returns that error, nothing where there was none.
  std::optional<vb::RunTimeError> Take(std::string_view text, const Progress& progress);

  std::size_t Added() const { return added_; }
  /// How many lines were added, and each refused row with its reason; after 20 of them how many more there are.
  std::string Outcome() const;
  /// The refused rows alone, as a table to be mended and pasted again; empty where there are none.
  std::string RefusedTable() const;

 private:
  struct Refused {
    PastedRow row;
    std::string reason;
  };

  /// The reason why a row is refused; empty when it became a line.
  std::string TakeRow(const PastedRow& row);

  basGoodsRequest& session_;
  CommonDb& db_;
  RequestLines lines_;
  UnitCodes unitCodes_;
  PastedTable table_;
  std::set<std::int32_t> requested_;  ///< the items that have a line
  double limit_ = 0;
  std::size_t added_ = 0;
  std::vector<Refused> refused_;
};

}  // namespace goods
