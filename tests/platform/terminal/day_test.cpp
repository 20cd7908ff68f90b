// A shop's day by keys on a terminal and by commands: the same rows in the database.

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "tests/platform/terminal/live_program.h"

namespace live {
namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  return text.str();
}

/// What the console prints for the commands, at work on a database in the folder.
std::string ByCommands(const fs::path& folder, const std::string& commands) {
  std::ofstream(folder / "commands") << commands;
  const std::string console = "cd " + folder.string() +
                              " && XDG_STATE_HOME=state " CONSOLE_PROGRAM
                              " --database shop.db --app-folder . --now '2024-03-15 09:30:00' --script commands >printed";
  EXPECT_EQ(std::system(console.c_str()), 0) << ReadAll(folder / "printed");
  return ReadAll(folder / "printed");
}

std::string RowsOf(const fs::path& folder) {
  std::istringstream printed(ByCommands(folder,
                                        "sql select * from mosGoodsRequestHeader order by GRHshopID,GRHrequestID\n"
                                        "sql select * from mosGoodsRequestDetail order by GRDshopID,GRDrequestID,GRDDetailid\n"
                                        "quit\n"));
  std::string rows;
  for (std::string line; std::getline(printed, line);) {
    if (line.starts_with("row: ")) rows += line + '\n';
  }
  return rows;
}

/// A line by its code; `takes` are the keys from the quantity on.
void EnterLine(LiveProgram& program, const std::string& code, const std::string& name, const std::string& quantity,
               const std::vector<std::string>& takes) {
  program.Type(code);
  program.Press("Enter");
  program.Shows(name);
  program.Type(quantity);
  for (const std::string& key : takes) program.Press(key);
  program.Shows("Item:            [          ");
}

TEST(Live, ADayOnATerminalLeavesTheRowsOfTheSameDayByCommands) {
  LiveProgram program({.options = "--database shop.db --user 1"});
  program.Press("Ctrl+J");
  program.Shows("Do you want to add stock out items?");
  program.Type("n");
  program.Shows("Request Type");
  program.Type("For the spring window");
  for (const char* key : {"Enter", "Tab", "Ctrl+J"}) program.Press(key);
  program.Shows("Goods Request Details");
  EnterLine(program, "KT1003", "Frying pan 28 cm", "12", {"Ctrl+J"});
  EnterLine(program, "KT1008", "Stock pot 5 l", "3", {"Enter", "Enter", "Enter"});
  program.Press("Esc");
  program.ShowsNot("Goods Request Details");
  program.Shows("2 lines");
  program.Press("Alt+O");
  program.Shows("GR24/21");
  program.Press("Alt+P");
  program.Shows("To Screen");
  for (const char* key : {"Tab", "Enter"}) program.Press(key);
  program.Shows("Frying pan 28 cm");  // the slip, over the dialog
  program.Shows("Esc closes");
  program.Press("Esc");
  program.ShowsNot("Esc closes");
  program.Press("Alt+D");
  program.Shows("Are you sure you want to Delete GR24/21 ?");
  program.Type("y");
  program.Shows("Reason for deletion");
  program.Type("Ordered by telephone");
  for (const char* key : {"Enter", "Enter"}) program.Press(key);
  program.ShowsNot("Reason for deletion");
  program.Press("Alt+C");
  program.Shows("Process date:");
  program.Press("Esc");
  EXPECT_EQ(program.ExitStatus(), 0);

  const fs::path commands = program.Folder() / "commands_only";
  fs::create_directories(commands);
  ByCommands(commands,
             "click cmdnew\nanswer no\nset txtRemarks For the spring window\nrightclick lvwrequest\npick mnuAdd\n"
             "set txtitemcode KT1003\npress txtitemcode Enter\nset txtQuantity 12\nclick cmdOk\n"
             "set txtitemcode KT1008\npress txtitemcode Enter\nset txtQuantity 3\nclick cmdOk\nclose\nclick cmdOK\n"
             "click CmdDelete\nanswer yes\nset txtcanreason Ordered by telephone\nclick cmdok\nquit\n");
  const std::string rows = RowsOf(program.Folder());
  EXPECT_NE(rows.find("GR24/21"), std::string::npos);
  EXPECT_EQ(rows, RowsOf(commands));
}

}  // namespace
}  // namespace live
