// Lists and frames of the products' real windows, with the mouse.
#include <gtest/gtest.h>

#include "tests/windows/products/person/shop_host.h"

namespace person {
namespace {

TEST(ListsDay, TheRegisterComesBackWithTheWidthsThatWerePulled) {
  const ShopFolder folder;
  int remarks = 0;
  {
    Program host(Host(folder, kLoggedOn));
    FormOnScreen requests = Person(host).Meets("Goods Request to HQ");
    for (const char* heading : {"Cancelled", "Finished"}) requests.HasInSight(heading);
    remarks = requests.WidthOf("Remarks") - 120;
    requests.PullColumn("Remarks", -120);
    requests.HasWidth("Remarks", remarks, remarks);
    // Pulled shut it can still be taken hold of.
    requests.PullColumn("Cancelled", -1000);
    requests.HasWidth("Cancelled", 1, 40);
    requests.PullColumn("Cancelled", 30);
    requests.HasWidth("Cancelled", 45, 75);
    requests.Click("Close");
    EXPECT_EQ(host.ExitCode(), 0u) << host.Complaint();
  }
  Program nextDay(Host(folder, kLoggedOn));
  FormOnScreen requests = Person(nextDay).Meets("Goods Request to HQ");
  requests.HasWidth("Remarks", remarks, remarks);
  requests.HasWidth("Cancelled", 45, 75);
  requests.Click("Close");
  EXPECT_EQ(nextDay.ExitCode(), 0u) << nextDay.Complaint();
}

TEST(ListsDay, TheTextOfADocumentSelectsItAndItsBoxTicksIt) {
  const ShopFolder folder;
  Program host(Host(folder, kLoggedOn));
  Person nora(host);
  FormOnScreen requests = nora.Meets("Goods Request to HQ");
  FormOnScreen editor = NewRequest(nora, requests);
  for (const char* heading : {"Unit", "Part Code"}) editor.HasInSight(heading);
  editor.Click("Customer Request");
  editor.TurnTo("Customer Requests");
  editor.ClickCell(1, "Request No");
  editor.HasSelected(1);
  editor.ClickRow(2);
  editor.HasTicked(1, false);
  editor.HasTicked(2, false);
  editor.ClickBox(1);
  editor.HasTicked(1, true);
  editor.HasTicked(2, false);
  editor.TurnTo("Items");
  editor.HasRows(2);
  editor.Press("Esc");
  EXPECT_EQ(nora.Answers("No"), "Save Changes?");
  editor.Goes();
  requests.Click("Close");
  EXPECT_EQ(host.ExitCode(), 0u) << host.Complaint();
}

TEST(ListsDay, FramesAreWholeInWindowsOfEverySize) {
  const ShopFolder folder;
  Program host(Host(folder, kLoggedOn));
  Person nora(host);
  const auto isWhole = [](FormOnScreen& form, const std::string& frame) {
    form.HasWholeFrame(frame);
    form.Pull(40, 30);
    form.HasWholeFrame(frame);
    form.Maximize();
    form.HasWholeFrame(frame);
  };
  FormOnScreen requests = nora.Meets("Goods Request to HQ");
  isWhole(requests, "Browse");
  FormOnScreen editor = NewRequest(nora, requests);
  isWhole(editor, "Request Type");
  editor.Press("Esc");
  editor.Goes();
  requests.HasWholeFrame("Browse");
  requests.Click("Close");
  EXPECT_EQ(host.ExitCode(), 0u) << host.Complaint();
}

}  // namespace
}  // namespace person
