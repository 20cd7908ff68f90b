// The registered component, worked at its windows, and the report server it finds: two strangers in one process.
#include <gtest/gtest.h>

#include "platform/windows/com/com_factory.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/window_queries.h"
#include "tests/windows/printing/recording_server.h"

namespace {

std::string TextOf(HWND window) {
  return windows::Utf8(windows::WindowText(window));
}

/// The button or other window with this text that can be used, null for none.
HWND UsableChild(HWND form, const std::string& text) {
  for (HWND window : windows::WindowsInside(form)) {
    if (IsWindowVisible(window) && IsWindowEnabled(window) && TextOf(window) == text) return window;
  }
  return nullptr;
}

/// Somebody at the windows of this thread: takes one step whenever the form that it is for has come up.
class Person {
 public:
  struct Step {
    std::string form;    ///< its caption
    std::string button;  ///< pressed; empty closes the form
  };

  explicit Person(std::vector<Step> steps) : timer_(SetTimer(nullptr, 0, 20, Look)) {
    steps_ = std::move(steps);
    messages.clear();
  }
  Person(const Person&) = delete;
  Person& operator=(const Person&) = delete;
  ~Person() { KillTimer(nullptr, timer_); }

  bool IsDone() const { return steps_.empty(); }

  static inline std::vector<std::string> messages;
  static inline HWND activeAtLast = nullptr;  ///< the window in front as the last step was taken

 private:
  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
    for (HWND window : windows::WindowsOfThread()) {
      if (IsWindowVisible(window) && IsWindowEnabled(window) && Meet(window)) return;
    }
  }

  /// Whether something was done with the window.
  static bool Meet(HWND window) {
    if (windows::IsOfClass(window, L"#32770")) {
      messages.push_back(TextOf(window));
      PostMessageW(window, WM_COMMAND, IDOK, 0);
      return true;
    }
    if (!windows::IsOfClass(window, L"ShopForm")) return false;
    if (steps_.empty()) {
      PostMessageW(window, WM_CLOSE, 0, 0);  // what is left open would keep the test for ever
      return true;
    }
    const Step step = steps_.front();
    if (TextOf(window) != step.form) return false;
    const HWND button = step.button.empty() ? nullptr : UsableChild(window, step.button);
    if (!step.button.empty() && button == nullptr) return false;
    activeAtLast = GetActiveWindow();
    steps_.erase(steps_.begin());
    if (button) {
      SetActiveWindow(window);
      PostMessageW(button, BM_CLICK, 0, 0);
    } else {
      PostMessageW(window, WM_CLOSE, 0, 0);
    }
    return true;
  }

  static inline std::vector<Step> steps_;
  UINT_PTR timer_;
};

class PrintByDll : public testing::Test {
 protected:
  static void SetUpTestSuite() { ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK); }
  static void TearDownTestSuite() { CoUninitialize(); }

  /// The register of shop 1 is opened and its first request printed through the report server.
  void WindowsPrint() {
    const late::ObjectPtr database = factory.Create("ShopSuite.Database");
    const late::ObjectPtr request = factory.Create("tq8v4461.clsGoodsRequest");
    request->PutRef("adocon", database->Call("Open").ToObject());
    request->Put("strMsgboxCaption", "Goods Request");
    for (const char* id : {"intCompanyID", "intUserID", "intShopID"}) request->Put(id, std::int32_t{1});
    request->Put("dtProcessDate", vb::MakeDate(2024, 3, 15));
    const Person person(
        {{"Goods Request to HQ", "&Print"}, {"Print", "Windows Print"}, {"Print", "&OK"}, {"Goods Request to HQ", ""}});
    request->Call("Show");
    EXPECT_TRUE(person.IsDone());
  }

  windows::ComFactory factory;
  Recording recording;
};

}  // namespace

TEST_F(PrintByDll, TheReportServerIsFoundAndDriven) {
  const ServerOnDuty server("Crystal.CRPE.Application", recording);
  WindowsPrint();
  EXPECT_EQ(Person::messages, std::vector<std::string>());
  ASSERT_EQ(recording.calls.size(), 13u);
  EXPECT_EQ(recording.calls[0], "Application.LogOnServer('pdsodbc.dll', 'admindsnv2', 'adminv2', 'admin', 'plumgate0417')");
  EXPECT_TRUE(recording.calls[1].ends_with("\\reports\\reqtohq.rpt')")) << recording.calls[1];
  EXPECT_EQ(recording.calls[4], "Field(3).SetCurrentValue(13)");
  EXPECT_EQ(recording.calls[6], "Field(5).SetCurrentValue('Nora Halvard')");
  EXPECT_EQ(recording.calls[12], "Report.Preview('Request To HQ', 0, 0, 0, 0, 30343168)");
  EXPECT_EQ(recording.living, 0);
}

TEST_F(PrintByDll, ThePreviewStaysInFrontAndItsServerAsLongAsItIsOpen) {
  const ServerOnDuty server("Crystal.CRPE.Application", recording);
  recording.shows = true;
  WindowsPrint();
  ASSERT_TRUE(IsWindow(recording.preview));
  EXPECT_EQ(Person::activeAtLast, recording.preview) << "behind the register";
  EXPECT_EQ(recording.living, 2) << "the server and the report";
  DestroyWindow(recording.preview);
  MSG message{};
  while (recording.living > 0 && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  EXPECT_EQ(recording.living, 0);
}

TEST_F(PrintByDll, AServerThatRefusesIsToldOfOnceAndTheRegisterIsBack) {
  const ServerOnDuty server("Crystal.CRPE.Application", recording);
  recording.failing = "Application.LogOnServer";
  recording.failure = static_cast<HRESULT>(0x800A5024);
  WindowsPrint();
  EXPECT_EQ(Person::messages, std::vector<std::string>{"Error"});
  EXPECT_EQ(recording.calls.size(), 1u);
  EXPECT_EQ(recording.living, 0);
}
