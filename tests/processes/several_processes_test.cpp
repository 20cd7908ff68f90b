#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <optional>
#include <random>
#include <set>
#include <thread>

#include "tests/processes/arguments.h"
#include "tests/processes/console_process.h"

namespace processes {
namespace {

/// A save that a workstation was told had succeeded.
struct Save {
  std::string remarks;  ///< tell which request it is, and which save of it: "r3 w1-17"
  std::string over;     ///< the remarks that the editor opened with; empty for a new request
  bool asked = false;   ///< whether the user was asked before it went over another's
  bool finished = false;
  Lines lines{};  ///< item id and quantity
};

/// What the workstations together have done to the requests of the test, by the first word of their remarks.
struct Ledger {
  std::mutex mutex;
  std::map<std::string, std::vector<Save>> saves;
  std::set<std::string> cancelled;
  std::atomic<int> requests{0};
  std::atomic<int> attempts{0};  ///< to save
};

constexpr int kWorkstations = 3;
constexpr const char* kItems =
    "sql select itemcode from aItem i, aShopItemDetail s where s.ItemId=i.ItemId and s.ShopID=1 and active=1 and forsales=1 "
    "and itemtype='N' and itemcode not in (select isnull(packingbarcode,'') from aItemPackingDetail) order by i.ItemId";
constexpr int kItemsOfRequest = 3;  // its own, so that the marks of items tell about it alone

/// A user at one console program.
class Workstation {
 public:
  Workstation(const ShopFolder& shop, Ledger& ledger, int number)
      : shop_(shop), ledger_(ledger), name_("w" + std::to_string(number)), random_(Given().seed + static_cast<unsigned>(number)) {
    for (Lines& item : Rows(console_->Do(kItems))) items_.push_back(item.front());
  }

  void ActAtRandom() {
    const int action = Below(40);
    if (action == 0) return StartAgain();
    if (action == 1 && (ledger_.requests + kWorkstations) * kItemsOfRequest < static_cast<int>(items_.size())) return SaveNew();
    if (!Select()) return;
    if (action == 2) return Cancel();
    action == 3 ? Refresh() : Edit();
  }

  void SaveNew() {
    Do("click cmdnew");
    request_ = "r" + std::to_string(++ledger_.requests);
    AddLine();
    AddLine();
    Save({});
  }

  void Finish() { EXPECT_EQ(console_->Finish(), 0) << name_; }

 private:
  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

  /// A command and the answers to all that it asks.
  Lines Do(const std::string& command) {
    Lines printed = console_->Do(command);
    for (Lines last = printed; !After(last, "message: ").empty(); printed.insert(printed.end(), last.begin(), last.end())) {
      last = console_->Do("answer " + AnswerTo(After(last, "message: ")));
    }
    for (const std::string& line : printed) {
      if (line.starts_with("error:") || line.starts_with("log:")) ADD_FAILURE() << name_ << ", " << command << ": " << line;
    }
    return printed;
  }

  std::string AnswerTo(const std::string& message) {
    if (message.find("buttons=ok ") != std::string::npos) return "ok";
    if (message.starts_with("\"Another workstation has changed")) return asked_ = true, Below(3) ? "yes" : "no";
    for (const std::string_view no : {"\"Save Changes?", "\"Do you want to add stock out items?"}) {
      if (message.starts_with(no)) return "no";
    }
    for (const std::string_view yes : {"\"You have confirmed", "\"Are you sure"}) {
      if (message.starts_with(yes)) return "yes";
    }
    ADD_FAILURE() << name_ << " is asked " << message;
    return "no";
  }

  /// As at the next day's start: the register then has what the others have added.
  void StartAgain() {
    Finish();
    console_.emplace(shop_);
  }

  void Refresh() {
    Do("rightclick flexMaster");
    Do("pick mnurefresh");
  }

  /// Goes to one of the test's requests in the register. Whether there is one.
  bool Select() {
    const std::vector<Lines> rows = Rows(Do("dump flexMaster"), 1);
    std::vector<std::size_t> own;
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (rows[row][3].find(" w") < 5) own.push_back(row);
    }
    if (own.empty()) return false;
    const std::size_t row = own[static_cast<std::size_t>(Below(static_cast<int>(own.size())))];
    request_ = rows[row][3].substr(0, rows[row][3].find(' '));
    Do("row flexMaster " + std::to_string(row + 1));
    return true;
  }

  void Edit() {
    Do("click CmdEdit");
    const std::string over = After(Do("get txtRemarks.Text"), "value: ");
    for (int changes = Below(3); changes >= 0 && CanSave(); --changes) ChangeLines();
    Save(over.substr(1, over.size() - 2));
  }

  bool CanSave() { return After(Do("get cmdOK.Enabled"), "value: ") == "true"; }

  void ChangeLines() {
    const std::size_t lines = Rows(Do("dump lvwrequest"), 1).size();
    const std::string line = std::to_string(1 + Below(static_cast<int>(lines)));
    switch (lines > 1 ? Below(3) : Below(2)) {
      case 0:
        return AddLine();
      case 1:
        Do("row lvwrequest " + line);
        Do("dblclick lvwrequest");
        return EnterQuantity();
      default:
        Do("row lvwrequest " + line);
        Do("press lvwrequest Delete");
    }
  }

  void AddLine() {
    Do("rightclick lvwrequest");
    Do("pick mnuAdd");
    const auto first = static_cast<std::size_t>(std::stoi(request_.substr(1)) * kItemsOfRequest);
    Do("set txtitemcode " + items_.at((first + static_cast<std::size_t>(Below(kItemsOfRequest))) % items_.size()));
    Do("press txtitemcode Enter");
    EnterQuantity();
  }

  void EnterQuantity() {
    Do("set txtQuantity " + std::to_string(1 + Below(99)));
    Do("click cmdOk");
    if (After(Do("get form"), "value: ") == "\"frmRequestDetail\"") Do("close");
  }

  void Save(const std::string& over) {
    processes::Save save = {.remarks = request_ + " " + name_ + "-" + std::to_string(++ledger_.attempts), .over = over};
    if (CanSave()) {
      Do("set txtRemarks " + save.remarks);
      save.finished = Below(30) == 0;
      if (save.finished) Do("click chkTransFinished");
      for (const Lines& line : Rows(Do("dump lvwrequest"), 1)) save.lines.push_back(line[4] + " " + line[3]);
      asked_ = false;
      if (!After(Do("click cmdOK"), "closed: frmRequest").empty() || After(Do("get form"), "value: ") == "\"frmMaster\"") {
        save.asked = asked_;
        const std::lock_guard lock(ledger_.mutex);
        return ledger_.saves[request_].push_back(std::move(save));
      }
    }
    Do("click cmdCancel");
  }

  void Cancel() {
    if (After(Do("get CmdDelete.Enabled"), "value: ") == "false") return;
    Do("click CmdDelete");
    if (After(Do("get form"), "value: ") != "\"frmcancelreason\"") return;
    Do("set txtcanreason by " + name_);
    Do("click cmdok");
    const std::lock_guard lock(ledger_.mutex);
    ledger_.cancelled.insert(request_);
  }

  const ShopFolder& shop_;
  std::optional<ConsoleProcess> console_{std::in_place, shop_};
  Ledger& ledger_;
  std::string name_;
  std::string request_;
  std::mt19937 random_;
  Lines items_;
  bool asked_ = false;
};

class SeveralProcesses : public testing::Test {
 protected:
  SeveralProcesses() { ConsoleProcess(shop_).Finish(); }  // the shop's file is there

  /// Each workstation's work, all at the same time.
  void Run(int workstations, const std::function<void(Workstation&)>& work) {
    std::vector<std::thread> users;
    for (int number = 1; number <= workstations; ++number) {
      users.emplace_back([&, number] {
        try {
          Workstation workstation(shop_, ledger_, number);
          work(workstation);
          workstation.Finish();
        } catch (const std::exception& error) {
          ADD_FAILURE() << "workstation " << number << ": " << error.what();
        }
      });
    }
    for (std::thread& user : users) user.join();
  }

  std::vector<Lines> Ask(const std::string& query) { return Rows(console_->Do("sql " + query)); }

  /// Every id and number once, no request lost, and each as one of the workstations saved it.
  void CheckRequests() {
    console_.emplace(shop_);
    const std::vector<Lines> stored = Ask(
        "select GRHrequestID, GRHrequestno, GRHremarks, GRHTransFinished, GRHcancel, GRHNoofDetails from mosGoodsRequestHeader "
        "where GRHshopID=1");
    std::set<std::string> ids;
    std::set<std::string> numbers;
    for (const Lines& request : stored) {
      EXPECT_TRUE(ids.insert(request[0]).second) << "id " << request[0];
      EXPECT_TRUE(numbers.insert(request[1]).second) << "number " << request[1];
      const std::string name = request[2].substr(0, request[2].find(' '));
      if (const auto found = ledger_.saves.find(name); found != ledger_.saves.end()) CheckRequest(request, found->second);
    }
    EXPECT_EQ(found_.size(), ledger_.saves.size()) << "saved and not there";
  }

  void CheckRequest(const Lines& request, const std::vector<Save>& saves) {
    const std::string& remarks = request[2];
    const std::string name = remarks.substr(0, remarks.find(' '));
    EXPECT_TRUE(found_.insert(name).second) << name << " is there twice";
    Lines lines;
    for (const Lines& line : Ask("select GRDitemID, cast(cast(GRDgoodQty as decimal(18,3)) as varchar(20)) from "
                                 "mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=" +
                                 request[0] + " order by GRDDetailid")) {
      lines.push_back(line[0] + " " + line[1]);
    }
    std::set<std::string> savedOver;
    const Save* last = nullptr;
    for (const Save& save : saves) {
      if (save.remarks == remarks) last = &save;
      EXPECT_TRUE(!save.finished || save.remarks == remarks)
          << remarks << " was saved after " << save.remarks << " had finished it";
      EXPECT_TRUE(save.asked || savedOver.insert(save.over).second) << save.remarks << " went over another's unasked";
    }
    ASSERT_TRUE(last) << remarks << " was saved by nobody";
    EXPECT_EQ(lines, last->lines) << remarks;
    EXPECT_EQ(request[5], std::to_string(lines.size())) << remarks;
    EXPECT_EQ(request[3], last->finished ? "1" : "0") << remarks;
    EXPECT_EQ(request[4] == "1", ledger_.cancelled.contains(name)) << remarks;
    for (const Lines& mark : Ask("select ItemId, RequestRaised from aShopItemDetail where ItemId in (select GRDitemID from "
                                 "mosGoodsRequestDetail where GRDshopID=1 and GRDrequestID=" +
                                 request[0] + ")")) {
      EXPECT_EQ(mark[1] == "1", request[4] == "0") << remarks << ", item " << mark[0];
    }
  }

  ShopFolder shop_;
  Ledger ledger_;

 private:
  std::optional<ConsoleProcess> console_;
  std::set<std::string> found_;
};

TEST_F(SeveralProcesses, EditCancelAndSaveTheSameRequestsAtRandom) {
  Run(kWorkstations, [](Workstation& workstation) { workstation.SaveNew(); });
  Run(kWorkstations, [](Workstation& workstation) {
    for (int action = 0; action < Given().actions; ++action) workstation.ActAtRandom();
  });
  CheckRequests();
  std::size_t saved = 0;
  int asked = 0;
  for (const auto& [request, saves] : ledger_.saves) {
    saved += saves.size();
    for (const Save& save : saves) asked += save.asked ? 1 : 0;
  }
  std::cout << ledger_.saves.size() << " requests, " << saved << " saves, " << asked << " over another's\n";
  EXPECT_TRUE(std::filesystem::is_empty(shop_.States() / "goods-request")) << "every draft was answered";
}

TEST_F(SeveralProcesses, SaveNewRequestsOfWhichNoneIsLost) {
  for (const int workstations : {2, kWorkstations}) {
    Run(workstations, [](Workstation& workstation) {
      for (int save = 0; save < Given().saves; ++save) workstation.SaveNew();
    });
  }
  EXPECT_EQ(ledger_.saves.size(), static_cast<std::size_t>(5 * Given().saves));
  CheckRequests();
}

}  // namespace
}  // namespace processes
