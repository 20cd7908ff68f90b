// The register in real windows: from Show to its first complete picture with few and with many requests, and paging through many.
// Prints rows of the table of measurements.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "base/controls/form.h"
#include "platform/windows/desktop/windows_desktop.h"
#include "platform/windows/workstation/windows_workstation.h"
#include "src/entry/cls_goods_request.h"
#include "src/register/frm_master.h"
#include "suite/engine/objects/database.h"
#include "suite/helpers/register_helpers.h"
#include "suite/shop/generator.h"
#include "suite/shop/shop.h"

namespace {

constexpr int kMany = 100'000;
constexpr int kFew = 100;
constexpr int kRuns = 7;
constexpr int kPages = 300;

double Now() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

double Median(std::vector<double> times) {
  std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
  return times[times.size() / 2];
}

/// Paints a form, notes when all of it was there, does the work that was put in, and closes it.
class MeasuredDesktop : public windows::WindowsDesktop {
 public:
  double painted = 0;
  std::function<void(controls::Form&)> work;

  /// Everything that is due is handled and drawn.
  void Paint(controls::Form& form) {
    DoEvents();
    RedrawWindow(HandleOf(form), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
  }

  controls::Answer MsgBox(controls::Form*, const controls::Message& message) override {
    std::fprintf(stderr, "unexpected message: %s\n", message.text.c_str());
    return message.AnswerOf(1);
  }

 protected:
  void RunModal(controls::Form& form) override {
    Paint(form);
    painted = Now();
    if (work) work(form);
    form.Unload();
  }
};

/// Shows nothing: the fill alone.
class NoDesktop : public controls::Desktop {
 public:
  controls::Answer MsgBox(controls::Form*, const controls::Message& message) override { return message.AnswerOf(1); }
  controls::Menu* PopupMenu(controls::Form&, controls::Menu&) override { return nullptr; }

 protected:
  void RunModal(controls::Form& form) override { form.Unload(); }
};

/// The component on a desktop, with a database of its own in memory.
class Shop {
 public:
  Shop(controls::Desktop& desktop, int requests) : module_(goods::Services{desktop, workstation_, registry_}) {
    suite::LoadSchema(*database_, false);
    suite::LoadSample(*database_);
    suite::GenerateShop(*database_, {requests, 0, 1});
    suite::RegisterAdo(registry_);
    suite::RegisterHelpers(registry_,
                           std::make_shared<suite::Surroundings>(suite::Surroundings{desktop, workstation_, registry_, {}}));
    request_ = std::make_shared<goods::clsGoodsRequest>(module_);
    request_->adocon(database_->Connect());
    request_->strMsgboxCaption = "Goods Request";
    request_->intCompanyID = request_->intUserID = request_->intShopID = 1;
    request_->dtProcessDate = suite::SampleProcessDate();
  }

  void Show() { request_->Show(); }
  controls::FlexGrid& Grid() { return module_.Register().flexMaster; }

 private:
  windows::WindowsWorkstation workstation_;
  late::ClassRegistry registry_;
  std::shared_ptr<suite::Database> database_ = suite::Database::Open("");
  goods::Module module_;
  std::shared_ptr<goods::clsGoodsRequest> request_;
};

void PrintRow(const std::string& what, double figure, double limit, bool atMost, const char* unit, const std::string& detail) {
  const bool holds = atMost ? figure <= limit : figure >= limit;
  std::printf("| %s | %.2f %s | %s%.2f %s | %s | %s |\n", what.c_str(), figure, unit, atMost ? "" : "at least ", limit, unit,
              holds ? "holds" : "**missed**", detail.c_str());
}

std::string Milliseconds(double time) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f ms", time);
  return text;
}

void MeasureFirstPicture() {
  MeasuredDesktop desktop;
  NoDesktop nothing;
  Shop few(desktop, kFew);
  Shop many(desktop, kMany);
  Shop unseen(nothing, kMany);
  const auto untilPainted = [&](Shop& shop) {
    const double start = Now();
    shop.Show();
    return desktop.painted - start;
  };
  untilPainted(few);  // what the system loads for the first window ever
  std::vector<double> times[3];
  for (int run = 0; run < kRuns; ++run) {
    times[0].push_back(untilPainted(few));
    times[1].push_back(untilPainted(many));
    const double start = Now();
    unseen.Show();
    times[2].push_back(Now() - start);
  }
  const double withFew = Median(times[0]);
  const double withMany = Median(times[1]);
  const double fill = Median(times[2]);
  PrintRow("register shown with 100,000 requests", withMany / (withFew + fill), 1.3, true, "x",
           Milliseconds(withMany) + ", with 100 " + Milliseconds(withFew) + ", the fill without windows " + Milliseconds(fill));
}

void MeasurePaging() {
  MeasuredDesktop desktop;
  Shop shop(desktop, kMany);
  double byKey = 0;
  double byBar = 0;
  long row = 0;
  desktop.work = [&](controls::Form& form) {
    const HWND list = desktop.HandleOf(shop.Grid());
    SetFocus(list);
    const auto pages = [&](UINT message, WPARAM wParam) {
      const double start = Now();
      for (int page = 0; page < kPages; ++page) {
        PostMessageW(list, message, wParam, message == WM_KEYDOWN ? 1 : 0);
        desktop.Paint(form);
      }
      return kPages * 1000.0 / (Now() - start);
    };
    byKey = pages(WM_KEYDOWN, VK_NEXT);
    row = shop.Grid().Row();
    byBar = pages(WM_VSCROLL, SB_PAGEDOWN);
  };
  shop.Show();
  PrintRow("100,000 rows paged through by key", byKey, 60, false, "pages/s", "every page drawn; row " + std::to_string(row));
  PrintRow("the same by the scroll bar", byBar, 60, false, "pages/s", "");
}

}  // namespace

int main() {
  try {
    MeasureFirstPicture();
    MeasurePaging();
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
