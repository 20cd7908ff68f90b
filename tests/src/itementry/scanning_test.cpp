#include "tests/src/itementry/item_entry_shop.h"

namespace itementry_test {
namespace {

using support::Press;

/// F8 in item entry. A dozen of KT1012 has the barcode DOZEN.
class Scanning : public ItemEntryShop {
 protected:
  Scanning() {
    shop.Run(
        "update aItemPackingDetail set packingbarcode='DOZEN' where itemid=12 and packingtypeid="
        "(select packingtypeid from aPackingType where PackingTypeName='Dozen')");
  }
  void AddScanning(Work work) {
    Add([&] {
      Press(form->txtitemcode, "F8");
      EXPECT_EQ("Goods Request Details - scanning", form->Caption());
      work();
    });
  }
  /// The list of scans as "code item amount total" after each other.
  std::string Listed() {
    std::string text;
    for (int scan = 1; scan <= form->lvwscans.Count(); ++scan) {
      const controls::ListItem& entry = form->lvwscans.Item(scan);
      text += (scan > 1 ? "; " : "") + entry.Text() + " " + entry.SubItem(1) + " " + entry.SubItem(2) + " " + entry.SubItem(3);
    }
    return text;
  }
  std::string Quantities() {
    std::string text;
    for (int line = 1; line <= LineCount(); ++line) {
      const controls::ListItem& item = editor->lvwrequest.Item(line);
      text += item.Text() + ":" + item.SubItem(goods::kLineItemCode) + "=" + item.SubItem(goods::kLineQty) + " ";
    }
    return text;
  }
};

TEST_F(Scanning, EachCodeIsALineAtOnceAndOnceMoreAddsToIt) {
  AddScanning([&] {
    Scan("KT1001");
    Scan("DOZEN");
    Scan("KT1001");
    EXPECT_EQ("1:KT1001=2.000 2:DOZEN=12.000 ", Quantities());
    EXPECT_EQ("KT1001 Frying pan 20 cm 1 2; DOZEN " + editor->lvwrequest.Item(2).SubItem(goods::kLineItemName) +
                  " 12 12; KT1001 Frying pan 20 cm 1 1",
              Listed());
    EXPECT_EQ("", form->txtitemcode.Text());
    EXPECT_TRUE(form->txtitemcode.HasFocus());
    EXPECT_TRUE(IsMarkedChanged());
    EXPECT_FALSE(form->lvwpacktype.Visible());
    Press(form->txtitemcode, "Esc");
    EXPECT_EQ("1:KT1001=1.000 2:DOZEN=12.000 ", Quantities());
    Press(form->txtitemcode, "Esc");
    Press(form->txtitemcode, "Esc");
    EXPECT_EQ("|", Quantities() + "|" + Listed());
    Press(form->txtitemcode, "Esc");
    EXPECT_FALSE(form->IsLoaded()) << "with no scan left it closes";
  });
}

TEST_F(Scanning, ARefusalSoundsTheAlarmAndWaitsForNoAnswer) {
  shop.Run(
      "update aShops set MaxRequestItemsToHQ=1 where shopid=1;update aPackingTypeCapacityDetail set quantity=2.5 where "
      "packingtypeid=(select packingtypeid from aPackingType where PackingTypeName='Dozen')");
  session.gBlnIntegerQuantity = true;
  GivenLine(1, "999999999999998.000");
  AddScanning([&] {
    const std::vector<std::pair<std::string, std::string>> refused = {{"nothing", "Scan valid barcode "},
                                                                      {"DOZEN", "Only Integer Quantity is allowed"},
                                                                      {"KT1002", "No more items can be Added in this request"}};
    int alarms = shop.desktop.alarms;
    for (const auto& [code, reason] : refused) {
      Scan(code);
      EXPECT_EQ("Line 2, new - " + code + ": " + reason, form->lblStatus.Caption());
      EXPECT_EQ(code, form->txtitemcode.SelText());
      EXPECT_EQ(++alarms, shop.desktop.alarms);
    }
    Scan("KT1001");
    Scan("KT1001");
    EXPECT_EQ("Line 2, new - KT1001: Quantity is too large: at most 15 digits before the decimal point",
              form->lblStatus.Caption());
    EXPECT_EQ("1:KT1001=999999999999999.000 ", Quantities());
    shop.log.FailAt(1);
    ExpectError("Connection broken by the test", "txtitemcode_KeyPress", -2147217900);
    Scan("KT1001");
    EXPECT_EQ("KT1001", form->txtitemcode.SelText());
    shop.desktop.Verify();
  });
}

TEST_F(Scanning, TwoHundredScansATenthOfThemWrong) {
  AddScanning([&] {
    shop.log.Clear();
    support::Enter(form->txtitemcode, "KT1005");
    const auto statements = [&](auto work) {
      const std::size_t before = shop.log.lines.size();
      work();
      return shop.log.lines.size() - before;
    };
    std::map<std::string, int> model;
    for (int scan = 0; scan < 200; ++scan) {
      const bool wrong = scan % 10 == 7;
      const std::string code = wrong ? "WRONG" + std::to_string(scan) : "KT10" + std::to_string(10 + scan * 7 % 9);
      const std::size_t sent = statements([&] { Scan(code); });
      EXPECT_LE(sent, 5u + 2u) << code << ": the shop's type, three look-ups, repeated codes, and two";
      if (!wrong) ++model[code];
    }
    std::map<std::string, int> lines;
    for (int line = 1; line <= LineCount(); ++line) {
      const controls::ListItem& item = editor->lvwrequest.Item(line);
      lines[item.SubItem(goods::kLineItemCode)] = std::stoi(item.SubItem(goods::kLineQty));
    }
    EXPECT_EQ(model, lines);
    EXPECT_EQ(8, form->lvwscans.Count());
    for (int scan = 0; scan < 180; ++scan) {
      form->txtitemcode.SetText("");
      Press(form->txtitemcode, "Esc");
    }
    EXPECT_EQ(0, LineCount());
  });
}

TEST_F(Scanning, TheQuantityBoxTakesTheLineWithPlus) {
  Add([&] {
    for (const char* key : {"+", "Ctrl+Enter"}) {
      Scan(*key == '+' ? "KT1001" : "KT1002");
      support::Enter(form->txtQuantity, "7");
      Press(form->txtQuantity, key);
      EXPECT_TRUE(form->txtitemcode.HasFocus());
    }
    EXPECT_EQ("1:KT1001=7.000 2:KT1002=7.000 ", Quantities());
    EXPECT_EQ("Goods Request Details", form->Caption());
  });
}

}  // namespace
}  // namespace itementry_test
