#include "src/printing/request_slip.h"

#include "base/vb/format.h"
#include "base/vb/text.h"
#include "src/faces/common_db.h"
#include "src/module/error_routine.h"
#include "src/printing/slip_footer.h"
#include "src/printing/slip_header.h"
#include "src/records/item_lookups.h"
#include "src/records/query_rows.h"

namespace goods {
namespace {

// The slip's routines belong to the register, and report as such.
constexpr std::string_view kModule = "frmMaster ";
constexpr std::string_view kScreenFile = "C:\\Reqtohq.txt";

std::string SlipLinesQuery(std::int32_t requestId, std::int32_t shopId, bool inSavedOrder) {
  return std::string("select u.UnitCode, h.GRHrequestNO,d.GRDItemId,GRDgoodqty,") +                                       //
         " vw.itemdescription,a.itemcode, itemrate" +                                                                     //
         " from mosGoodsRequestHeader h, mosGoodsRequestDetail d, " +                                                     //
         " aItem a, vwItemDescriptionPrint vw, aUnit u " +                                                                //
         " where h.GRHrequestID=d.GRDrequestID and a.ItemId=vw.ItemId and " +                                             //
         " a.ItemId=d.GRDItemId and h.GRHShopId=" + std::to_string(shopId) +                                              //
         " and h.GRHShopId=d.GRDShopId and h.GRHrequestID=" + std::to_string(requestId) + " and a.UnitsId = u.UnitId " +  //
         (inSavedOrder ? " order by d.grdrequestid, d.grdItemId" : " order by vw.itemdescription");
}

double NumberOrZero(const late::Value& value) {
  return value.IsNull() ? 0 : value.ToDouble();
}

/// What the shop adds to an item's rate to get its cost price.
double CostFactor(basGoodsRequest& session) {
  CommonDb db(session.services.factory, session.gAdoCon);
  db.strTableName("ashops");
  const late::Value percent = db.fnReturnField("RevisedCostPricePercent", "ShopId=" + std::to_string(session.gIntShopID));
  return 1 + NumberOrZero(percent) / 100;
}

struct OpenedOutput {
  std::unique_ptr<workstation::OutputFile> file;
  std::string path;
};

/// Ordinary users may not write to the root of drive C on every machine: then the same file name in their temporary folder
/// serves.
OpenedOutput OpenScreenFile(workstation::Workstation& workstation) {
  try {
    return {workstation.OpenForOutput(kScreenFile), std::string(kScreenFile)};
  } catch (const vb::RunTimeError&) {
    const std::string path = workstation.TempFolder() + "\\Reqtohq.txt";
    return {workstation.OpenForOutput(path), path};
  }
}

OpenedOutput OpenOutput(workstation::Workstation& workstation, SlipDestination destination, const std::string& port) {
  if (destination == SlipDestination::Screen) return OpenScreenFile(workstation);
  return {workstation.OpenForOutput(port), port};
}

}  // namespace

std::string RequestSlip::PrintBill(std::int32_t requestId, SlipDestination destination, SettingsFile& settingsFile) {
  isWhole_ = true;
  std::string path;
  RunRoutine("PrintBill", [&] { path = Write(requestId, destination, settingsFile); });
  return isWhole_ ? path : std::string();
}

std::string RequestSlip::Write(std::int32_t requestId, SlipDestination destination, SettingsFile& settingsFile) {
  const SlipSettings settings = SlipSettings::Read(settingsFile);
  const SlipColumns columns(settings);
  // Read before anything is opened: what cannot be read leaves the last slip, and the paper, alone. And read to the end: header,
  // footer and prices ask the same connection.
  const late::ArrayPtr lines = ReadRows(session_, SlipLinesQuery(requestId, session_.gIntShopID, settings.printinsavedorder));
  OpenedOutput opened = OpenOutput(session_.services.workstation, destination, settings.port);
  SlipOutput output(std::move(opened.file));
  // The screen file starts with the headings; only paper gets the header.
  if (destination == SlipDestination::Printer) HeaderPrint(settingsFile, output, settings.pagewidth, requestId);
  WriteHeadings(output, settings, columns);
  const Totals totals = WriteLines(output, settings, columns, *lines, destination);
  WriteTotals(output, settings, columns, totals);
  FooterPrint(output, settings.pagewidth);
  output.Close();
  return opened.path;
}

void RequestSlip::WriteHeadings(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns) const {
  const std::string& dashes = columns.DashedLine();
  if (settings.printheadertopline && !dashes.empty()) output.Line(dashes);
  output.Line(columns.Headings());
  if (settings.printheaderbottomline && !dashes.empty()) output.Line(dashes);
}

RequestSlip::Totals RequestSlip::WriteLines(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns,
                                            const late::Array& lines, SlipDestination destination) {
  const double costFactor = settings.showcostintrans ? CostFactor(session_) : 1;
  Totals totals;
  long number = 0;
  enum Field : std::size_t { kUnitCode, kRequestNo, kItemId, kQuantity, kDescription, kItemCode, kRate };
  for (std::size_t record = 0; record < lines.columns; ++record) {
    if (settings.internalprintnoofrecords > 0 && number > 0 && number % settings.internalprintnoofrecords == 0) {
      if (settings.printfooterineachpage) FooterPrint(output, settings.pagewidth);
      if (destination == SlipDestination::Printer) output.BreakPage();
      WriteHeadings(output, settings, columns);
    }
    const double quantity = NumberOrZero(lines.At(kQuantity, record));
    const double costPrice = NumberOrZero(lines.At(kRate, record)) * costFactor;
    SlipLine line;
    line.itemCode = lines.At(kItemCode, record).TextOrEmpty();
    line.description = lines.At(kDescription, record).TextOrEmpty();
    line.unit = lines.At(kUnitCode, record).TextOrEmpty();
    line.quantity = vb::Format(quantity, "0.00");
    if (settings.showcostintrans) {
      line.costPrice = vb::Format(costPrice, "0.00");
      line.totalCost = vb::Format(costPrice * quantity, "0.00");
    }
    if (settings.showspintransrep) {
      const std::int32_t itemId = lines.At(kItemId, record).ToInt32();
      line.sellingPrice =
          vb::Format(GetItemSellingPrice(session_, itemId, vb::CInt(static_cast<double>(session_.gIntShopID))), "0.00");
    }
    totals.quantity += quantity;
    totals.cost += costPrice * quantity;
    output.Line(columns.Line(++number, line));
  }
  return totals;
}

void RequestSlip::WriteTotals(SlipOutput& output, const SlipSettings& settings, const SlipColumns& columns,
                              const Totals& totals) const {
  const std::string& dashes = columns.DashedLine();
  if (settings.printdetailbottomline && !dashes.empty()) output.Line(dashes);
  if (settings.showtotalqty) {
    output.Line(columns.QuantityTotal(vb::Format(totals.quantity, "0.000")));
  } else if (settings.showcostintrans) {
    output.Line(columns.CostTotal(vb::Format(totals.cost, "0.00")));
    output.Line("");
  }
}

void RequestSlip::HeaderPrint(SettingsFile& settingsFile, SlipOutput& output, std::int16_t pageWidth, std::int32_t requestId) {
  RunRoutine("HeaderPrint", [&] { WriteSlipHeader(session_, settingsFile, output, pageWidth, requestId); });
}

void RequestSlip::FooterPrint(SlipOutput& output, std::int16_t pageWidth) {
  RunRoutine("FooterPrint", [&] { WriteSlipFooter(session_, output, pageWidth); });
}

void RequestSlip::RunRoutine(std::string_view name, const std::function<void()>& work) {
  isWhole_ = Trapped(session_, kModule, name, work) && isWhole_;
}

}  // namespace goods
