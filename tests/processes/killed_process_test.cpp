#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "tests/processes/arguments.h"
#include "tests/processes/console_process.h"

namespace processes {
namespace {

constexpr std::string_view kStep = "> # step ";

/// What a user sees of a request that is not saved; empty where everything is.
using Unsaved = std::string;

/// A day of editing: what is done step by step, and what is unsaved after each of them.
class Day {
 public:
  explicit Day(std::mt19937& random) {
    const auto line = [&](const char* code) {
      return std::string("set txtitemcode ") + code + "\npress txtitemcode Enter\n" + Quantity(random);
    };
    const std::string addLine = "rightclick lvwrequest\npick mnuAdd\n";
    const auto change = [&](const char* row) {
      return std::string("row lvwrequest ") + row + "\ndblclick lvwrequest\n" + Quantity(random) + "close\n";
    };
    steps_ = {
        "click cmdnew\nanswer no\n",
        "set txtRemarks for Monday\nfocus lvwrequest\n",
        addLine + line("KT1003"),
        line("KT1004"),
        line("KT1005"),
        "close\n",
        change("2"),
        "click optporeq\n",
        "row lvwrequest 1\npress lvwrequest Delete\nanswer yes\n",
        "click chkcutomerrequest\ntab sstabGoodsReq 1\ncheck lvwCustomerReq 1\ntab sstabGoodsReq 0\n",
        "set txtRemarks for Monday \\\\ with lids\nfocus lvwrequest\n",
        "click cmdOK\n",
        "click CmdEdit\n",
        change("1"),
        addLine + line("KT1012") + "close\n",
        "click chkTransFinished\n",
        "click cmdCancel\nanswer no\n",
        "click CmdEdit\n",
        change("2"),
        "click cmdOK\n",
    };
  }

  /// Lives through it in a shop, without being killed.
  void Rehearse(const ShopFolder& shop) {
    ConsoleProcess console(shop);
    for (const std::string& step : steps_) {
      for (std::size_t at = 0, end = 0; (end = step.find('\n', at)) != std::string::npos; at = end + 1) {
        const Lines printed = console.Do(step.substr(at, end - at));
        EXPECT_EQ(After(printed, "error:") + After(printed, "log:"), "") << step;
      }
      unsaved_.push_back(HasDraft(shop) ? Screen(console) : "");
    }
    EXPECT_EQ(console.Finish(), 0);
    EXPECT_EQ(std::count(unsaved_.begin(), unsaved_.end(), ""), 6) << "opened or closed";
  }

  std::string Commands() const {
    std::string commands;
    for (std::size_t step = 0; step < steps_.size(); ++step) commands += steps_[step] + "# step " + std::to_string(step) + "\n";
    return commands;
  }
  std::size_t Steps() const { return steps_.size(); }
  /// What may be unsaved when that many steps were done, and the next was perhaps on its way.
  std::vector<Unsaved> Expected(std::size_t done) const {
    std::vector<Unsaved> either = {done == 0 ? "" : unsaved_[done - 1]};
    if (done < unsaved_.size()) either.push_back(unsaved_[done]);
    return either;
  }

  static bool HasDraft(const ShopFolder& shop) {
    std::error_code none;
    for (const auto& file : std::filesystem::directory_iterator(shop.States() / "goods-request", none)) {
      if (file.path().extension() == ".txt") return true;
    }
    return false;
  }

  static Unsaved Screen(ConsoleProcess& console) {
    Unsaved screen;
    const auto add = [&](const char* what) {
      for (const std::string& line : console.Do(what)) screen += line + "\n";
      return screen.ends_with(": 0\n");
    };
    for (const char* what : {"get frmRequest.txtRemarks.Text", "get frmRequest.optporeq.Value",
                             "get frmRequest.chkTransFinished.Value", "dump frmRequest.lvwrequest"}) {
      add(what);
    }
    if (!add("get frmRequest.lvwCustomerReq.Count")) add("get frmRequest.lvwCustomerReq.Checked(1)");
    return screen;
  }

 private:
  static std::string Quantity(std::mt19937& random) {
    return "set txtQuantity " + std::to_string(1 + random() % 99) + "\nclick cmdOk\n";
  }

  Lines steps_;
  std::vector<Unsaved> unsaved_;
};

/// The unsaved request that the user is offered with `command` after the start, and takes up; everything is closed then.
Unsaved TakeUp(ConsoleProcess& console, const std::string& command) {
  Unsaved taken;
  Lines printed = console.Do(command);
  for (std::string message; !(message = After(printed, "message: ")).empty();) {
    const bool isOffer = message.find("left behind. Take it up again?") != std::string::npos;
    const bool wasSaved = message.starts_with("\"The request that was being saved");
    EXPECT_TRUE(isOffer || wasSaved || message.starts_with("\"Do you want to add stock")) << message;
    printed = console.Do(isOffer ? "answer yes" : wasSaved ? "answer ok" : "answer no");
    if (isOffer) taken = Day::Screen(console);
  }
  if (!After(console.Do("click cmdCancel"), "message: ").empty()) console.Do("answer no");
  return taken;
}

TEST(KilledProcess, LeavesItsUnsavedRequestToTheNext) {
  std::mt19937 random(Given().seed);
  Day day(random);
  const auto start = std::chrono::steady_clock::now();
  day.Rehearse(ShopFolder());
  const auto stepTime = (std::chrono::steady_clock::now() - start) / day.Steps();
  int taken = 0;
  for (int kill = 0; kill < Given().kills && !testing::Test::HasFailure(); ++kill) {
    const ShopFolder shop;
    ConsoleProcess console(shop);
    const std::size_t requests = Rows(console.Do("dump flexMaster"), 1).size();
    console.Send(day.Commands());
    Lines printed = console.ReadUntil(std::string(kStep) + std::to_string(random() % day.Steps()));
    std::this_thread::sleep_for(stepTime * (random() % 1000) / 1000);
    console.Kill();
    const Lines rest = console.ReadUntil({});
    printed.insert(printed.end(), rest.begin(), rest.end());
    const auto done = static_cast<std::size_t>(
        std::count_if(printed.begin(), printed.end(), [](const std::string& line) { return line.starts_with(kStep); }));

    ConsoleProcess next(shop);
    Unsaved offered = TakeUp(next, "click cmdnew");
    const std::size_t requestsNow = Rows(next.Do("dump flexMaster"), 1).size();
    if (offered.empty() && requestsNow > requests) {
      next.Do("row flexMaster " + std::to_string(requestsNow));
      offered = TakeUp(next, "click CmdEdit");
    }
    const std::vector<Unsaved> either = day.Expected(done);
    EXPECT_TRUE(std::find(either.begin(), either.end(), offered) != either.end())
        << "kill " << kill << " after " << done << " steps; offered:\n"
        << offered << "and not\n"
        << either.front() << "nor\n"
        << either.back();
    taken += offered.empty() ? 0 : 1;
    EXPECT_EQ(next.Finish(), 0);
    EXPECT_FALSE(Day::HasDraft(shop)) << "answered with No";
  }
  std::cout << taken << " of " << Given().kills << " killed programs had something unsaved\n";
  EXPECT_GT(taken, 0);
}

}  // namespace
}  // namespace processes
