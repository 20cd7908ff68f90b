#include <gtest/gtest.h>

#include "suite/engine/objects/database.h"
#include "suite/helpers/register_helpers.h"
#include "tests/suite/helpers/helper_form.h"

namespace {

TEST(DatabaseHelper, ReadsSingleValuesWithAFilterInTheTableOrBesideIt) {
  HelperShop shop;
  const late::ObjectPtr db = shop.Helper("shopcommon.CLSCOMMONDB");
  db->Put("strTableName", "lousers where userid=1 and ShopID=1");
  EXPECT_EQ(db->Call("fnReturnField", {"username"}).ToText(), "Nora Halvard");
  db->Put("strTableName", "aShops");
  EXPECT_TRUE(db->Call("fnReturnField", {"RequestForNonShopItem", "ShopID=1"}).ToBool());
  EXPECT_TRUE(db->Call("fnReturnField", {"shopname", "ShopID=99"}).IsNull());
}

TEST(DatabaseHelper, TheNextNumberFollowsTheGreatestOfItsTable) {
  HelperShop shop;
  const late::ObjectPtr db = shop.Helper("ShopCommon.clsCommonDB");
  db->Put("strTableName", "mosGoodsRequestHeader where grhshopid = 2");
  EXPECT_EQ(db->Call("fnGetNextMaxNo", {"grhrequestid"}).ToInt32(), 9);
  db->Put("strTableName", "mosGoodsRequestHeader where grhshopid = 99");
  EXPECT_EQ(db->Call("fnGetNextMaxNo", {"grhrequestid"}).ToInt32(), 1);
}

TEST(DatabaseHelper, FillsAListAndLeavesTheColumnsThatItIsToldToSkip) {
  HelperShop shop;
  const late::ObjectPtr db = shop.Helper("ShopCommon.clsCommonDB");
  shop.form->lvwPacks.Add("left over");
  db->Call("PopulateListview", {shop.form->lvwPacks.AsObject(), " aPackingType ", " packingtypeid<=2 ", " packingtypeid ",
                                " PackingTypeName ", "skip"});
  ASSERT_EQ(shop.form->lvwPacks.Count(), 2);
  EXPECT_EQ(shop.form->lvwPacks.Item(1).Text(), "1");
  EXPECT_FALSE(shop.form->lvwPacks.Item(1).SubItem(1).empty());
  EXPECT_EQ(shop.form->lvwPacks.Item(1).SubItem(2), "");
  db->Call("fnDeleteListview", {shop.form->lvwPacks.AsObject(), 1, 2});
  ASSERT_EQ(shop.form->lvwPacks.Count(), 1);
  EXPECT_EQ(shop.form->lvwPacks.Item(1).Text(), "2");
}

TEST(GeneralHelper, LetsOnlyQuantitiesBeTyped) {
  struct Case {
    const char* before;
    int start, length;
    char typed;
    bool passes;
  };
  HelperShop shop;
  const late::ObjectPtr gen = shop.Helper("ShopCommon.clsCommonGen");
  controls::TextBox& box = shop.form->txtQuantity;
  for (const Case& key : {Case{"", 0, 0, '7', true},
                          {"7", 1, 0, 'x', false},
                          {"7", 1, 0, '-', false},
                          {"7", 1, 0, '.', true},
                          {"7.1", 3, 0, '.', false},
                          {"7.125", 5, 0, '0', false},
                          {"7.125", 0, 0, '1', true},
                          {"7.125", 4, 1, '9', true},
                          {"123456789012345678", 18, 0, '9', false},
                          {"123456789012345678", 0, 18, '9', true},
                          {"7.125", 5, 0, '\b', true}}) {
    box.SetText(key.before);
    box.SetSelStart(key.start);
    box.SetSelLength(key.length);
    late::Value code(static_cast<std::int16_t>(key.typed));
    gen->Call("TextValidateNum", {box.AsObject(), late::Value::ByRef(code), std::int16_t{18}, std::int16_t{3}});
    EXPECT_EQ(code.ToInt16() != 0, key.passes) << key.typed << " into " << key.before << " at " << key.start;
  }
}

TEST(GeneralHelper, SelectsComboEntriesByTextOrValueAndLeavesStrangersAlone) {
  HelperShop shop;
  const late::ObjectPtr gen = shop.Helper("ShopCommon.clsCommonGen");
  controls::ComboBox& combo = shop.form->cboItem;
  combo.AddItem("Frying pan", 11);
  combo.AddItem("Stock pot", 12);
  gen->Call("SelectComboItemByName", {combo.AsObject(), " stock POT "});
  EXPECT_EQ(combo.ListIndex(), 1);
  gen->Call("SelectComboItemByValue", {combo.AsObject(), 11});
  EXPECT_EQ(combo.ListIndex(), 0);
  gen->Call("SelectComboItemByName", {combo.AsObject(), "no such thing"});
  EXPECT_EQ(combo.ListIndex(), 0);
}

TEST(FormColours, ReallyColourTheForm) {
  HelperShop shop;
  const controls::Color plain = shop.form->BackColor();
  shop.Helper("Theme.clsFormcolor")->Call("Applyformcolor", {shop.form->shared_from_this()});
  EXPECT_NE(shop.form->BackColor(), plain);
  EXPECT_EQ(shop.form->lblName.BackColor(), shop.form->BackColor());
  EXPECT_NE(shop.form->txtQuantity.BackColor(), shop.form->BackColor());
  // A fixed background with the system's text could not be read where that is light.
  const auto isTheSystems = [](controls::Color color) { return (color & 0x80000000u) != 0; };
  for (const controls::Control* control : shop.form->Controls()) {
    EXPECT_EQ(isTheSystems(control->BackColor()), isTheSystems(control->ForeColor())) << control->Name();
  }
}

TEST(FormColours, StepBackWhereThePersonWantsHighContrast) {
  struct Contrasted : support::ScriptedDesktop {
    bool IsHighContrast() const override { return true; }
  };
  Contrasted desktop;
  support::TestWorkstation workstation;
  late::ClassRegistry registry;
  suite::RegisterHelpers(registry,
                         std::make_shared<suite::Surroundings>(suite::Surroundings{desktop, workstation, registry, {}}));
  const auto form = std::make_shared<HelperForm>(desktop);
  form->Load();
  const controls::Color plain = form->BackColor();
  registry.Create("Theme.clsFormcolor")->Call("Applyformcolor", {form->shared_from_this()});
  EXPECT_EQ(form->BackColor(), plain);
  EXPECT_EQ(form->txtQuantity.BackColor(), controls::kWindowBackground);
  EXPECT_EQ(form->txtQuantity.ForeColor(), controls::kWindowText);
}

TEST(Auditing, OneRecordAnActionWithWhatChangedInTheForm) {
  HelperShop shop;
  const late::ObjectPtr audit = shop.registry.Create("Audit.clsUserAuditing");
  audit->Call("OpenObject", {shop.session.gAdoCon.Object(), 1, 2, 3, 1503, vb::MakeDate(2024, 3, 15, 9)});
  shop.form->txtQuantity.SetText("12");
  audit->Call("SaveInToTag", {shop.form->shared_from_this()});
  shop.form->txtQuantity.SetText("15");
  audit->Put("LoggedTime", vb::MakeDate(2024, 3, 15, 9, 30));
  late::Value mode("E");
  audit->Call("SaveUserAuditingInfo", {7, "GR/7's", true, late::Value::ByRef(mode), shop.form->shared_from_this()});
  audit->Call("SaveUserAuditingInfo", {"8", "GR/8", true, "D"});
  EXPECT_EQ(shop.Rows("select companyid,shopid,userid,interfaceid,loggedtime,recordid,recordno,action,changes from smpUserAudit"),
            (std::vector<std::string>{"1|2|3|1503|2024-03-15 09:30:00|7|GR/7's|E|txtQuantity: 12 -> 15\n",
                                      "1|2|3|1503|2024-03-15 09:30:00|8|GR/8|D|"}));
}

/// Another workstation, which makes a table at the moment that somebody else is about to.
struct QuickerWorkstation : suite::StatementObserver {
  explicit QuickerWorkstation(suite::Database& shop) : database(shop) {}
  void Statement(std::string_view text) override {
    if (text.starts_with("create table")) database.RunScript(text);
  }
  suite::Database& database;
};

TEST(Auditing, ATableThatAnotherWorkstationMadeMeanwhileIsUsed) {
  HelperShop shop;
  QuickerWorkstation quicker(*shop.database);
  const late::ObjectPtr audit = shop.registry.Create("Audit.clsUserAuditing");
  audit->Call("OpenObject", {shop.database->Connect(&quicker), 1, 2, 3, 1503, vb::MakeDate(2024, 3, 15, 9)});
  audit->Call("SaveUserAuditingInfo", {"8", "GR/8", true, "D"});
  EXPECT_EQ(shop.Rows("select recordno from smpUserAudit"), std::vector<std::string>{"GR/8"});
}

TEST(GridSettings, WidthsComeBackForTheSameUserOnly) {
  HelperShop shop;
  shop.Helper("ShopCommon.clsCommonDB");
  const late::ObjectPtr settings = shop.registry.Create("GridPrefs.clsMasterGridSetting");
  controls::FlexGrid& grid = shop.form->flexMaster;
  const auto call = [&](const char* member, std::int16_t user) { settings->Call(member, {user, 1, 1503, grid.AsObject()}); };
  call("fnGridSettings", 1);
  grid.SetColWidth(2, 4321);
  call("fnSaveGridSettings", 1);
  grid.SetColWidth(2, 1000);
  call("fnGridSettings", 2);
  EXPECT_EQ(grid.ColWidth(2), 1000);
  call("fnGridSettings", 1);
  EXPECT_EQ(grid.ColWidth(2), 4321);
}

TEST(ErrorLog, SpeaksAndAppends) {
  HelperShop shop;
  const late::ObjectPtr log = shop.registry.Create("ErrLog.ErrorDetails");
  shop.desktop.ExpectMessage("Connection\nlost\n(frmRequest cmdOK_Click, 3704)", controls::Answer::Ok, controls::kExclamation);
  EXPECT_TRUE(
      log->Call("ErrorTrack", {"frmRequest ", "Nora", "cmdOK_Click", 3704, "ADO", "Connection\nlost", "N", true}).ToBool());
  EXPECT_EQ(shop.desktop.messages.back().title, "Error");
  EXPECT_EQ(shop.workstation.files["C:\\shop\\errors.log"],
            "2024-03-15 10:30:05\tNora\tfrmRequest\tcmdOK_Click\t3704\tADO\tConnection lost\tN\r\n");
}

TEST(ErrorLog, IsKeptInTheTemporaryFolderWhereTheApplicationsMayNotBeWritten) {
  HelperShop shop;
  const late::ObjectPtr log = shop.registry.Create("ErrLog.ErrorDetails");
  const auto track = [&] {
    shop.desktop.ExpectMessage("Lost\n(frmRequest cmdOK_Click, 5)");
    log->Call("ErrorTrack", {"frmRequest ", "Nora", "cmdOK_Click", 5, "", "Lost", "N", true});
    shop.desktop.Verify();
  };
  shop.workstation.refusedPaths = {"C:\\shop\\errors.log"};
  track();
  EXPECT_FALSE(shop.workstation.files.contains("C:\\shop\\errors.log"));
  EXPECT_EQ(shop.workstation.files["C:\\temp\\errors.log"],
            "2024-03-15 10:30:05\tNora\tfrmRequest\tcmdOK_Click\t5\t\tLost\tN\r\n");
  shop.workstation.refusedPaths.insert("C:\\temp\\errors.log");
  track();
}

}  // namespace
