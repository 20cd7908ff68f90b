// Forms over forms in real windows: owners, refusals, quitting, and what is left behind.

#include <gtest/gtest.h>

#include "base/vb/error.h"
#include "platform/windows/desktop/metrics.h"
#include "platform/windows/wide_text.h"
#include "tests/base/controls/counter_form.h"
#include "tests/windows/desktop/leftovers.h"
#include "tests/windows/desktop/windows_driver.h"
#include "tests/windows/desktop/windows_refused.h"

namespace counter {
namespace {

class ModalForms : public testing::Test {
 protected:
  WindowsDriver person;
  DrivenDesktop& desktop = person.Desktop();
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(desktop);
  std::shared_ptr<frmCounter> above = std::make_shared<frmCounter>(desktop, "frmAbove");

  void SetUp() override {
    form->On(form->cmdOk.Click, "cmdOk_Click", [this] { above->Show(form.get()); });
  }
  /// A visible window of the host's, in front of its others.
  static HWND HostsWindow(const wchar_t* title) {
    const HWND window = CreateWindowExW(0, L"STATIC", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr,
                                        windows::ThisModule(), nullptr);
    SetActiveWindow(window);
    return window;
  }
};

TEST_F(ModalForms, OnlyTheFormOnTopCanBeUsed) {
  person.Work(*form, [&] {
    const HWND below = desktop.HandleOf(*form);
    person.WorkInNext([&](controls::Form& top) {
      EXPECT_EQ(&top, above.get());
      EXPECT_FALSE(IsWindowEnabled(below));
      EXPECT_EQ(GetWindow(desktop.HandleOf(top), GW_OWNER), below);
    });
    person.Click(form->cmdOk);
    EXPECT_FALSE(above->IsShown());
    EXPECT_TRUE(IsWindowEnabled(below));
    EXPECT_EQ(GetActiveWindow(), below);
    EXPECT_EQ(person.Focus(*form), "cmdOk") << "where the person left off";
  });
}

TEST_F(ModalForms, TheHostsWindowIsDisabledWhileTheRegisterIsOpenAndNotAMomentLonger) {
  const HWND host = HostsWindow(L"Host");
  const HWND asleep = HostsWindow(L"Asleep");
  EnableWindow(asleep, FALSE);
  SetActiveWindow(host);
  person.Work(*form, [&] {
    EXPECT_EQ(GetWindow(desktop.HandleOf(*form), GW_OWNER), host);
    EXPECT_FALSE(IsWindowEnabled(host));
  });
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_FALSE(IsWindowEnabled(asleep)) << "what was disabled before stays so";
  DestroyWindow(host);
  DestroyWindow(asleep);
}

TEST_F(ModalForms, AFormThatRefusesToCloseStaysWithItsText) {
  int asked = 0;
  form->On(form->QueryUnload, "Form_QueryUnload", [&](bool& stay, int) { stay = ++asked == 1; });
  person.Work(*form, [&] {
    person.Type(form->txtItem, "typed");
    SendMessageW(desktop.HandleOf(*form), WM_SYSCOMMAND, SC_CLOSE, 0);
    desktop.DoEvents();
    EXPECT_EQ(asked, 1);
    ASSERT_TRUE(form->IsShown());
    EXPECT_TRUE(IsWindowVisible(desktop.HandleOf(*form)));
    EXPECT_EQ(person.Read(form->txtItem, "Text"), "typed");
  });
  EXPECT_EQ(asked, 2);
  EXPECT_FALSE(form->IsShown());
}

TEST_F(ModalForms, AMessageBelongsToItsFormAndTheFocusComesBack) {
  form->On(form->txtItem.Validate, "txtItem_Validate", [&](bool& keep) {
    keep = form->txtItem.Text() != "7";
    if (keep) form->MsgBox("Seven is wanted", controls::kExclamation, "Shop");
  });
  person.Work(*form, [&] {
    person.Answer(controls::Answer::Ok);
    SetFocus(desktop.HandleOf(form->txtQuantity));
    desktop.DoEvents();
    EXPECT_EQ(person.LastMessage(), "Seven is wanted");
    ASSERT_EQ(desktop.messageOwners.size(), 1u);
    EXPECT_EQ(desktop.messageOwners[0], desktop.HandleOf(*form));
    EXPECT_EQ(person.Focus(*form), "txtItem");
    person.Type(form->txtItem, "7");
    SetFocus(desktop.HandleOf(form->txtQuantity));
    desktop.DoEvents();
    EXPECT_EQ(person.Focus(*form), "txtQuantity");
  });
}

TEST_F(ModalForms, AHostThatQuitsEndsEveryLoopAndStillHearsOfIt) {
  person.Work(*form, [&] {
    person.WorkInNext([&](controls::Form&) {
      above->On(above->QueryUnload, "Form_QueryUnload", [](bool& stay, int) { stay = true; });
      PostQuitMessage(7);
    });
    person.Click(form->cmdOk);
    EXPECT_FALSE(above->IsShown());
  });
  EXPECT_FALSE(form->IsShown());
  MSG message{};
  bool quits = false;
  while (!quits && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) quits = message.message == WM_QUIT;
  ASSERT_TRUE(quits);
  EXPECT_EQ(message.wParam, 7u);
}

TEST_F(ModalForms, AnOwnerThatIsDestroyedTakesTheFormsWithItAndWhatWasTypedIsAnsweredFor) {
  const HWND host = HostsWindow(L"Host");
  const HWND splash = HostsWindow(L"Splash");
  above->On(above->QueryUnload, "Form_QueryUnload", [&](bool& stay, int) {
    above->story.push_back(above->txtItem.Text() + (stay ? "" : " asked"));
    stay = above->MsgBox("Keep it open?", controls::kYesNo + controls::kDefaultButton2, "Shop") == controls::Answer::Yes;
  });
  person.Work(*form, [&] {
    person.WorkInNext([&](controls::Form&) {
      person.Type(above->txtItem, "typed");
      DestroyWindow(splash);
      EXPECT_EQ(above->txtItem.Text(), "typed");
    });
    person.Click(form->cmdOk);
    EXPECT_FALSE(above->IsShown());
    EXPECT_EQ(above->Told(), "typed asked");
    form->MsgBox("Nobody sees this", controls::kYesNo, "Shop");
  });
  EXPECT_FALSE(form->IsShown());
  EXPECT_TRUE(desktop.messages.empty());
  EXPECT_TRUE(IsWindowEnabled(host));
  EXPECT_EQ(FindWindowW(L"ShopForm", nullptr), nullptr);
  DestroyWindow(host);
}

TEST_F(ModalForms, AFormThatNeverAgreesIsAbandonedWithItsWindowAndLoadedAfreshNextTime) {
  const HWND splash = HostsWindow(L"Splash");
  int asked = 0;
  form->On(form->QueryUnload, "Form_QueryUnload", [&](bool& stay, int) { stay = ++asked <= 3; });
  person.Work(*form, [&] {
    person.Type(form->txtItem, "typed");
    DestroyWindow(splash);
  });
  EXPECT_EQ(asked, 3);
  EXPECT_FALSE(form->IsShown());
  person.Work(*form, [&] { EXPECT_EQ(person.Read(form->txtItem, "Text"), ""); });
}

TEST_F(ModalForms, OnlyTheFormWhoseWindowIsDestroyedCloses) {
  person.Work(*form, [&] {
    person.WorkInNext([&](controls::Form& top) { DestroyWindow(desktop.HandleOf(top)); });
    person.Click(form->cmdOk);
    EXPECT_FALSE(above->IsShown());
    ASSERT_TRUE(form->IsShown());
    EXPECT_TRUE(IsWindowEnabled(desktop.HandleOf(*form)));
    person.Type(form->txtItem, "goes on");
    EXPECT_EQ(person.Read(form->txtItem, "Text"), "goes on");
  });
}

TEST_F(ModalForms, ARefusedWindowIsAnErrorAndTheHostCanBeUsed) {
  const HWND host = HostsWindow(L"Host");
  for (const wchar_t* refused : {L"ShopForm", WC_EDITW, WC_LISTVIEWW, WC_COMBOBOXW}) {
    const WindowsRefused hook(refused);
    try {
      form->Show();
      ADD_FAILURE() << "shown without its windows";
    } catch (const vb::RunTimeError& error) {
      EXPECT_EQ(error.Number(), 7);
      EXPECT_TRUE(error.Description().starts_with("The window of ")) << error.Description();
    }
    EXPECT_FALSE(form->IsShown());
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_EQ(FindWindowW(L"ShopForm", nullptr), nullptr) << "left behind, refused " << windows::Utf8(refused);
  }
  person.Work(*form, [&] {
    {
      const WindowsRefused hook(L"ShopForm");
      person.Click(form->cmdOk);
    }
    EXPECT_EQ(form->errors, std::vector<std::string>{"cmdOk_Click 7"});
    EXPECT_TRUE(IsWindowEnabled(desktop.HandleOf(*form)));
  });
  DestroyWindow(host);
}

TEST_F(ModalForms, TheTaskListClosesOnlyTheFormOnTop) {
  person.Work(*form, [&] {
    person.WorkInNext([&](controls::Form&) {
      SendMessageW(desktop.HandleOf(*form), WM_CLOSE, 0, 0);
      desktop.DoEvents();
      EXPECT_TRUE(form->IsLoaded());
      EXPECT_TRUE(above->IsShown());
    });
    person.Click(form->cmdOk);
    EXPECT_TRUE(form->IsShown());
  });
}

TEST_F(ModalForms, AWindowThatAFormOpenedStaysInFrontOfWhatIsBelow) {
  HWND preview = nullptr;
  person.Work(*form, [&] {
    person.WorkInNext([&](controls::Form& top) {
      preview = HostsWindow(L"Preview");
      top.Unload();
    });
    person.Click(form->cmdOk);
    EXPECT_EQ(GetActiveWindow(), preview);
    form->txtItem.SetFocus();
    EXPECT_EQ(GetActiveWindow(), preview);
    SetActiveWindow(desktop.HandleOf(*form));
    desktop.DoEvents();
    EXPECT_EQ(person.Focus(*form), "txtItem");
  });
  DestroyWindow(preview);
}

TEST_F(ModalForms, WithoutAnActiveWindowTheFormBelongsToTheHostsMainWindow) {
  const HWND host = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr,
                                    windows::ThisModule(), nullptr);
  ShowWindow(host, SW_SHOWNOACTIVATE);
  ASSERT_EQ(GetActiveWindow(), nullptr);
  person.Work(*form, [&] { EXPECT_EQ(GetWindow(desktop.HandleOf(*form), GW_OWNER), host); });
  DestroyWindow(host);
}

TEST_F(ModalForms, AnErrorInsideAWindowsOwnWorkReachesTheCaller) {
  form->cmdClose.Click.Wire([] { throw std::runtime_error("not a run-time error of the forms"); });
  EXPECT_THROW(person.Work(*form, [&] { person.Click(form->cmdClose); }), std::runtime_error);
  EXPECT_FALSE(form->IsShown());
  EXPECT_EQ(desktop.HandleOf(*form), nullptr);
}

TEST_F(ModalForms, FiftyOpeningsLeaveNothingBehind) {
  const auto openBoth = [&] {
    person.Work(*form, [&] {
      person.WorkInNext([](controls::Form&) {});
      person.Click(form->cmdOk);
      form->lvwLines.Add("line");
      form->tabPages.SetTab(1);
      desktop.DoEvents();
    });
  };
  openBoth();  // what the system keeps from the first time on is not counted
  const std::size_t graphics = GraphicsObjects();
  const std::size_t windows = Windows();
  ASSERT_GT(graphics, 0u);
  for (int time = 0; time < 50; ++time) openBoth();
  EXPECT_LE(GraphicsObjects(), graphics + 4) << "less than one in ten openings";
  EXPECT_EQ(Windows(), windows);
  EXPECT_EQ(FindWindowW(L"ShopForm", nullptr), nullptr);
}

}  // namespace
}  // namespace counter
