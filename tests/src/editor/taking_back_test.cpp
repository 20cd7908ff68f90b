#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using support::Press;
using Texts = std::vector<std::string>;

/// Ctrl+Z in the item list.
class TakingBack : public EditorShop {
 protected:
  TakingBack() { shop.Run("update aItem set forsales=1;update aShops set MaxRequestItemsToHQ=50"); }
  void Paste(const std::string& table) {
    desktop.PutOnClipboard(table);
    const auto lines = std::ranges::count(table, '\n');
    desktop.ExpectMessage(std::to_string(lines) + (lines == 1 ? " line added." : " lines added."));
    Press(editor->lvwrequest, "Ctrl+V");
    desktop.Verify();
  }
  void Delete(int line) {
    editor->lvwrequest.Select(line);
    const std::string name = editor->lvwrequest.Item(line).SubItem(goods::kLineItemName);
    desktop.ExpectMessage("Are you sure you want to delete \r" + name, Answer::Yes);
    Press(editor->lvwrequest, "Delete");
    desktop.Verify();
  }
  std::string TakeBack() {
    Press(editor->lvwrequest, "Ctrl+Z");
    return editor->lblStatus.Caption();
  }
  void Close() {
    ExpectNoSaving();
    support::Click(editor->cmdCancel);
  }
};

TEST_F(TakingBack, APasteGoesAsOneAndADeletedLineComesBackToItsPlace) {
  New([&] {
    EXPECT_EQ("0 lines", editor->lblStatus.Caption());
    Paste("POT\t2,5\tblue\nCUP\t4\nTEA\t1\n");
    EXPECT_EQ("3 lines, limit 50", editor->lblStatus.Caption());
    const goods::Request pasted = editor->Entered();
    Delete(2);
    EXPECT_EQ((Texts{"1|POT|2.500|2", "2|TEA|1.000|3"}), Lines());
    EXPECT_EQ("3 lines, limit 50 - Back again: CUP Cup, 4.000", TakeBack());
    EXPECT_EQ(pasted, editor->Entered());
    EXPECT_EQ("0 lines, limit 50 - Taken back: 3 lines", TakeBack());
    EXPECT_EQ("0 lines, limit 50 - Nothing left to take back", TakeBack());
    Paste("CUP\t4\n");
    EXPECT_EQ("0 lines, limit 50 - Taken out again: CUP Cup, 4.000", TakeBack());
    support::Click(editor->cmdCancel);  // nothing is left to save
  });
}

TEST_F(TakingBack, EightChangesAreKept) {
  Edit(7, [&] {
    const Texts before = Lines();
    for (int times = 0; times < 5; ++times) {
      Delete(1);
      TakeBack();
      EXPECT_EQ(before, Lines());
    }
    Delete(1);
    for (int times = 0; times < 4; ++times) {
      Paste("JAR\t1\n");
      Delete(2);
    }
    for (int times = 0; times < 8; ++times) TakeBack();
    EXPECT_EQ("1 line, limit 50 - Nothing left to take back", TakeBack());
    EXPECT_EQ(Texts{"1|" + before.at(1).substr(2)}, Lines());
    Close();
  });
}

TEST_F(TakingBack, ATickedDocumentStaysWithItsQuantities) {
  New([&] {
    Paste("POT\t2\n");
    Paste("TEA\t1\n");
    CheckDocuments({"I-101"});
    EXPECT_EQ((Texts{"1|POT|2.000|2", "2|TEA|1.300|3", "3|CUP|4.000|1"}), Lines());
    TakeBack();
    EXPECT_EQ((Texts{"1|POT|2.000|2", "2|TEA|0.300|3", "3|CUP|4.000|1"}), Lines());
    TakeBack();
    CheckDocument("I-101", false);
    EXPECT_EQ(Texts{}, Lines());
    Close();
  });
}

TEST_F(TakingBack, ARequestThatCanOnlyBeLookedAtStaysAsItIs) {
  shop.Run("update mosGoodsRequestHeader set grhTransfinished = 1 where GRHrequestID = 7");
  desktop.ExpectMessage("Transaction is confirmed as finished,Cannot modify", Answer::Ok, controls::kInformation);
  Edit(7, [&] {
    const Texts before = Lines();
    EXPECT_EQ("2 lines", TakeBack());
    EXPECT_EQ(before, Lines());
  });
}

}  // namespace
}  // namespace editor_test
