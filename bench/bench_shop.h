#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/controls/desktop.h"
#include "base/workstation/workstation.h"
#include "src/entry/module.h"
#include "src/register/frm_master.h"
#include "suite/engine/objects/database.h"
#include "suite/helpers/surroundings.h"
#include "suite/shop/generator.h"

namespace bench {

/// Nobody in front of it: forms run the work that was put in, messages get the first button.
class EmptyDesktop : public controls::Desktop {
 public:
  std::function<void(controls::Form&)> work;
  controls::Answer MsgBox(controls::Form*, const controls::Message& message) override;
  controls::Menu* PopupMenu(controls::Form&, controls::Menu&) override { return nullptr; }

 protected:
  void RunModal(controls::Form& form) override;
};

class EmptyWorkstation : public workstation::Workstation {
 public:
  vb::Date Now() override { return vb::MakeDate(2024, 3, 15, 10, 0, 0); }
  std::string ApplicationFolder() override { return "C:\\shop"; }
  std::string WindowsDirectory() override { return "C:\\WINDOWS"; }
  std::string TempFolder() override { return "C:\\TEMP"; }
  bool FileExists(std::string_view) override { return false; }
  std::unique_ptr<workstation::InputFile> OpenForInput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForOutput(std::string_view path) override;
  std::unique_ptr<workstation::OutputFile> OpenForAppend(std::string_view path) override;
  void StartProgram(std::string_view, int) override {}
  bool StateFileExists(std::string_view) override { return false; }
  std::unique_ptr<workstation::StateFile> TakeStateFile(std::string_view name) override;
};

/// The sample shop, scaled, in a file of its own, with the component's session on it.
class BenchShop {
 public:
  /// Creates the file, replacing an older one.
  BenchShop(const std::string& path, const suite::Scale& scale);
  ~BenchShop();

  /// The session's globals as the register's load leaves them, without the register's rows.
  void LogOn();

  std::string path;
  EmptyDesktop desktop;
  EmptyWorkstation workstation;
  late::ClassRegistry registry;
  std::shared_ptr<suite::Database> database;
  goods::Module module;
  goods::basGoodsRequest& session;
};

/// A file in the system's temporary folder; the shop's own log files beside it are removed with it.
std::string TemporaryFile(const std::string& name);

}  // namespace bench
