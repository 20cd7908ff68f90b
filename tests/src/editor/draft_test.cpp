#include "base/vb/error.h"
#include "src/records/request_draft.h"
#include "tests/src/editor/editor_shop.h"

namespace editor_test {
namespace {

using controls::Answer;
using Texts = std::vector<std::string>;

constexpr std::string_view kDraftFile = "request-draft-1-1-1.txt";

class Drafts : public EditorShop {
 protected:
  goods::Request Draft(std::string_view file = kDraftFile) {
    const auto draft = goods::ParseDraft(shop.workstation.stateFiles[std::string(file)]);
    EXPECT_TRUE(draft);
    return draft ? draft->request : goods::Request{};
  }
  bool HasDraft() const { return !shop.workstation.stateFiles.empty(); }
  void Type(std::string_view remarks) {
    editor->txtRemarks.SetFocus();
    editor->txtRemarks.SetText(remarks);
    editor->cmdOK.SetFocus();
  }
  /// The process ends while the editor shows the request: what it wrote is all that is left of it.
  void Crash() {
    left_ = shop.workstation.stateFiles;
    ExpectNoSaving();
    editor->Unload();
    shop.workstation.stateFiles = left_;
  }
  void ExpectOffer(int lines, Answer answer) {
    desktop.ExpectMessage(
        "An unsaved request of 15/03/2024 10:30:05 with " + std::to_string(lines) + " lines was left behind. Take it up again?",
        answer, controls::kYesNo + controls::kQuestion);
  }

 private:
  std::map<std::string, std::string> left_;
};

TEST_F(Drafts, OfANewRequestIsTakenUpWithAllThatWasTyped) {
  New([&] {
    EXPECT_FALSE(HasDraft()) << "nothing was changed yet";
    AddLine(1, "2.500", "blue");
    CheckDocuments({"I-101"});
    editor->optporeq.SetValue(true);
    Type("for Monday");
    Crash();
  });
  const Texts lines = [&] {
    Texts texts;
    for (const goods::RequestLine& line : Draft().lines) texts.push_back(line.itemCode + " " + line.quantity);
    return texts;
  }();
  ASSERT_GE(lines.size(), 2U);
  ExpectOffer(static_cast<int>(lines.size()), Answer::Yes);
  session.gStrEntryMode = "N";
  desktop.ExpectForm("frmRequest", [&](controls::Form&) {
    EXPECT_EQ(Lines().size(), lines.size());
    EXPECT_EQ(editor->lvwrequest.Item(1).SubItem(goods::kLineRemarks), "blue");
    EXPECT_EQ(editor->txtRemarks.Text(), "for Monday");
    EXPECT_TRUE(editor->optporeq.Value());
    EXPECT_TRUE(editor->chkcutomerrequest.IsChecked());
    EXPECT_EQ(Documents().front(), "[x] I-101");
    ExpectNoSaving();
    editor->Unload();
  });
  editor->Show(nullptr);
  EXPECT_FALSE(HasDraft()) << "the closing was answered";
}

TEST_F(Drafts, OfAStoredRequestWaitForThatRequest) {
  Edit(7, [&] {
    editor->lvwrequest.Item(1).SetSubItem(goods::kLineQty, "9.000");
    shop.Run("delete from aItem where ItemId = 1");
    Type("changed");
    Crash();
  });
  New([] {});  // asks nothing about it, and leaves it alone
  ASSERT_EQ(Draft().remarks, "changed");
  ExpectOffer(2, Answer::Yes);
  desktop.ExpectMessage("These are no longer there and were left out:\r\nCUP Cup, 4.000", Answer::Ok, controls::kInformation);
  Edit(7, [&] {
    EXPECT_EQ((Texts{"1|POT|9.000|2"}), Lines());
    EXPECT_EQ(editor->txtRemarks.Text(), "changed");
    support::Click(editor->cmdOK);
  });
  EXPECT_FALSE(HasDraft()) << "saved";
  EXPECT_EQ(shop.Row("select GRHremarks from mosGoodsRequestHeader where GRHrequestID = 7"), "changed");
}

TEST_F(Drafts, OfARequestThatWasFinishedElsewhereAreShownAndStayUntilRemoved) {
  Edit(7, [&] {
    Type("changed");
    Crash();
  });
  const std::string stored = "update mosGoodsRequestHeader set GRHTransFinished=1 where GRHrequestID=7";
  shop.Run(stored);
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    desktop.ExpectMessage("Transaction is confirmed as finished,Cannot modify", Answer::Ok, controls::kInformation);
    desktop.ExpectMessage(
        "An unsaved change of this request of 15/03/2024 10:30:05 was left behind. It can be saved no more:\r\n\r\n"
        "POT Tea pot, 2.500\r\nCUP Cup, 4.000\r\nchanged\r\n\r\nDo you want to remove it?",
        answer, controls::kYesNo + controls::kQuestion + controls::kDefaultButton2);
    Edit(7, [] {});
    desktop.Verify();
    EXPECT_EQ(HasDraft(), answer == Answer::No);
  }
}

TEST_F(Drafts, MeetALaterSaveByAnotherWorkstationWithAQuestion) {
  Edit(7, [&] {
    Type("changed");
    Crash();
  });
  shop.Run("update mosGoodsRequestHeader set updatetime='2024-03-15 11:00:00', GRHrecmoduser='Ines' where GRHrequestID=7");
  ExpectOffer(2, Answer::Yes);
  Edit(7, [&] {
    desktop.ExpectMessage(
        "Another workstation has changed this request since you opened it by Ines, 15/03/2024 11:00:00.\r\nDo you want to save "
        "over that change?",
        Answer::No, controls::kYesNo + controls::kQuestion + controls::kDefaultButton2);
    support::Click(editor->cmdOK);
    desktop.Verify();
    EXPECT_TRUE(HasDraft());
    ExpectNoSaving();
    editor->Unload();
  });
}

TEST_F(Drafts, ThatWereSavedBeforeTheProgramEndedAreNotOffered) {
  std::string draft;
  New([&] {
    AddLine(1, "2.500", "blue");
    Type("for Monday");
    draft = shop.workstation.stateFiles[std::string(kDraftFile)];
    support::Click(editor->cmdOK);
  });
  const std::string id = shop.Row("select max(GRHrequestID) from mosGoodsRequestHeader");
  const std::string number = shop.Row("select GRHrequestno from mosGoodsRequestHeader where GRHrequestID=" + id);
  draft.insert(draft.find("number: "), "being saved as: " + id + "\t" + number + "\n");
  shop.workstation.stateFiles[std::string(kDraftFile)] = draft;
  desktop.ExpectMessage("The request that was being saved when the program ended is saved under the number " + number + ".",
                        Answer::Ok, controls::kInformation);
  New([] {});
  desktop.Verify();
  EXPECT_FALSE(HasDraft());
}

TEST_F(Drafts, ThatAreNotWantedCannotBeReadOrAreStillBeingTypedAreNotTakenUp) {
  New([&] {
    Type("first");
    Crash();
  });
  shop.workstation.stateFiles["request-draft-1-1-1-no2.txt"] = "scrap";
  shop.workstation.stateFiles["request-draft-1-1-1-no3.txt"] = shop.workstation.stateFiles[std::string(kDraftFile)];
  shop.workstation.takenStateFiles.insert("request-draft-1-1-1-no3.txt");
  ExpectOffer(0, Answer::No);
  desktop.ExpectMessage(
      "An unsaved request was left behind that cannot be read. It is kept in the file\r\n"
      "request-draft-1-1-1-no2.txt.unreadable",
      Answer::Ok, controls::kExclamation);
  New([] {});
  EXPECT_EQ(shop.workstation.stateFiles.size(), 2U) << "the other program's, and the one set aside";
}

TEST_F(Drafts, ThatCannotBeWrittenAreReportedOnceAndTheWorkGoesOn) {
  shop.workstation.hasStateFolder = false;
  New([&] {
    ExpectError("Path/File access error", "KeepDraft", vb::kPathFileAccess);
    Type("one");
    Type("two");
    AddLine(1, "1");
    support::Click(editor->cmdOK);
  });
  EXPECT_EQ(shop.Row("select GRHremarks from mosGoodsRequestHeader where GRHrequestID <> 7"), "two");
}

}  // namespace
}  // namespace editor_test
