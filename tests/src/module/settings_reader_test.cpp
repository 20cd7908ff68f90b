#include "src/module/settings_reader.h"

#include <gtest/gtest.h>

#include "tests/support/error_notes.h"
#include "tests/support/shop_fixture.h"

namespace {

constexpr const char* kPath = "C:\\shop\\ShopSetting.txt";

class SettingsReader : public testing::Test {
 protected:
  std::string Read(std::string_view key, const std::string& file) {
    shop.workstation.files[kPath] = file;
    return goods::FileCode(shop.session, key, goods::SettingsPath(shop.session));
  }
  void ExpectNoSuchKey(const std::string& key) {
    shop.desktop.ExpectMessage(key + "  invalid parameter in Settings.ini file", controls::Answer::Ok, controls::kCritical);
  }

  support::Shop shop{support::Shop::Stock::Empty};
  std::shared_ptr<support::ErrorNotes> errors = support::ErrorNotes::Install(shop.registry);
};

TEST_F(SettingsReader, GivesTheValueOfTheFirstLineWithTheKeyAsItStands) {
  struct Case {
    const char* key;
    const char* file;
    const char* value;
  };
  const Case cases[] = {
      {"printer", "printer :=LPT1\r\n", "LPT1"},
      {"PRINTER", "page :=1\r\nPrinter := lpt2 \r\n", " lpt2 "},
      {"printer", "no separator here\r\n:=\r\n=:\r\n\r\nprinter :=LPT3", "LPT3"},
      {"printer", "printer :=first\r\nprinter :=second\r\n", "first"},
      {"width", "width\t:=80", "80"},
      {"formula", "formula :=a:=b", "a:=b"},
      {"größe", "GRÖSSE :=no\r\nGRÖßE :=A4", "A4"},
      {"printer", "printer :=\r\n", ""},
      {"printer", "printer :=NOTFOUND\r\n", ""},
  };
  for (const Case& tested : cases) EXPECT_EQ(tested.value, Read(tested.key, tested.file)) << tested.file;
  EXPECT_TRUE(shop.desktop.messages.empty());
}

TEST_F(SettingsReader, AKeyThatNoLineCarriesIsToldOnceAndEmpty) {
  for (const char* file : {"", "printer:=LPT1\r\n", "xprinter :=LPT1\r\n", "printer  :=LPT1\r\n", "printer = LPT1\r\n"}) {
    ExpectNoSuchKey("printer");
    EXPECT_EQ("", Read("printer", file)) << file;
    shop.desktop.Verify();
    EXPECT_EQ("Shop", shop.desktop.messages.back().title);
  }
  EXPECT_TRUE(errors->lines.empty());
}

TEST_F(SettingsReader, AFileThatIsNotThereIsToldAndReported) {
  shop.desktop.ExpectMessage(" Settings.ini file not found", controls::Answer::Ok, controls::kCritical);
  EXPECT_EQ("", goods::FileCode(shop.session, "printer", "C:\\elsewhere.txt"));
  EXPECT_EQ(std::vector<std::string>{"basGoodsPurchase|FileCode |53|"}, errors->lines);
}

TEST_F(SettingsReader, OptionalSettingsAreReadWithoutAWord) {
  EXPECT_EQ("pdsodbc.dll", goods::QuietFileCode(shop.session, "reportdriver", kPath, "pdsodbc.dll"));
  shop.workstation.files[kPath] = "reportuser :=clerk\r\nreportpassword :=NotFound\r\n";
  EXPECT_EQ("clerk", goods::QuietFileCode(shop.session, "ReportUser", kPath, "sa"));
  EXPECT_EQ("shipped", goods::QuietFileCode(shop.session, "reportpassword", kPath, "shipped"));
  EXPECT_EQ("sales", goods::QuietFileCode(shop.session, "reportdatabase", kPath, "sales"));
  EXPECT_TRUE(errors->lines.empty());
}

}  // namespace
