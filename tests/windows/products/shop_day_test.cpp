// A shop's day at the real windows: the host in a process of its own, somebody at its mouse and keyboard.
#include <gtest/gtest.h>

#include "tests/windows/products/person/shop_host.h"

namespace person {
namespace {

/// A day at one counter: the host opens the register, and closes it in the evening.
class ShopDay : public ::testing::Test {
 protected:
  void Evening() {
    requests.Click("Close");
    EXPECT_EQ(host.ExitCode(), 0u) << host.Complaint();
  }
  FormOnScreen EditRow(int row) {
    requests.ClickRow(row);
    requests.Click("Edit");
    return nora.Meets("Goods Request");
  }
  FormOnScreen AddItems(FormOnScreen& editor) {
    editor.RightClickList();
    nora.Picks('A');
    return nora.Meets("Goods Request Details");
  }
  static void Leave(FormOnScreen& form) {
    form.Press("Esc");
    form.Goes();
  }

  void ReadTheRegisterOfTheYear();
  void EnterTwoLinesByTheirCodes(FormOnScreen& editor);
  void MeetTheRefusals(FormOnScreen& entry);
  void ChangeAQuantityAndNearlyLoseIt();
  void ReadTheSavedLines();
  void CancelWithAReason();

  const ShopFolder folder;
  Program host{Host(folder, kLoggedOn)};
  Person nora{host};
  FormOnScreen requests = nora.Meets("Goods Request to HQ");
  const Texts fryingPans{"1", "KT1003", "Frying pan 28 cm", "12.500", "blue ones", "PCS", ""};
};

void ShopDay::ReadTheRegisterOfTheYear() {
  EXPECT_EQ(requests.Headings(), (Texts{"Request ID", "Request No", "Request Date", "Remarks", "Cancelled", "Finished"}));
  requests.HasRows(16);
  requests.HasRow(0, {"13", "GR24/5", "16/01/2024", "Workshop fitting, project", "No", "Yes"});
  requests.HasRow(15, {"28", "GR24/20", "15/03/2024", "Opened by mistake", "Yes", "No"});
}

// Enter goes from box to box, and the button takes the line.
void ShopDay::EnterTwoLinesByTheirCodes(FormOnScreen& editor) {
  FormOnScreen entry = AddItems(editor);
  entry.HasFocusBehind("Barcode:");
  entry.Write("Barcode:", "KT1003");
  entry.Press("Enter");
  entry.HasFocusBehind("Quantity:");
  entry.Shows("Item:", "Frying pan 28 cm");
  entry.Write("Quantity:", "12.5");
  entry.Press("Enter");
  entry.HasFocusBehind("Comments:");
  entry.Write("Comments:", "blue ones");
  entry.Press("Enter");
  entry.HasFocusOn("Ok");
  entry.Click("Ok");
  entry.HasFocusBehind("Barcode:");
  MeetTheRefusals(entry);
  entry.Write("Barcode:", "KT1001");
  entry.Press("Enter");
  entry.Shows("Item:", "Frying pan 20 cm");
  entry.HasFocusBehind("Quantity:");
  entry.Write("Quantity:", "3");
  entry.Click("Ok");
  entry.HasFocusBehind("Barcode:");
  Leave(entry);
}

// No item twice; what is scanned after the refusal does not run into the item's name, and nobody is held there.
void ShopDay::MeetTheRefusals(FormOnScreen& entry) {
  entry.Write("Barcode:", "KT1003");
  entry.Press("Enter");
  entry.HasFocusBehind("Quantity:");
  entry.Click("Ok");
  EXPECT_EQ(nora.Answers("OK"), "Frying pan 28 cm Already Exists");
  entry.Type("zz");
  entry.Shows("Item:", "zz");
  entry.Press("Tab");
  entry.Shows("Item:", "Frying pan 28 cm");
  entry.Press("Tab");
  entry.HasFocusOn("Fetch");
  entry.Write("Barcode:", "none such");
  entry.Press("Enter");
  EXPECT_EQ(nora.Answers("OK"), "Scan valid barcode ");
}

void ShopDay::ChangeAQuantityAndNearlyLoseIt() {
  const Texts changed{"2", "KT1001", "Frying pan 20 cm", "8.000", "", "PCS", ""};
  FormOnScreen editor = EditRow(16);
  editor.Shows("Request No:", "GR24/21");
  editor.HasRows(2);
  editor.DoubleClickRow(1);
  FormOnScreen entry = nora.Meets("Goods Request Details");
  entry.Shows("Quantity:", "3.000");
  entry.Write("Quantity:", "8");
  entry.Click("Ok");
  entry.Goes();
  editor.HasRow(1, changed);
  editor.CloseByTitleBar();
  EXPECT_EQ(nora.Answers("Cancel"), "Save Changes?");
  editor.HasRow(1, changed);
  editor.Click("OK");
  editor.Goes();
}

void ShopDay::ReadTheSavedLines() {
  requests.ClickRow(16);
  requests.Press("Enter");
  FormOnScreen editor = nora.Meets("Goods Request");
  editor.HasRow(0, fryingPans);
  editor.HasRow(1, {"2", "KT1001", "Frying pan 20 cm", "8.000", "", "PCS", ""});
  Leave(editor);
}

void ShopDay::CancelWithAReason() {
  requests.Click("Delete");
  EXPECT_EQ(nora.Answers("No"), "Are you sure you want to Delete GR24/21 ?");
  requests.Click("Delete");
  EXPECT_EQ(nora.Answers("Yes"), "Are you sure you want to Delete GR24/21 ?");
  FormOnScreen reason = nora.Meets("Reason for deletion");
  reason.Write("Reason :", "Ordered twice");
  reason.Click("OK");
  reason.Goes();
}

TEST_F(ShopDay, ARequestIsRaisedChangedAndCancelled) {
  ReadTheRegisterOfTheYear();
  FormOnScreen editor = NewRequest(nora, requests);
  editor.HasRows(0);
  editor.Shows("Request Date:", "15/03/2024");
  editor.Write("Remarks:", "For the new shelf");
  EnterTwoLinesByTheirCodes(editor);
  editor.HasRows(2);
  editor.HasRow(0, fryingPans);
  editor.HasRow(1, {"2", "KT1001", "Frying pan 20 cm", "3.000", "", "PCS", ""});
  editor.Shows("Remarks:", "For the new shelf");
  editor.Click("OK");
  editor.Goes();
  // It is the year's next request.
  requests.HasRows(17);
  requests.HasRow(16, {"29", "GR24/21", "15/03/2024", "For the new shelf", "No", "No"});

  ChangeAQuantityAndNearlyLoseIt();
  ReadTheSavedLines();
  CancelWithAReason();
  const Texts cancelled{"29", "GR24/21", "15/03/2024", "For the new shelf", "Yes", "No"};
  requests.HasRow(16, cancelled);
  Evening();

  // The next morning it is still there.
  Program nextDay(Host(folder, kLoggedOn));
  FormOnScreen again = Person(nextDay).Meets("Goods Request to HQ");
  again.HasRows(17);
  again.HasRow(16, cancelled);
  again.CloseByTitleBar();
  EXPECT_EQ(nextDay.ExitCode(), 0u) << nextDay.Complaint();
}

TEST_F(ShopDay, ARequestIsFilledWithoutTypingACode) {
  // What is out of stock would make a request of its own; not today.
  FormOnScreen editor = NewRequest(nora, requests, "Yes");
  editor.HasRows(27);
  editor.Press("Esc");
  EXPECT_EQ(nora.Answers("No"), "Save Changes?");
  editor.Goes();

  // Two customers are waiting; the first has come and gone.
  editor = NewRequest(nora, requests);
  editor.Click("Customer Request");
  editor.TurnTo("Customer Requests");
  editor.HasRow(0, {"1", "CR24/101", ""});
  editor.TickRow(0);
  editor.TickRow(1);
  editor.TickRow(0);
  editor.TurnTo("Items");
  editor.HasRows(2);
  editor.HasRow(0, {"1", "KT1002", "Frying pan 24 cm", "2.000", "", "PCS", ""});
  editor.HasRow(1, {"2", "TX1009", "Bed linen set single white", "10.000", "white only", "SET", ""});

  // One item from the list of all, found by a part of its name.
  FormOnScreen entry = AddItems(editor);
  entry.Press("F3");
  FormOnScreen lookup = nora.Meets("Item Fetch");
  lookup.HasFocusBehind("Search:");
  lookup.Write("Search:", "Chef");
  lookup.HasRows(1);
  lookup.DoubleClickRow(0);
  lookup.Goes();
  entry.Shows("Item:", "Chef's knife 20 cm");
  entry.HasFocusBehind("Quantity:");
  entry.Write("Quantity:", "2");
  entry.Click("Ok");
  entry.HasFocusBehind("Barcode:");

  // Another from the fetch dialog.
  entry.Press("Shift+F3");
  FormOnScreen fetch = nora.Meets("Fetch Item");
  fetch.Type("knife");
  fetch.Press("Enter");
  fetch.HasRows(5);
  fetch.DoubleClickRow(1);
  fetch.Goes();
  entry.Shows("Item:", "Paring knife 8 cm");
  entry.Write("Quantity:", "4");
  entry.Click("Ok");
  Leave(entry);
  editor.HasRows(4);
  editor.HasRow(3, {"4", "KT1013", "Paring knife 8 cm", "4.000", "", "PCS", ""});
  editor.Click("OK");
  editor.Goes();

  // The request keeps its customer.
  requests.HasRows(17);
  editor = EditRow(16);
  editor.HasRows(4);
  editor.TurnTo("Customer Requests");
  editor.HasRow(0, {"1", "CR24/102", ""});
  editor.HasTicked(0, true);
  editor.HasTicked(1, false);
  Leave(editor);
  Evening();
}

TEST_F(ShopDay, ARequestIsFoundByTyping) {
  const Texts toys{"20", "GR24/12", "20/02/2024", "Toys for the fair", "No", "No"};
  // The search sorts the list by the column it looks in.
  requests.Choose("Search On:", "Remarks");
  requests.Press("Tab");
  requests.Type("to");
  requests.HasRow(0, {"25", "GR24/17", "12/03/2024", "", "No", "No"});
  requests.HasSelectedRow({"15", "GR24/7", "29/01/2024", "Towels for the hotel", "No", "No"});
  requests.Type("y");
  requests.HasSelectedRow(toys);

  // Nothing begins so, and nothing moves.
  requests.Type("zzz");
  requests.HasSelectedRow(toys);
  requests.Press("Alt+C");
  requests.Goes();
  EXPECT_EQ(host.ExitCode(), 0u) << host.Complaint();
}

TEST_F(ShopDay, HeadingsSortAndTheRequestThatWasSelectedIsTheOneEdited) {
  const Texts toys{"20", "GR24/12", "20/02/2024", "Toys for the fair", "No", "No"};
  const Texts workshop{"13", "GR24/5", "16/01/2024", "Workshop fitting, project", "No", "Yes"};
  requests.ClickRow(7);
  requests.HasSelectedRow(toys);
  requests.ClickHeading("Remarks");
  requests.HasRow(15, workshop);
  requests.HasSelectedRow(toys);
  requests.ClickHeading("Remarks");
  requests.HasRow(0, workshop);
  requests.HasSelectedRow(toys);
  requests.HasRow(1, toys);
  requests.Click("Edit");
  FormOnScreen editor = nora.Meets("Goods Request");
  editor.Shows("Request No:", "GR24/12");
  Leave(editor);

  // In the fetch dialog, too, OK takes the item that was selected before a heading was clicked.
  editor = NewRequest(nora, requests);
  FormOnScreen entry = AddItems(editor);
  entry.Press("Shift+F3");
  FormOnScreen fetch = nora.Meets("Fetch Item");
  EXPECT_EQ(fetch.Headings(), (Texts{"Item Code", "Item Description", "Brand", "Model No", "Part_Code"}));
  fetch.Type("knife");
  fetch.Press("Enter");
  fetch.HasRows(5);
  fetch.ClickRow(1);
  fetch.ClickHeading("Item Description");
  fetch.ClickHeading("Item Description");
  fetch.Click("Ok");
  fetch.Goes();
  entry.Shows("Item:", "Paring knife 8 cm");
  Leave(entry);
  Leave(editor);
  Evening();
}

TEST_F(ShopDay, TheListsGrowWithTheirWindows) {
  const auto grows = [](FormOnScreen& form) {
    const SIZE before = form.ListSize();
    form.Pull(70, 50);
    form.HasListOf({before.cx + 70, before.cy + 50});
    form.Pull(-70, -50);
    form.HasListOf(before);
  };
  grows(requests);
  FormOnScreen editor = NewRequest(nora, requests);
  grows(editor);
  Leave(editor);
  Evening();
}

/// What the host remembers for its user, kept out of the test's way and put back.
class Forgotten {
 public:
  Forgotten() { RegDeleteTreeW(HKEY_CURRENT_USER, kPath); }
  Forgotten(const Forgotten&) = delete;
  Forgotten& operator=(const Forgotten&) = delete;
  ~Forgotten() { RegDeleteTreeW(HKEY_CURRENT_USER, kPath); }

 private:
  static constexpr const wchar_t* kPath = L"Software\\ShopSuite\\Host";
};

TEST(LogOn, TheChoiceIsCheckedTakenAndRemembered) {
  const ShopFolder folder;
  const Forgotten forgotten;
  {
    Program host(Host(folder, ""));
    Person person(host);
    FormOnScreen logOn = person.Meets("Shop host");
    logOn.Shows("Process date:", "15/03/2024");
    logOn.Choose("Company:", "Sunmill Bakeries");
    logOn.Choose("Shop:", "Mill Lane Bakery");
    logOn.Choose("User:", "Greta Lindholm");
    logOn.Write("Process date:", "31/02/2024");
    logOn.Click("Goods requests");
    EXPECT_EQ(person.Answers("OK"), "Enter a valid process date");
    logOn.HasFocusBehind("Process date:");
    logOn.Shows("Process date:", "31/02/2024");
    logOn.Write("Process date:", "14/03/2024");
    logOn.Press("Enter");
    // That shop's requests, on that day.
    FormOnScreen requests = person.Meets("Goods Request to HQ");
    requests.HasRow(0, {"3", "2", "04/03/2024", "Dough for the week", "No", "No"});
    FormOnScreen editor = NewRequest(person, requests);
    editor.Shows("Request Date:", "14/03/2024");
    editor.Press("Esc");
    editor.Goes();
    requests.Click("Close");
    requests.Goes();
    person.Meets("Shop host").Click("Exit");
    EXPECT_EQ(host.ExitCode(), 0u) << host.Complaint();
  }
  Program nextDay(Host(folder, ""));
  FormOnScreen logOn = Person(nextDay).Meets("Shop host");
  logOn.Shows("Company:", "Sunmill Bakeries");
  logOn.Shows("Shop:", "Mill Lane Bakery");
  logOn.Shows("User:", "Greta Lindholm");
  logOn.Shows("Process date:", "14/03/2024");
  logOn.Press("Esc");
  EXPECT_EQ(nextDay.ExitCode(), 0u) << nextDay.Complaint();
}

TEST(LogOn, ADatabaseThatCannotBeReachedIsReportedAndEndsTheHost) {
  const std::string wrong = std::string("\"") + HOST_PROGRAM + "\" --connection \"Provider=None such;Data Source=nowhere\"";
  const std::string expected = "Cannot connect to the shop's database.";
  {
    Program host(wrong);
    const std::string message = Person(host).Answers("OK");
    EXPECT_TRUE(message.starts_with(expected)) << message;
    EXPECT_GT(message.size(), expected.size() + 5) << "the provider's reason";
    EXPECT_EQ(host.ExitCode(), 1u);
  }
  // Nobody is there to answer.
  Program host(wrong + " --unattended");
  EXPECT_EQ(host.ExitCode(), 1u);
  EXPECT_TRUE(host.Complaint().starts_with(expected)) << host.Complaint();
}

}  // namespace
}  // namespace person
