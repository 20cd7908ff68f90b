#pragma once

#include <map>
#include <string>

#include "src/printing/request_slip.h"
#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

namespace support {

/// A small shop with one request to print, and a settings file that says every key, so that a slip can be drawn by hand.
class SlipShop : public Shop {
 public:
  SlipShop() : Shop(Stock::Empty), errors(ErrorNotes::Install(registry)) {
    Run(R"(insert into acompanymaster (companyid,name,Address1,Address2,Address3) values (1,'Harbour Stores','1 Quay Street','Dock 4','Old Port')
insert into acity (cityid,CityName) values (1,'Porto')
insert into acountrymaster (countryid,CountryName) values (1,'Portugal')
insert into adepartmentmaster (departmentid,departmentname) values (7,'Grocery')
insert into ashops (ShopID,shopname,address,telephoneno,faxno,cityid,countryid,DepartmentID,RevisedCostPricePercent) values (1,'Quay Shop','12 Front Row','555-100','555-101',1,1,7,10)
insert into lousers (UserID,ShopID,UserName) values (1,1,'Ana Lima')
insert into aunit (UnitId,UnitCode) values (1,'Bag')
insert into aunit (UnitId,UnitCode) values (2,'Pc')
insert into mosGoodsRequestHeader (GRHrequestID,GRHshopID,GRHrequestno,GRHrequestdate,GRHremarks) values (5,1,'GR/5','20240315','For the weekend'))");
    AddItem(11, "R25", "Rice 25 kg", 1, "10.05");
    AddItem(12, "TEA", "Green tea", 2, "3.2");
  }

  void AddItem(int id, const std::string& code, const std::string& description, int unit, const std::string& rate) {
    const std::string key = std::to_string(id);
    Run("insert into aitem (ItemId,ItemCode,itemtype,active,forsales,UnitsId,itemrate) values (" + key + ",'" + code +
        "','N',1,1," + std::to_string(unit) + "," + rate + ")");
    Run("insert into smpItemDescription (ItemID,ItemDescription,code) values (" + key + ",'" + description + "','" + code + "')");
  }
  void AddLine(int line, int item, const std::string& quantity) {
    Run("insert into mosGoodsRequestDetail (GRDDetailid,GRDshopID,GRDrequestID,GRDitemID,GRDgoodQty) values (" +
        std::to_string(line) + ",1,5," + std::to_string(item) + "," + quantity + ")");
  }

  /// Every shipped key: all switches off on a page of 40, but for those named.
  void Settings(std::map<std::string, std::string> settings) {
    settings.insert({{"port", "LPT1"},
                     {"pagewidth", "40"},
                     {"SlNo", "5"},
                     {"Qty", "10"},
                     {"Unit", "6"},
                     {"Rate", "9"},
                     {"Amount", "11"},
                     {"printtoscreen", "1"}});
    for (const std::string& key : workstation.ShippedSettings()) settings.try_emplace(key, "0");
    workstation.WriteSettings(settings);
  }

  void WriteSlip(goods::SlipDestination destination) {
    goods::SettingsFile settings(session);
    goods::RequestSlip(session).PrintBill(5, destination, settings);
  }
  std::string PrintToScreen() {
    WriteSlip(goods::SlipDestination::Screen);
    return workstation.files["C:\\Reqtohq.txt"];
  }
  std::string PrintToPort() {
    WriteSlip(goods::SlipDestination::Printer);
    return workstation.files["LPT1"];
  }

  std::shared_ptr<ErrorNotes> errors;
};

/// A slip as it is drawn in a test: the first line break is the drawing's own, every line ends with CR LF.
inline std::string Drawn(std::string_view picture) {
  std::string slip;
  for (std::size_t start = 1; start < picture.size();) {
    const std::size_t end = picture.find('\n', start);
    slip.append(picture.substr(start, end - start)).append("\r\n");
    start = end + 1;
  }
  return slip;
}

}  // namespace support
