#include <gtest/gtest.h>

#include "tests/src/printing/print_day.h"
#include "tests/support/report_notes.h"

namespace {

using support::PrintDay;

TEST(PrintDialog, OpensOnTheScreenWhateverTheSettingsChose) {
  PrintDay day;
  for (const auto& [windowsprint, printtoscreen] : {std::pair{"0", "0"}, {"0", "1"}, {"1", "0"}}) {
    day.Settings({{"windowsprint", windowsprint}, {"printtoscreen", printtoscreen}});
    day.Print([&](goods::frmPrint& dialog) {
      EXPECT_TRUE(dialog.optScreen.Value());
      EXPECT_FALSE(dialog.optPrint.Value());
      EXPECT_EQ(dialog.optwindowsprint.Visible(), std::string_view(windowsprint) == "1");
      support::Press(dialog.optScreen, "Esc");
      EXPECT_FALSE(dialog.IsLoaded());
    });
  }
  EXPECT_TRUE(day.workstation.started.empty());
}

TEST(PrintDialog, ToScreenWritesTheSlipAndStartsTheEditorMaximised) {
  struct Case {
    const char* windows;
    const char* editorFile;
    const char* commandLine;
  };
  for (const Case& machine :
       {Case{"C:\\WINDOWS", "C:\\WINDOWS\\command\\edit.com", "C:\\WINDOWS\\command\\edit.com   c:\\Reqtohq.txt"},
        Case{"C:\\WinNT", "C:\\WinNT\\system32\\edit.com", "C:\\WinNT\\system32\\edit.com   c:\\Reqtohq.txt"},
        Case{"C:\\Windows", "", "\"C:\\Windows\\notepad.exe\" \"c:\\Reqtohq.txt\""}}) {
    PrintDay day;
    day.workstation.windowsDirectory = machine.windows;
    if (*machine.editorFile != '\0') day.workstation.files[machine.editorFile] = "program";
    day.Print([](goods::frmPrint& dialog) { support::Click(dialog.cmdOK); });
    ASSERT_EQ(day.workstation.started.size(), 1u);
    EXPECT_EQ(day.workstation.started[0].first, machine.commandLine);
    EXPECT_EQ(day.workstation.started[0].second, 3);
    EXPECT_TRUE(day.workstation.files.contains("C:\\Reqtohq.txt"));
    EXPECT_TRUE(day.desktop.sawHourglass);
    EXPECT_EQ(day.desktop.hourglasses, 0);
  }
}

TEST(PrintDialog, AGuardedRootOfDriveCSendsTheSlipToTheTemporaryFolder) {
  PrintDay day;
  day.workstation.refusedPaths.insert("C:\\Reqtohq.txt");
  day.Print([](goods::frmPrint& dialog) { support::Click(dialog.cmdOK); });
  EXPECT_TRUE(day.workstation.files.contains("C:\\temp\\Reqtohq.txt"));
  ASSERT_EQ(day.workstation.started.size(), 1u);
  EXPECT_EQ(day.workstation.started[0].first, "\"C:\\WINDOWS\\notepad.exe\" \"C:\\temp\\Reqtohq.txt\"");
}

TEST(PrintDialog, ToPrinterWritesToThePortOnly) {
  PrintDay day;
  day.Print([](goods::frmPrint& dialog) {
    support::Click(dialog.optPrint);
    support::Click(dialog.cmdOK);
  });
  EXPECT_TRUE(day.workstation.files.contains("LPT1"));
  EXPECT_FALSE(day.workstation.files.contains("C:\\Reqtohq.txt"));
  EXPECT_TRUE(day.workstation.started.empty());
}

TEST(PrintDialog, APortThatCannotBeReachedIsToldAndTheDialogGoes) {
  PrintDay day;
  day.workstation.refusedPaths.insert("LPT1");
  day.Print([](goods::frmPrint& dialog) {
    support::Click(dialog.optPrint);
    support::Click(dialog.cmdOK);
    EXPECT_FALSE(dialog.IsLoaded());
  });
  EXPECT_EQ(day.errors->lines, std::vector<std::string>{"frmMaster |PrintBill|70|"});
}

TEST(PrintDialog, ASlipThatFailsIsNotShownAndTheDialogStaysForAnotherTry) {
  struct Case {
    const char* what;
    std::map<std::string, std::string> settings;
    int failing;  ///< the statement that fails; 0 for none
    const char* reported;
  };
  for (const Case& wrong : {Case{"before the last slip is overwritten", {{"pagewidth", "20"}}, 0, "frmMaster |PrintBill|5|"},
                            Case{"in the middle", {{"showitemcodeinprint", "1"}, {"Unit", "-3"}}, 0, "frmMaster |PrintBill|5|"},
                            Case{"in the footer", {}, 2, "frmMaster |FooterPrint|"}}) {
    PrintDay day;
    day.AddLine(1, 11, "1");
    day.workstation.files["C:\\Reqtohq.txt"] = "the last slip";
    day.Settings(wrong.settings);
    day.Print([&](goods::frmPrint& dialog) {
      if (wrong.failing > 0) day.log.FailAt(wrong.failing);
      support::Click(dialog.cmdOK);
      ASSERT_EQ(day.errors->lines.size(), 1u) << wrong.what;
      EXPECT_TRUE(day.errors->lines[0].starts_with(wrong.reported)) << day.errors->lines[0];
      EXPECT_TRUE(day.workstation.started.empty()) << wrong.what;
      ASSERT_TRUE(dialog.IsLoaded()) << wrong.what;
      EXPECT_EQ(day.desktop.hourglasses, 0) << wrong.what;
      day.Settings({});
      support::Click(dialog.cmdOK);
      EXPECT_FALSE(dialog.IsLoaded()) << wrong.what;
    });
    EXPECT_EQ(day.workstation.started.size(), 1u) << wrong.what;
  }
}

TEST(PrintDialog, SettingsThatCannotBeOpenedAreToldOfOnceAPrint) {
  PrintDay day;
  day.workstation.files.erase("C:\\shop\\ShopSetting.txt");
  const auto expectTold = [&] {
    day.desktop.ExpectMessage(" Settings.ini file not found", controls::Answer::Ok, controls::kCritical);
  };
  expectTold();
  day.Print([&](goods::frmPrint& dialog) {
    day.desktop.Verify();  // told of by the load, and not again by the print that follows it
    support::Click(dialog.cmdOK);
    expectTold();
    support::Click(dialog.cmdOK);
    day.desktop.Verify();
    day.Settings({});
    support::Click(dialog.cmdOK);
    EXPECT_FALSE(dialog.IsLoaded());
  });
  const std::string notFound = "basGoodsPurchase|FileCode |53|", noWidth = "frmMaster |PrintBill|5|";
  EXPECT_EQ(day.errors->lines, (std::vector{notFound, noWidth, notFound, noWidth}));
  EXPECT_EQ(day.workstation.started.size(), 1u);
}

TEST(PrintDialog, AnEditorThatCannotBeStartedLeavesTheSlipAndTheDialog) {
  PrintDay day;
  day.workstation.startsPrograms = false;
  day.Print([&](goods::frmPrint& dialog) {
    support::Click(dialog.cmdOK);
    EXPECT_TRUE(dialog.IsLoaded());
    EXPECT_EQ(day.desktop.hourglasses, 0);
    support::Click(dialog.cmdCancel);
  });
  EXPECT_TRUE(day.workstation.files["C:\\Reqtohq.txt"].starts_with("Sl.No"));
  EXPECT_EQ(day.errors->lines, std::vector<std::string>{"frmPrint |cmdOK_Click|53|"});
}

TEST(PrintDialog, WindowsPrintDrivesTheReportServerInOrder) {
  PrintDay day;
  const auto calls = std::make_shared<std::vector<std::string>>();
  day.registry.Register("Crystal.CRPE.Application", [calls] { return std::make_shared<support::ReportNotes>(calls); });
  day.Settings({{"windowsprint", "1"}});
  day.workstation.files["C:\\shop\\ShopSetting.txt"] += "reportpassword :=own secret\r\n";
  day.Print([](goods::frmPrint& dialog) {
    support::Click(dialog.optwindowsprint);
    support::Click(dialog.cmdOK);
  });
  EXPECT_EQ(*calls, (std::vector<std::string>{
                        "LogOnServer|pdsodbc.dll|admindsnv2|adminv2|admin|own secret",
                        "OpenReport|C:\\shop\\reports\\reqtohq.rpt", "ParameterFields.Item(1).SetCurrentValue|Request To HQ",
                        "ParameterFields.Item(2).SetCurrentValue| ", "ParameterFields.Item(3).SetCurrentValue|5",
                        "ParameterFields.Item(4).SetCurrentValue|1", "ParameterFields.Item(5).SetCurrentValue|Ana Lima",
                        "ParameterFields.Item(6).SetCurrentValue|Grocery", "PrintWindowOptions.HasPrintButton=True",
                        "PrintWindowOptions.HasPrintSetupButton=True", "PrintWindowOptions.HasNavigationControls=True",
                        "PrintWindowOptions.HasZoomControl=True", "Preview|Request To HQ|0|0|0|0|30343168"}));
  EXPECT_TRUE(day.errors->lines.empty());
}

TEST(PrintDialog, WithoutAReportServerTheDialogSaysSoAndGoes) {
  PrintDay day;
  day.Settings({{"windowsprint", "1"}});
  day.Print([](goods::frmPrint& dialog) {
    support::Click(dialog.optwindowsprint);
    support::Click(dialog.cmdOK);
    EXPECT_FALSE(dialog.IsLoaded());
  });
  EXPECT_EQ(day.errors->lines, std::vector<std::string>{"frmPrint |WIndowsprint|429|"});
}

TEST(PrintDialog, ARegisterWithoutACurrentRequestPassesNought) {
  PrintDay day;
  day.registerForm->flexMaster.SetTextMatrix(1, 0, "");
  day.Print([](goods::frmPrint& dialog) { support::Click(dialog.cmdOK); });
  EXPECT_EQ(day.log.Starting("select u.UnitCode").size(), 1u);
  EXPECT_NE(day.log.Starting("select u.UnitCode")[0].find("h.GRHrequestID=0 "), std::string::npos);
}

}  // namespace
