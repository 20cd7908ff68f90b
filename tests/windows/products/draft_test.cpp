// A host program that dies amid an editing, and the next one that finds what was typed.
#include <gtest/gtest.h>
#include <optional>

#include "tests/windows/products/person/shop_host.h"

namespace person {
namespace {

class Draft : public ::testing::Test {
 protected:
  void EnterTwoLines(FormOnScreen& editor) {
    editor.Type("For the fair");
    editor.Holds("For the fair");
    editor.GoToList();
    editor.Press("Ctrl+Enter");
    FormOnScreen entry = nora.Meets("Goods Request Details");
    entry.Write("Barcode:", "KT1003");
    entry.Press("Enter");
    entry.HasFocusBehind("Quantity:");
    entry.Write("Quantity:", "12");
    entry.Press("Ctrl+Enter");
    entry.HasFocusBehind("Barcode:");
    entry.Press("F8");
    nora.Meets("Goods Request Details - scanning");
    entry.Type("KT1001");
    entry.Press("Enter");
    entry.Shows("Barcode:", "");
    entry.HasRows(1);
  }
  /// At another counter: only what a dead program has left is offered.
  void BeginAndLeaveARequestElsewhere() {
    Program other(Host(folder, kLoggedOn));
    Person sean(other);
    FormOnScreen requests = sean.Meets("Goods Request to HQ");
    FormOnScreen editor = NewRequest(sean, requests);
    editor.Press("Esc");
    editor.Goes();
    requests.Click("Close");
    EXPECT_EQ(other.ExitCode(), 0u) << other.Complaint();
  }

  const ShopFolder folder;
  std::optional<Program> host{std::in_place, Host(folder, kLoggedOn)};
  Person nora{*host};
};

TEST_F(Draft, SurvivesAHostThatDiesAndIsSaved) {
  FormOnScreen requests = nora.Meets("Goods Request to HQ");
  FormOnScreen editor = NewRequest(nora, requests);
  EnterTwoLines(editor);
  BeginAndLeaveARequestElsewhere();
  host.reset();  // ends the process as a crash does

  Program next(Host(folder, kLoggedOn));
  Person again(next);
  requests = again.Meets("Goods Request to HQ");
  requests.Click("New");
  const std::string question = again.Answers("Yes");
  EXPECT_TRUE(question.starts_with("An unsaved request of ")) << question;
  EXPECT_TRUE(question.ends_with(" with 2 lines was left behind. Take it up again?")) << question;
  editor = again.Meets("Goods Request");
  editor.HasRows(2);
  editor.HasRow(0, {"1", "KT1003", "Frying pan 28 cm", "12.000", "", "PCS", ""});
  editor.HasRow(1, {"2", "KT1001", "Frying pan 20 cm", "1.000", "", "PCS", ""});
  editor.Shows("Remarks:", "For the fair");
  editor.Click("OK");
  editor.Goes();
  requests.HasRows(17);
  // What is saved is offered no more.
  editor = NewRequest(again, requests);
  editor.Press("Esc");
  editor.Goes();
  requests.Click("Close");
  EXPECT_EQ(next.ExitCode(), 0u) << next.Complaint();
}

}  // namespace
}  // namespace person
