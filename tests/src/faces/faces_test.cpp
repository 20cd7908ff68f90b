#include <gtest/gtest.h>

#include "base/controls/tab_control.h"
#include "src/faces/common_db.h"
#include "src/faces/common_gen.h"
#include "src/faces/error_log.h"
#include "src/faces/grid_settings.h"
#include "src/faces/item_fetch.h"
#include "src/faces/report_server.h"
#include "tests/suite/helpers/helper_form.h"
#include "tests/support/report_notes.h"

namespace {

using namespace goods;

/// One member of a face, called on the component that the shop has registered.
struct MemberCall {
  const char* name;
  std::function<void()> call;
};

/// A misspelled member raises error 438, a wrong count of arguments 449 or 450.
void ExpectAllFound(const std::vector<MemberCall>& members) {
  for (const MemberCall& member : members) EXPECT_NO_THROW(member.call()) << member.name;
}

TEST(Faces, EveryMemberIsFoundInItsComponent) {
  HelperShop shop;
  shop.LogOn();
  HelperForm& form = *shop.form;
  controls::TabControl tabs(form, "tabs");
  CommonDb db(shop.registry, shop.session.gAdoCon);
  db.strTableName("lousers");
  form.lvwPacks.Add("1");
  CommonGen gen(shop.registry);
  int key = 'x';
  UserAuditing& auditing = shop.session.gObjUserAuditing;  // opened by OpenObject
  GridSettings settings(shop.registry);
  const GridOwner owner{1, 1, 1503};
  ExpectAllFound({
      {"fnReturnField", [&] { db.fnReturnField("username"); }},
      {"fnReturnField by a condition", [&] { EXPECT_EQ(db.fnReturnField("username", "userid=1").ToText(), "Nora Halvard"); }},
      {"fnGetNextMaxNo", [&] { EXPECT_GT(db.fnGetNextMaxNo("userid"), 1); }},
      {"fnDeleteListview", [&] { db.fnDeleteListview(form.lvwPacks, 1, 1); }},
      {"PopulateListview", [&] { db.PopulateListview(form.lvwPacks, "aUnit", "1=1", "UnitId", "UnitCode", "skip"); }},
      {"strTableName", [&] { db.strTableName("aShopItemDetail"); }},
      {"fnUpdateSelectedRecord", [&] { db.fnUpdateSelectedRecord("ItemId = 1", "RequestRaised", 1); }},
      {"SelectComboItemByName", [&] { gen.SelectComboItemByName(form.cboItem, "pot"); }},
      {"SelectComboItemByValue", [&] { gen.SelectComboItemByValue(form.cboItem, 1); }},
      {"TextValidateNum", [&] { gen.TextValidateNum(form.txtQuantity, key, 18, 3); }},
      {"Applyformcolor", [&] { shop.session.gObjFormColor.Applyformcolor(form); }},
      {"Applytabcolor", [&] { shop.session.gObjFormColor.Applytabcolor(tabs); }},
      {"LoggedTime", [&] { auditing.LoggedTime(shop.workstation.now); }},
      {"SaveInToTag", [&] { auditing.SaveInToTag(form); }},
      {"SaveUserAuditingInfo", [&] { auditing.SaveUserAuditingInfo("7", "GR7", "D"); }},
      {"SaveUserAuditingInfo with a form", [&] { auditing.SaveUserAuditingInfo("7", "GR7", "E", form); }},
      {"fnGridSettings", [&] { settings.fnGridSettings(owner, form.flexMaster); }},
      {"fnSaveGridSettings", [&] { settings.fnSaveGridSettings(owner, form.flexMaster); }},
  });
  EXPECT_EQ(key, 0) << "written back through the reference";
  EXPECT_EQ(shop.Row("select max(colno) from smpGridSettings"), "3") << "called only where the component has it";
}

TEST(Faces, TheErrorLogSaysWhereAndInWhichMode) {
  HelperShop shop;
  shop.desktop.ExpectMessage("Lost\n(frmRequest cmdOK_Click, 5)");
  ErrorLog(shop.registry).ErrorTrack("frmRequest ", "Nora", "cmdOK_Click", vb::RunTimeError(5, "Lost", "ADO"), "E");
  EXPECT_EQ(shop.workstation.files["C:\\shop\\errors.log"],
            "2024-03-15 10:30:05\tNora\tfrmRequest\tcmdOK_Click\t5\tADO\tLost\tE\r\n");
}

TEST(Faces, EveryMemberOfTheItemLookupIsFound) {
  HelperShop shop;
  ItemFetch fetch(shop.registry);
  const std::vector<FetchColumn> columns = {{"itemid", "Item ID", 0}, {"itemcode", "Item Code", 2000}};
  late::Value rows;
  ExpectAllFound({
      {"adocon", [&] { fetch.adocon(shop.session.gAdoCon); }},
      {"strMsgboxTitle", [&] { fetch.strMsgboxTitle("Shop"); }},
      {"lngUserID", [&] { fetch.lngUserID(1); }},
      {"strQuery", [&] { fetch.strQuery("select itemid,itemcode from aitem"); }},
      {"setRecordSet", [&] { fetch.setRecordSet(rows); }},
      {"setFieldNames", [&] { fetch.setFieldNames(columns); }},
      {"setFieldCaptions", [&] { fetch.setFieldCaptions(columns); }},
      {"setFieldWidths", [&] { fetch.setFieldWidths(columns); }},
      {"setDefaultFetchField", [&] { fetch.setDefaultFetchField(1); }},
      {"setInterfaceCaption", [&] { fetch.setInterfaceCaption("Items"); }},
      {"setShopId", [&] { fetch.setShopId(1); }},
      {"setFetchType", [&] { fetch.setFetchType("I"); }},
      {"setLocationType", [&] { fetch.setLocationType("S"); }},
      {"PreserveData", [&] { fetch.PreserveData(true); }},
      {"InterfaceId", [&] { fetch.InterfaceId(1503); }},
      {"DataIdentifier", [&] { fetch.DataIdentifier("01"); }},
      {"ForcedRefresh", [&] { fetch.ForcedRefresh(false); }},
  });
  shop.desktop.ExpectForm("frmLookup", [](controls::Form& form) { EXPECT_EQ("Items", form.Caption()); });
  fetch.Show();
  EXPECT_TRUE(fetch.getCancelledStatus());
}

TEST(Faces, EveryMemberOfTheReportServerIsSpelledAsItHasIt) {
  late::ClassRegistry registry;
  const auto calls = std::make_shared<std::vector<std::string>>();
  registry.Register("Crystal.CRPE.Application", [calls] { return std::make_shared<support::ReportNotes>(calls); });
  ReportServer server(registry);
  server.LogOnServer({"driver", "source", "database", "user", "password"});
  Report report = server.OpenReport("stock.rpt");
  report.SetParameterField(2, 7.5);
  PrintWindowOptions options = report.PrintWindowOptions();
  options.HasPrintButton(true);
  options.HasPrintSetupButton(false);
  options.HasNavigationControls(true);
  options.HasZoomControl(false);
  report.Preview("Stock", 1);
  EXPECT_EQ(*calls, (std::vector<std::string>{
                        "LogOnServer|driver|source|database|user|password", "OpenReport|stock.rpt",
                        "ParameterFields.Item(2).SetCurrentValue|7.5", "PrintWindowOptions.HasPrintButton=True",
                        "PrintWindowOptions.HasPrintSetupButton=False", "PrintWindowOptions.HasNavigationControls=True",
                        "PrintWindowOptions.HasZoomControl=False", "Preview|Stock|0|0|0|0|1"}));
}

TEST(Faces, WithoutAComponentEveryMemberRaisesError91) {
  try {
    CommonDb().strTableName("lousers");
    ADD_FAILURE();
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(91, error.Number());
  }
}

}  // namespace
