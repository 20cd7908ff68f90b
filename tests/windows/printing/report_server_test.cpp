// The report server as the component meets it: a class of somebody else's, found in the registry and driven through COM.
#include <gtest/gtest.h>

#include "platform/windows/com/com_factory.h"
#include "tests/src/printing/print_day.h"
#include "tests/windows/printing/recording_server.h"

namespace {

constexpr const char* kProgId = "Crystal.CRPE.Application";

class ReportServer : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK); }
  static void TearDownTestSuite() { CoUninitialize(); }

  ReportServer() {
    day.registry.Unregister(kProgId);
    day.registry.Register(kProgId, [this] { return factory.Create(kProgId); });
    day.Settings({{"windowsprint", "1"}});
  }

  void WindowsPrint() {
    day.Print([](goods::frmPrint& dialog) {
      support::Click(dialog.optwindowsprint);
      support::Click(dialog.cmdOK);
      EXPECT_FALSE(dialog.IsLoaded());
    });
  }

  windows::ComFactory factory;
  support::PrintDay day;
  Recording recording;
};

}  // namespace

TEST_F(ReportServer, IsLoggedOnGivenItsSixValuesAndShowsThePreview) {
  const ServerOnDuty server(kProgId, recording);
  day.Run("update loUsers set UserName = 'Żaneta Ćwik' where UserID = 1");
  WindowsPrint();
  EXPECT_EQ(recording.calls, (std::vector<std::string>{
                                 "Application.LogOnServer('pdsodbc.dll', 'admindsnv2', 'adminv2', 'admin', 'plumgate0417')",
                                 "Application.OpenReport('C:\\shop\\reports\\reqtohq.rpt')",
                                 "Field(1).SetCurrentValue('Request To HQ')",
                                 "Field(2).SetCurrentValue(' ')",
                                 "Field(3).SetCurrentValue(5)",
                                 "Field(4).SetCurrentValue(1)",
                                 "Field(5).SetCurrentValue('Żaneta Ćwik')",
                                 "Field(6).SetCurrentValue('Grocery')",
                                 "Options.HasPrintButton = True",
                                 "Options.HasPrintSetupButton = True",
                                 "Options.HasNavigationControls = True",
                                 "Options.HasZoomControl = True",
                                 "Report.Preview('Request To HQ', 0, 0, 0, 0, 30343168)",
                             }));
  EXPECT_TRUE(day.errors->lines.empty());
  EXPECT_EQ(recording.living, 0) << "the server is held beyond the print";
}

TEST_F(ReportServer, ThatRefusesEndsThePrintWithItsOwnError) {
  const ServerOnDuty server(kProgId, recording);
  recording.failure = static_cast<HRESULT>(0x800A5024);
  std::size_t made = 0;
  for (const char* member : {"Application.LogOnServer", "Application.OpenReport", "Field(6).SetCurrentValue", "Report.Preview"}) {
    recording.failing = member;
    recording.calls.clear();
    day.errors->lines.clear();
    WindowsPrint();
    EXPECT_EQ(day.errors->lines, std::vector<std::string>{"frmPrint |WIndowsprint|" + std::to_string(0x5024) + "|"}) << member;
    ASSERT_FALSE(recording.calls.empty()) << member;
    EXPECT_TRUE(recording.calls.back().starts_with(member)) << "went on after " << member;
    EXPECT_GT(recording.calls.size(), made) << member;
    made = recording.calls.size();
    EXPECT_EQ(recording.living, 0) << member;
  }
}

TEST_F(ReportServer, ThatIsNotInstalledIsToldOf) {
  WindowsPrint();
  EXPECT_EQ(day.errors->lines, std::vector<std::string>{"frmPrint |WIndowsprint|429|"});
  { const ServerOnDuty server(kProgId, recording); }
  WindowsPrint();
  EXPECT_EQ(day.errors->lines.size(), 2u);
  EXPECT_TRUE(recording.calls.empty());
}
