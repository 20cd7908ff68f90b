#pragma once

#include <cstdint>
#include <string>

#include "base/late/value.h"
#include "src/module/session.h"
#include "src/printing/slip_columns.h"
#include "src/printing/slip_output.h"

namespace goods {

enum class SlipDestination { Printer, Screen };

/// The text slip of one request of the session's shop. Its three routines report their errors as the register's own and leave the
/// output as far as it was written.
class RequestSlip {
 public:
  explicit RequestSlip(basGoodsRequest& session) : session_(session) {}

  /// Writes the whole slip. The path of the file that was opened, written in full or as far as an error let it; empty when none
  /// was.
  std::string PrintBill(std::int32_t requestId, SlipDestination destination);

 private:
  struct Totals {
    double quantity = 0;
    double cost = 0;
  };
  void Write(std::int32_t requestId, SlipDestination destination, std::string& path);
  void WriteHeadings(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns) const;
  Totals WriteLines(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns, const late::Array& lines,
                    SlipDestination destination);
  void WriteTotals(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns, const Totals& totals) const;
  void HeaderPrint(SlipOutput& output, std::int16_t pageWidth, std::int32_t requestId);
  void FooterPrint(SlipOutput& output, std::int16_t pageWidth);

  basGoodsRequest& session_;
};

}  // namespace goods
