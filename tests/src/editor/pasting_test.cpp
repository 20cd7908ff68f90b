#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using support::Press;

/// Ctrl+V in the item list.
class Pasting : public EditorShop {
 protected:
  Pasting() {
    shop.Run("update aItem set forsales=1");
    Limit(0);
  }
  void Limit(int lines) { shop.Run("update aShops set MaxRequestItemsToHQ=" + std::to_string(lines)); }
  void Paste(const std::string& table, const std::string& outcome) {
    desktop.PutOnClipboard(table);
    desktop.ExpectMessage(outcome, Answer::Ok, controls::kInformation);
    Press(editor->lvwrequest, "Ctrl+V");
    desktop.Verify();
  }
};

TEST_F(Pasting, LinesComeAsIfTheyHadBeenEntered) {
  New([&] {
    Paste("POT\t2,5\tblue\r\nCUP\t4\r\n", "2 lines added.");
    EXPECT_EQ((std::vector<std::string>{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines());
    const goods::RequestLine pot = editor->Entered().lines.front();
    EXPECT_EQ("Tea pot blue pcs", pot.itemName + " " + pot.remarks + " " + pot.unit);
    EXPECT_EQ("P-1", editor->Entered().lines.back().partCode);
    ExpectNoSaving();
    support::Click(editor->cmdCancel);
  });
}

TEST_F(Pasting, RefusedLinesAreNamedAndComeBackOnTheClipboard) {
  session.gBlnIntegerQuantity = true;
  Limit(3);
  New([&] {
    AddLine(3, "1.000");
    Paste("Code\tQty\nPOT\t2.5\tblue\nTEA\t1\nNIX\t1\nOLD\t1\nCUP\t4.000\nPOT\t0\nPOT\tx\nPOT\t3\nJAR\t5\n",
          "2 lines added.\r\n7 lines refused, ready on the clipboard to be mended and pasted again:\r\n"
          "\r\nPOT, 2.5: Only Integer Quantity is allowed\r\nTEA, 1: Tea Already Exists\r\nNIX, 1: Scan valid barcode"
          "\r\nOLD, 1: Scan valid barcode\r\nPOT, 0: Enter quantity\r\nPOT, x: Enter quantity with at most three decimals"
          "\r\nJAR, 5: No more items can be Added in this request");
    EXPECT_EQ("Code\tQty\r\nPOT\t2.5\tblue\r\nTEA\t1\r\nNIX\t1\r\nOLD\t1\r\nPOT\t0\r\nPOT\tx\r\nJAR\t5\r\n",
              desktop.ClipboardText());
    EXPECT_EQ((std::vector<std::string>{"1|TEA|1.000|3", "2|CUP|4.000|1", "3|POT|3.000|2"}), Lines());
    ExpectNoSaving();
    support::Click(editor->cmdCancel);
  });
}

TEST_F(Pasting, TheLinesOfOneRequestArePastedIntoAnother) {
  Edit(7, [&] {
    Press(editor->lvwrequest, "Ctrl+A");
    Press(editor->lvwrequest, "Ctrl+C");
    support::Click(editor->cmdCancel);
  });
  const std::string copied = desktop.ClipboardText();
  New([&] {
    Paste(copied, "2 lines added.");
    EXPECT_EQ((std::vector<std::string>{"1|POT|2.500|2", "2|CUP|4.000|1"}), Lines());
    ExpectNoSaving();
    support::Click(editor->cmdCancel);
  });
}

TEST_F(Pasting, ALongTableShowsHowFarItIsAndTellsTwentyRefusals) {
  std::string table;
  std::string outcome = "0 lines added.\r\n120 lines refused, ready on the clipboard to be mended and pasted again:\r\n";
  for (int row = 0; row < 120; ++row) {
    table += "NIX" + std::to_string(row) + "\t1\n";
    if (row < 20) outcome += "\r\nNIX" + std::to_string(row) + ", 1: Scan valid barcode";
  }
  New([&] {
    Paste(table, outcome + "\r\nand 100 more");
    EXPECT_TRUE(desktop.sawHourglass);
    EXPECT_EQ("Goods Request", editor->Caption());
    EXPECT_EQ(0, desktop.hourglasses);
  });
}

TEST_F(Pasting, AServerThatFailsLosesNoRow) {
  New([&] {
    log.FailAt(9);  // amid the second
    desktop.PutOnClipboard("POT\t1\nCUP\t2\nJAR\t3\n");
    desktop.ExpectMessage(
        "1 line added.\r\n2 lines refused, ready on the clipboard to be mended and pasted again:\r\n"
        "\r\nCUP, 2: Connection broken by the test\r\nJAR, 3: Connection broken by the test");
    ExpectError("Connection broken by the test", "lvwrequest_Pasted", -2147217900);
    Press(editor->lvwrequest, "Ctrl+V");
    EXPECT_EQ("CUP\t2\r\nJAR\t3\r\n", desktop.ClipboardText());
    ExpectNoSaving();
    support::Click(editor->cmdCancel);
  });
}

TEST_F(Pasting, ARequestThatCanOnlyBeLookedAtTakesNothing) {
  shop.Run("update mosGoodsRequestHeader set GRHTransFinished = 1 where GRHrequestID = 7");
  desktop.ExpectMessage("Transaction is confirmed as finished,Cannot modify");
  Edit(7, [&] {
    desktop.PutOnClipboard("JAR\t1");
    Press(editor->lvwrequest, "Ctrl+V");
    EXPECT_EQ(2U, Lines().size());
  });
}

}  // namespace
}  // namespace editor_test
