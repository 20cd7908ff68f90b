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
    return goods::SettingsFile(shop.session).FileCode(key);
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

TEST_F(SettingsReader, AFileThatIsNotThereIsToldAndReportedOnceForAllItsKeys) {
  goods::SettingsFile settings(shop.session);
  EXPECT_TRUE(shop.desktop.messages.empty());
  shop.desktop.ExpectMessage(" Settings.ini file not found", controls::Answer::Ok, controls::kCritical);
  for (const char* key : {"printer", "pagewidth", "printer"}) EXPECT_EQ("", settings.FileCode(key));
  EXPECT_EQ(std::vector<std::string>{"basGoodsPurchase|FileCode |53|"}, errors->lines);
}

TEST_F(SettingsReader, UnicodeFilesOfAnyEditorAreRead) {
  using namespace std::string_literals;
  EXPECT_EQ("é", Read("größe", "\xEF\xBB\xBFGRÖßE :=é\r\n"));
  EXPECT_EQ("4", Read("ä", "\xFF\xFE\xE4\0 \0:\0=\0004\0\r\0\n\0"s));
  EXPECT_EQ("4", Read("ä", "\xFE\xFF\0\xE4\0 \0:\0=\0004"s));
}

TEST_F(SettingsReader, OptionalSettingsAreReadWithoutAWord) {
  EXPECT_EQ("pdsodbc.dll", goods::SettingsFile(shop.session).QuietFileCode("reportdriver", "pdsodbc.dll"));
  shop.workstation.files[kPath] = "reportuser :=clerk\r\nreportpassword :=NotFound\r\n";
  const goods::SettingsFile settings(shop.session);
  EXPECT_EQ("clerk", settings.QuietFileCode("ReportUser", "sa"));
  EXPECT_EQ("shipped", settings.QuietFileCode("reportpassword", "shipped"));
  EXPECT_EQ("sales", settings.QuietFileCode("reportdatabase", "sales"));
  EXPECT_TRUE(errors->lines.empty());
}

}  // namespace
