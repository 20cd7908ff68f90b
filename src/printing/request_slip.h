#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/late/value.h"
#include "src/printing/slip_columns.h"
#include "src/printing/slip_output.h"

namespace goods {

enum class SlipDestination { Printer, Screen };

/// The text slip of one request of the session's shop. Its three routines report their errors as the register's own and leave the
/// output as far as it was written.
class RequestSlip {
 public:
  explicit RequestSlip(basGoodsRequest& session) : session_(session) {}

  /// Writes the whole slip, laid out by the settings. Returns the path of its file or port; empty when an error was reported, and
  /// the slip is not written or only in part.
  std::string PrintBill(std::int32_t requestId, SlipDestination destination, SettingsFile& settingsFile);

 private:
  struct Totals {
    double quantity = 0;
    double cost = 0;
  };
  std::string Write(std::int32_t requestId, SlipDestination destination, SettingsFile& settingsFile);
  void WriteHeadings(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns) const;
  Totals WriteLines(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns, const late::Array& lines,
                    SlipDestination destination);
  void WriteTotals(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns, const Totals& totals) const;
  void HeaderPrint(SettingsFile& settingsFile, SlipOutput& output, std::int16_t pageWidth, std::int32_t requestId);
  void FooterPrint(SlipOutput& output, std::int16_t pageWidth);
  void RunRoutine(std::string_view name, const std::function<void()>& work);

  basGoodsRequest& session_;
  bool isWhole_ = false;
};

}  // namespace goods
