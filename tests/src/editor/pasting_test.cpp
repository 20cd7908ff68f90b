#include <random>
#include <set>

#include "src/counter/pasted_table.h"
#include "src/editor/pasted_lines.h"
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

/// Tables as other programs write them, made up at random, and what is to come of them.
class RandomTable {
 public:
  explicit RandomTable(unsigned seed) : random_(seed) {
    separator_ = "\t;,"[Pick(3)];
    if (Pick(3) == 0) text_ = Row({"Code", "Quantity", "Remarks"});
    for (int rows = Pick(12); rows > 0; --rows) AddRow();
  }
  const std::string& Text() const { return text_; }
  /// The lines that are added as "code quantity", and the codes of the rows that are refused.
  std::vector<std::string> added, refused;

 private:
  int Pick(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
  std::string Row(std::vector<std::string> cells) {
    std::string row;
    for (const std::string& cell : cells) row += (row.empty() ? "" : std::string(1, separator_)) + cell;
    return row + (Pick(2) == 0 ? "\r\n" : "\n");
  }
  void AddRow() {
    static const std::vector<std::string> codes = {"CUP", "POT", "TEA", "JAR", "NIX", "OLD"};
    struct Written {
      const char* text;
      const char* quantity;  ///< as the list shows it; nullptr where it is refused
    };
    static const std::vector<Written> quantities = {
        {"1", "1.000"},     {"2.5", "2.500"}, {"1.250,5", "1250.500"}, {"3,25", "3.250"},   {"0012", "12.000"},
        {"0", nullptr},     {"", nullptr},    {"-1", nullptr},         {"1.2345", nullptr}, {"1e3", nullptr},
        {"two 2", nullptr}, {" 7 ", "7.000"}, {"1 000", "1000.000"}};
    const std::string& code = codes.at(static_cast<std::size_t>(Pick(6)));
    const Written* quantity = nullptr;
    do quantity = &quantities.at(static_cast<std::size_t>(Pick(static_cast<int>(quantities.size()))));
    while (separator_ == ',' && std::string_view(quantity->text).find(',') != std::string_view::npos);
    text_ += Row({code, quantity->text, Pick(4) == 0 ? "with a note" : ""});
    const bool isKnown = code != "NIX" && code != "OLD";
    if (isKnown && quantity->quantity && added.size() < kLimit && taken_.insert(code).second) {
      added.push_back(code + " " + quantity->quantity);
    } else {
      refused.push_back(code);
    }
  }

 public:
  static constexpr std::size_t kLimit = 3;

 private:
  std::mt19937 random_;
  char separator_;
  std::string text_;
  std::set<std::string> taken_;
};

TEST_F(Pasting, OfAnyTableEachRowIsALineOrRefused) {
  Limit(static_cast<int>(RandomTable::kLimit));
  New([&] {
    goods::CommonDb db(session.services.factory, session.gAdoCon);
    for (unsigned seed = 1; seed <= 2000; ++seed) {
      const RandomTable table(seed);
      editor->lvwrequest.Clear();
      goods::PastedLines pasted(session, db, goods::RequestLines(editor->lvwrequest));
      EXPECT_FALSE(pasted.Take(table.Text(), [](std::size_t, std::size_t) {}));
      std::vector<std::string> lines;
      for (const goods::RequestLine& line : editor->Entered().lines) lines.push_back(line.itemCode + " " + line.quantity);
      EXPECT_EQ(table.added, lines) << "seed " << seed << ":\n" << table.Text();
      std::vector<std::string> refused;
      for (const goods::PastedRow& row : goods::ReadPastedLines(pasted.RefusedTable()).rows) refused.push_back(row.code);
      EXPECT_EQ(table.refused, refused) << "seed " << seed << ":\n" << table.Text() << "refused:\n" << pasted.RefusedTable();
      if (HasFailure()) break;
    }
    editor->lvwrequest.Clear();
  });
}

}  // namespace
}  // namespace editor_test
