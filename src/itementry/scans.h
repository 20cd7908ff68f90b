#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "src/module/session.h"
#include "src/records/request_lines.h"

namespace goods {

class CommonDb;

/// Lines entered by a scanner alone: a code a line, each once more for every further scan. The scans of one opening of item entry
/// can be taken back one after the other.
class Scans {
 public:
  struct Scan {
    std::string code;
    std::string item;
    std::int32_t itemId = 0;
    double amount = 0;  ///< in base units
    double total = 0;   ///< of the item's line, after this scan
  };

  /// All outlive this object.
  Scans(basGoodsRequest& session, CommonDb& db, RequestLines lines) : session_(session), db_(db), lines_(lines) {}

  /// Forgets the scans and reads the shop's limit of lines, which holds from then on. Database errors are raised.
  void Start();
  /// Adds the item of the code to the request: 1 of it, or what the packing holds whose barcode it is. Returns why it is refused,
  /// empty when it is not. Sends the statements of the look-up and at most two more; database errors are raised, and nothing is
  /// changed then.
  std::string Take(std::string_view code);
  /// Takes the last scan's amount off its line again; a line that comes to nothing is removed. False when there is none left.
  bool TakeBackLast();

  /// The first one first.
  const std::vector<Scan>& All() const { return scans_; }

 private:
  double AmountOf(std::string_view code, std::int32_t itemId);

  basGoodsRequest& session_;
  CommonDb& db_;
  RequestLines lines_;
  double limit_ = 0;
  std::vector<Scan> scans_;
};

}  // namespace goods
