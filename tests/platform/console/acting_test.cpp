#include <gtest/gtest.h>

#include "tests/platform/console/text_session.h"

namespace console {
namespace {

using Notes = std::vector<std::string>;

/// What the commands print between the opening of the form and its closing.
std::string Said(TextSession& session, const std::string& commands) {
  std::string printed = session.Play(commands + "\nquit\n");
  const std::string opened = "form: frmOrder \"Order \\\"A\\\"\"\n";
  const std::string closed = "closed: frmOrder\n";
  EXPECT_TRUE(printed.starts_with(opened)) << printed;
  EXPECT_TRUE(printed.ends_with(closed)) << printed;
  return printed.substr(opened.size(), printed.size() - opened.size() - closed.size());
}

std::string Said(const std::string& commands) {
  TextSession session;
  return Said(session, commands);
}

TEST(Acting, TypedTextGoesBehindTheTextAndOverTheSelectedOne) {
  EXPECT_EQ(Said("type txtName Cups\ntype txtName  and more\nget txtName.Text\nset txtName New\\tpart\nget txtname.text\n"
                 "set txtName\nget TXTNAME.TEXT\nget focus"),
            "value: \"Cups and more\"\n"
            "value: \"New\"\n"  // the tab left the box, the rest had nowhere to go
            "value: \"\"\n"
            "value: \"frmOrder.txtName\"\n");
}

TEST(Acting, TypedAndPastedCharactersRunThroughTheFilter) {
  EXPECT_EQ(Said("type txtQty 1a2b3\nget txtQty.Text\npaste txtQty z4-5-6-7\nget txtQty.Text"),
            "value: \"123\"\n"
            "value: \"12345\"\n");
}

TEST(Acting, AMessageDropsTheRestOfTheTyping) {
  EXPECT_EQ(Said("type txtQty 1x2\nget txtName.Text\nclick cmdOK\nanswer yes\nanswer ok\nget txtQty.Text\nanswer ok"),
            "message: \"No letters\" title=\"Shop\" icon=information buttons=ok default=1\n"
            "value: \"\"\n"
            "error: a message is open: answer it first\n"
            "error: the message has no button yes\n"
            "value: \"1\"\n"
            "error: no message is open\n");
}

TEST(Acting, OnlyWhatAPersonCouldReach) {
  EXPECT_EQ(Said("click cmdHidden\nclick cmdNone\nset lblName x\nrow lvwLines 1\nclick mnuAdd\ntab tabLists 2\nset cboUnit PCS\n"
                 "click frmElse.cmdOK\nrow flexStock 10\ncheck chkUrgent 1\npress txtName Hyper+X\njump cmdOK\nclick cmdOK now"),
            "error: cmdHidden is hidden\n"
            "error: no control \"cmdNone\" on frmOrder\n"
            "error: lblName takes no focus\n"
            "error: lvwLines is hidden\n"
            "error: mnuAdd is hidden\n"
            "error: page 2 is hidden\n"
            "error: cboUnit takes no text\n"
            "error: no form \"frmElse\" is loaded\n"
            "error: flexStock has the rows 0 to 9\n"
            "error: chkUrgent is no list\n"
            "error: no key \"Hyper+X\"\n"
            "error: unknown command \"jump\", see help\n"
            "error: nothing expected behind the command, but there is \"now\"\n");
}

TEST(Acting, AFormBehindAnotherCanBeReadButNotTouched) {
  TextSession session;
  EXPECT_EQ(Said(session,
                 "set txtName Below\nclick cmdMore\nget form\nget frmOrder.txtName.Text\nset frmOrder.txtName x\nclick cmdMore\n"
                 "press txtQty Esc\nget form"),
            "form: frmMore \"Order \\\"A\\\"\"\n"
            "value: \"frmMore\"\n"
            "value: \"Below\"\n"
            "error: frmOrder is behind frmMore\n"
            "error: cmdMore is disabled\n"
            "closed: frmMore\n"
            "value: \"frmOrder\"\n");
  EXPECT_EQ(session.Form().notes, (Notes{"left txtName", "back from more"}));
}

TEST(Acting, ListsGridsAndBoxesDoWhatHandsDo) {
  TextSession session;
  EXPECT_EQ(
      Said(session,
           "choose cboUnit BOX\nchoose cboUnit #1\nchoose cboUnit box\nchoose cboUnit CASE\nrow flexStock 4 1\n"
           "dblclick flexStock\nhover flexStock 5 1\nget flexStock.ToolTipText\nselect flexStock 2 5\nget flexStock.RowSel\n"
           "tab tabLists 1\ncheck lvwLines 1\ncheck lvwLines 1\nuncheck lvwLines 2\nget lvwLines.Checked(2)\n"
           "choose lvwLines #1\nget lvwLines.SelectedItem\nclick optShop\nclick optGodown\nget optShop.Value\n"
           "check chkUrgent\ncheck chkUrgent\nget chkUrgent.Value"),
      "error: cboUnit has no entry \"CASE\"\n"
      "value: \"Item number 5\"\n"
      "value: 5\n"
      "value: false\n"
      "value: 2\n"
      "value: false\n"
      "value: 1\n");
  EXPECT_EQ(session.Form().notes,
            (Notes{"left txtName", "unit BOX", "unit BOX", "unit BOX", "double click 4", "checked 1", "checked 2"}));
}

TEST(Acting, TheMouseFindsTheTipOfACellOfAList) {
  EXPECT_EQ(Said("tab tabLists 1\nhover lvwLines 2 2\nget lvwLines.ToolTipText\nhover lvwLines 1 2\nget lvwLines.ToolTipText\n"
                 "hover lvwLines 3 1\nhover lvwLines 1 0\nhover lvwLines 1 4\nhover lvwLines 1"),
            "value: \"Saucer in full\"\n"
            "value: \"\"\n"
            "error: lvwLines has the lines 1 to 2\n"
            "error: lvwLines has the columns 1 to 3\n"
            "error: lvwLines has the columns 1 to 3\n"
            "error: the column is missing\n");
}

TEST(Acting, KeysGoToTheFocusedControl) {
  TextSession session;
  EXPECT_EQ(Said(session,
                 "press txtName F3\npress txtName x\npress txtName  \npress txtName Backspace\nget txtName.Text\n"
                 "press txtName Alt+U\nget chkUrgent.Value\nget focus\npress chkUrgent Tab\nget focus"),
            "value: \"x\"\n"
            "value: 1\n"
            "value: \"frmOrder.chkUrgent\"\n"
            "value: \"frmOrder.tabLists\"\n");
  EXPECT_EQ(session.Form().notes, (Notes{"F3", "left txtName"}));
}

TEST(Acting, APopUpMenuWaitsForItsPick) {
  TextSession session;
  EXPECT_EQ(Said(session,
                 "rightclick flexStock\nclick cmdOK\npick mnuDelete\npick mnuNone\npick mnuAdd\nrightclick flexStock\npick none\n"
                 "pick mnuAdd"),
            "menu: mnuPopup\n"
            "item: mnuAdd \"&Add\" enabled\n"
            "item: mnuDelete \"&Delete\" disabled\n"
            "error: a menu is open: pick an entry or none first\n"
            "error: mnuDelete is disabled\n"
            "error: the menu has no entry \"mnuNone\"\n"
            "menu: mnuPopup\n"
            "item: mnuAdd \"&Add\" enabled\n"
            "item: mnuDelete \"&Delete\" disabled\n"
            "error: no menu is open\n");
  EXPECT_EQ(session.Form().notes, (Notes{"left txtName", "add"}));
}

TEST(Reading, PropertiesByTheirClassicNames) {
  EXPECT_EQ(
      Said("get frmOrder.Caption\nget frmOrder.lngCurrentLine\nget txtQty.Left\nget flexStock.TextMatrix(3,1)\n"
           "get flexStock.CellForeColor(3,0)\nget flexStock.BackColorSel\nget lvwLines.SubItem(2,0)\nget lvwLines.SubItem(2,1)\n"
           "get lvwLines.ColumnHeader(2)\nget tabLists.TabVisible(2)\nget cboUnit.ItemData(1)\nget cboUnit.ListIndex\n"
           "get cmdHidden.Visible\nget cmdOK.Caption"),
      "value: \"Order \\\"A\\\"\"\nvalue: 3\nvalue: 960\nvalue: \"Item number 3\"\nvalue: 255\nvalue: 2147483661\n"
      "value: \"2\"\nvalue: \"Saucer, 12\\\"\"\nvalue: \"Item\"\nvalue: false\nvalue: 2\nvalue: -1\nvalue: false\n"
      "value: \"&OK\"\n");
  TextSession session;
  Said(session,
       "get txtQty.Colour\nget flexStock.TextMatrix(3)\nget flexStock.TextMatrix(99,0)\nget frmOrder.txtQty\nget txtQty\nget");
  EXPECT_EQ(session.Errors(), 6);
}

TEST(Reading, WholeListsAndTheDatabase) {
  TextSession session;
  EXPECT_EQ(Said(session, "dump lvwLines\ndump cboUnit\ndump cmdOK\nsql select '\\n'\nsql bad\nglobal gIntShopID\nglobal gNone"),
            "row: Sl No.\tItem\tId\n"
            "row: 1\tCup\t\n"
            "row: 2\tSaucer, 12\\\"\t\n"
            "row: PCS\n"
            "row: BOX\n"
            "error: cmdOK is no grid, list or combo box\n"
            "row: \\N\t1\t2.5\ta\\tb\t2024-03-15 00:00:00\n"
            "error: 102 Incorrect syntax near 'bad'.\n"
            "value: 1\n"
            "error: no global \"gNone\"\n");
  EXPECT_EQ(Said(session, "fail 2 out of \\\"log\\\"\nfail 0"), "error: statements are counted from 1\n");
  EXPECT_EQ(session.database.asked, "fail at 2: out of \"log\"");
}

TEST(Ending, QuitAnswersNoAndClosesEverything) {
  TextSession session;
  EXPECT_EQ(session.Play("click cmdMore\nclick cmdOK\nquit\nget form\n"),
            "form: frmOrder \"Order \\\"A\\\"\"\n"
            "form: frmMore \"Order \\\"A\\\"\"\n"
            "message: \"Save Changes?\" title=\"Shop\" icon=question buttons=yesnocancel default=2\n"
            "closed: frmMore\n"
            "closed: frmOrder\n");
}

TEST(Ending, AFormThatRefusesThreeTimesIsAbandoned) {
  TextSession patient;
  patient.refusals = 2;
  EXPECT_EQ(patient.Play(""), "form: frmOrder \"Order \\\"A\\\"\"\nclosed: frmOrder\n");
  TextSession stubborn;
  stubborn.refusals = 9;
  EXPECT_EQ(stubborn.Play("# nothing more\n\n"),
            "form: frmOrder \"Order \\\"A\\\"\"\n"
            "error: frmOrder does not close and is abandoned\n");
  EXPECT_EQ(stubborn.Form().refusals, 6);
}

TEST(Ending, APersonSeesTheFormAgainAfterEachChange) {
  TextSession session;
  const std::string printed = session.Play("get form\nset txtName Cups\nclose\n", TextSession::Person::Yes);
  EXPECT_NE(printed.find("[Cups "), std::string::npos) << printed;
  std::size_t pictures = 0;
  for (std::size_t at = printed.find("text: ┌─ Order"); at != std::string::npos; at = printed.find("text: ┌─ Order", at + 1))
    ++pictures;
  EXPECT_EQ(pictures, 2u) << "one on opening, one after the change, none after a look\n" << printed;
}

}  // namespace
}  // namespace console
