#include "src/printing/slip_settings.h"

#include <string_view>

#include "base/vb/number.h"
#include "base/vb/text.h"

namespace goods {
namespace {

class Reader {
 public:
  explicit Reader(SettingsFile& file) : file_(file) {}

  std::string Text(std::string_view key) const { return vb::UCase(vb::Trim(file_.FileCode(key))); }
  std::int16_t Number(std::string_view key) const { return vb::CInt(vb::Val(Text(key))); }
  bool IsOne(std::string_view key) const { return Number(key) == 1; }

 private:
  SettingsFile& file_;
};

}  // namespace

SlipSettings SlipSettings::Read(SettingsFile& file) {
  const Reader reader(file);
  SlipSettings settings;
  settings.port = reader.Text("port");
  settings.internalprintnoofrecords = reader.Number("internalprintnoofrecords");
  settings.pagewidth = reader.Number("pagewidth");
  settings.SlNo = reader.Number("SlNo");
  settings.Qty = reader.Number("Qty");
  settings.Unit = reader.Number("Unit");
  settings.Rate = reader.Number("Rate");
  settings.Amount = reader.Number("Amount");
  // Read and not used: the suite's other slips use them, and a file without them gets the same message here as there.
  for (const std::string_view unused : {"ExtraLine", "EndPage", "Seperator"}) reader.Number(unused);
  settings.printheadertopline = reader.IsOne("printheadertopline");
  settings.printheaderbottomline = reader.IsOne("printheaderbottomline");
  settings.printdetailbottomline = reader.IsOne("printdetailbottomline");
  settings.spaceinlinecode = reader.Number("spaceinlinecode");
  settings.printfooterineachpage = reader.IsOne("printfooterineachpage");
  settings.showcostintrans = reader.IsOne("showcostintrans");
  settings.showspintransrep = reader.IsOne("showspintransrep");
  settings.showitemcodeinprint = reader.Number("showitemcodeinprint") != 0;
  settings.printinsavedorder = reader.IsOne("printinsavedorder");
  settings.showtotalqty = reader.IsOne("showtotalqty");
  return settings;
}

SlipHeaderSettings SlipHeaderSettings::Read(SettingsFile& file) {
  const Reader reader(file);
  SlipHeaderSettings settings;
  settings.headerleftmargin = reader.Number("headerleftmargin");
  settings.linesafterheader = reader.IsOne("linesafterheader");
  settings.linesafteraddress = reader.IsOne("linesafteraddress");
  settings.totalheadcount = reader.Number("totalheadcount");
  settings.printtransnameabove = reader.Number("printtransnameabove");
  settings.linetoskipfirst = reader.Number("linetoskipfirst");
  settings.PrintCompanyName = reader.IsOne("PrintCompanyName");
  settings.printadd[0] = reader.IsOne("printadd1");
  settings.printadd[1] = reader.IsOne("printadd2");
  settings.printadd[2] = reader.IsOne("printadd3");
  return settings;
}

}  // namespace goods
