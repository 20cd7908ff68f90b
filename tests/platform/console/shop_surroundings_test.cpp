#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

#include "base/vb/error.h"
#include "platform/console/traced_object.h"
#include "platform/text/text_workstation.h"

namespace console {
namespace {

namespace fs = std::filesystem;

class Workstation : public testing::Test {
 protected:
  Workstation() {
    fs::create_directories(folder_ / "reports");
    std::ofstream(folder_ / "ShopSetting.txt") << "\xEF\xBB\xBFport :=LPT1\r\ncaf\xC3\xA9 :=1\nlast";
    text::TextWorkstation::Settings settings;
    settings.applicationFolder = folder_.string();
    settings.now = vb::MakeDate(2024, 3, 15, 9, 30, 0);
    settings.startProgram = [this](std::string_view commandLine, int style) {
      started_ = std::string(commandLine) + " style " + std::to_string(style);
    };
    workstation_ = std::make_unique<text::TextWorkstation>(settings);
  }
  ~Workstation() override { fs::remove_all(folder_); }

  void Write(std::string_view path, std::string_view text) {
    const auto file = workstation_->OpenForOutput(path);
    file->Write(text);
    file->Close();
  }
  long ErrorOf(const std::function<void()>& work) {
    try {
      work();
    } catch (const vb::RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }

  const fs::path folder_ = fs::temp_directory_path() / ("console_test_" + std::to_string(::getpid()));
  std::string started_;
  std::unique_ptr<text::TextWorkstation> workstation_;
};

TEST_F(Workstation, ReadsSettingsWhateverTheCaseAndTheLineEnds) {
  const auto file = workstation_->OpenForInput(folder_.string() + "\\shopsetting.TXT");
  EXPECT_EQ(file->ReadLine(), "port :=LPT1");
  EXPECT_EQ(file->ReadLine(), "café :=1");
  EXPECT_EQ(file->ReadLine(), "last");
  EXPECT_EQ(file->ReadLine(), std::nullopt);
}

TEST_F(Workstation, TheRootOfDriveCAndThePortsAreFilesOfTheFolder) {
  Write("C:\\Reqtohq.txt", "Café\r\n");
  Write("c:\\reqtohq.txt", "again");
  Write("lpt1:", "slip\f");
  Write("C:\\TEMP\\Reqtohq.txt", "third");
  workstation_->OpenForAppend("C:\\Reqtohq.txt")->Write(" and again");
  EXPECT_EQ(workstation_->ReadApplicationFile("Reqtohq.txt"), "again and again");
  EXPECT_EQ(workstation_->ReadApplicationFile("LPT1"), "slip\f");
  EXPECT_EQ(workstation_->ReadApplicationFile("TEMP\\reqtohq.txt"), "third");
  EXPECT_TRUE(workstation_->FileExists("C:\\REQTOHQ.TXT"));
}

TEST_F(Workstation, OnlyTheEditorIsInTheWindowsDirectory) {
  EXPECT_TRUE(workstation_->FileExists("C:\\WINDOWS\\command\\edit.com"));
  EXPECT_FALSE(workstation_->FileExists("C:\\WINDOWS\\notepad.exe"));
  EXPECT_FALSE(workstation_->FileExists("C:\\WINNT\\system32\\edit.com"));
  workstation_->StartProgram("C:\\WINDOWS\\command\\edit.com  c:\\Reqtohq.txt", 3);
  EXPECT_EQ(started_, "C:\\WINDOWS\\command\\edit.com  c:\\Reqtohq.txt style 3");
}

TEST_F(Workstation, ErrorsCarryTheClassicNumbersAndNameTheFile) {
  try {
    workstation_->OpenForInput("C:\\none.txt");
    ADD_FAILURE() << "a file that is not there was opened";
  } catch (const vb::RunTimeError& error) {
    EXPECT_EQ(error.Description(), "File not found: C:\\none.txt");
  }
  fs::create_directories(folder_ / "Locked.txt");
  EXPECT_EQ(ErrorOf([&] { workstation_->OpenForInput("C:\\none.txt"); }), vb::kFileNotFound);
  EXPECT_EQ(ErrorOf([&] { workstation_->OpenForInput("D:\\none.txt"); }), vb::kPathNotFound);
  EXPECT_EQ(ErrorOf([&] { workstation_->OpenForOutput("C:\\none\\deep.txt"); }), vb::kPathNotFound);
  EXPECT_EQ(ErrorOf([&] { workstation_->OpenForOutput("C:\\Locked.txt"); }), vb::kPathFileAccess);
  EXPECT_EQ(ErrorOf([&] { workstation_->OpenForOutput(""); }), vb::kBadFileName);
}

/// A helper that answers with what it was asked, and writes to its last argument.
class Parrot : public late::Object {
 public:
  late::Value Invoke(std::string_view member, late::Access, std::span<late::Value> arguments) override {
    if (!arguments.empty() && arguments.back().IsByRef()) arguments.back().Deref() = late::Value("changed");
    return late::Value(member);
  }
  bool Has(std::string_view) const override { return true; }
  std::string TypeName() const override { return "Parrot"; }
};

class Traces : public testing::Test {
 protected:
  Traces() {
    for (const char* progId : {"ShopCommon.clsCommonDB", "ErrLog.ErrorDetails", "ADODB.Recordset"}) {
      registry_.Register(progId, [] { return std::make_shared<Parrot>(); });
    }
    output_.SetTracing(true);
  }
  std::ostringstream printed_;
  Output output_{printed_};
  late::ClassRegistry registry_;
  TracingFactory factory_{registry_, output_};
};

TEST_F(Traces, CallsPutsAndReadsOfHelpersAreWrittenAndCarriedOut) {
  const auto helper = factory_.Create("shopcommon.CLSCOMMONDB");
  late::Value flag(std::int16_t{1});
  EXPECT_EQ(helper->Call("fnReturnField", {"user\"name", late::Null{}, late::Value::ByRef(flag)}).ToText(), "fnReturnField");
  EXPECT_EQ(flag.ToText(), "changed");
  helper->Put("strTableName", "aShops");
  helper->PutRef("adocon", factory_.Create("ADODB.Recordset"));
  helper->Get("strTableName");
  factory_.Create("ADODB.Recordset")->Call("MoveNext");
  EXPECT_EQ(printed_.str(),
            "call: ShopCommon.clsCommonDB.fnReturnField(\"user\\\"name\", null, 1)\n"
            "call: ShopCommon.clsCommonDB.strTableName = \"aShops\"\n"
            "call: ShopCommon.clsCommonDB.adocon = <object>\n"
            "call: ShopCommon.clsCommonDB.strTableName\n");
}

TEST_F(Traces, AnErrorIsLoggedEvenWithoutTracing) {
  output_.SetTracing(false);
  const auto log = factory_.Create("ErrLog.ErrorDetails");
  log->Call("ErrorTrack", {"frmRequest ", "Nora", "cmdOK_Click", 3704, "ADO", "It is \"closed\"", "N", true});
  log->Put("Other", 1);
  EXPECT_EQ(printed_.str(), "log: \"frmRequest \" \"Nora\" \"cmdOK_Click\" 3704 \"ADO\" \"It is \\\"closed\\\"\" \"N\"\n");
}

TEST_F(Traces, ARecorderTakesAnything) {
  const auto recorder = std::make_shared<RecordingObject>("Server", output_);
  late::Value report = recorder->Call("OpenReport", {"a.rpt"});
  report.ToObject()->Put("Title", "x");
  EXPECT_EQ(report.ToObject()->Get("title").ToText(), "x");
  EXPECT_EQ(printed_.str(),
            "call: Server.OpenReport(\"a.rpt\")\n"
            "call: Server.OpenReport.Title = \"x\"\n"
            "call: Server.OpenReport.title\n");
}

}  // namespace
}  // namespace console
