#include <cstdio>
#include <memory>

#include "platform/windows/com/com_error.h"
#include "platform/windows/com/com_factory.h"
#include "platform/windows/desktop/windows_desktop.h"
#include "platform/windows/products/shophost/options.h"
#include "platform/windows/products/shophost/registry_memory.h"
#include "platform/windows/products/shophost/shop.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/workstation/windows_workstation.h"
#include "suite/host/frm_log_on.h"

namespace {

constexpr const wchar_t* kTitle = L"Shop host";

/// COM for this thread, with the single-threaded apartment that windows need.
class Apartment {
 public:
  Apartment() { windows::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() { CoUninitialize(); }
};

void OpenGoodsRequests(late::Factory& factory, const ado::Connection& connection, const suite::LogOn& logOn) {
  const late::ObjectPtr component = factory.Create("tq8v4461.clsGoodsRequest");
  component->PutRef("adocon", connection.Object());
  component->Put("strMsgboxCaption", late::Value("Goods Request"));
  component->Put("intCompanyID", late::Value(logOn.companyId));
  component->Put("intUserID", late::Value(logOn.userId));
  component->Put("intShopID", late::Value(logOn.shopId));
  component->Put("dtProcessDate", late::Value(logOn.processDate));
  component->Call("Show");
}

void Run(const windows::Options& options) {
  const Apartment apartment;
  windows::ComFactory factory;
  windows::WindowsDesktop desktop;
  windows::WindowsWorkstation workstation;
  windows::RegistryMemory memory;
  const windows::Shop shop = windows::OpenShop(factory, options, workstation.Now());
  const auto open = [&](const suite::LogOn& logOn) { OpenGoodsRequests(factory, shop.connection, logOn); };
  const auto form = std::make_shared<suite::frmLogOn>(desktop, shop.connection, memory, shop.processDate, options.logOn, open);
  if (!options.unattended) {
    if (const std::string missing = form->MissingPreset(); !missing.empty()) vb::Raise(vb::kInvalidCall, missing);
    return form->Show();
  }
  // What the switches leave open is as the window would offer it.
  suite::LogOn logOn = form->Chosen().value_or(suite::LogOn{});
  logOn.companyId = options.logOn.companyId.value_or(logOn.companyId);
  logOn.shopId = options.logOn.shopId.value_or(logOn.shopId);
  logOn.userId = options.logOn.userId.value_or(logOn.userId);
  logOn.processDate = options.logOn.processDate.value_or(logOn.processDate);
  open(logOn);
}

/// Writes to the output that the program was given, or to the console that it was started from; a program of windows has neither
/// when it was started from a folder.
bool WriteOut(std::string_view text) {
  const auto write = [&](HANDLE output) {
    DWORD written = 0;
    return WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) != 0;
  };
  if (write(GetStdHandle(STD_OUTPUT_HANDLE))) return true;
  if (!AttachConsole(ATTACH_PARENT_PROCESS)) return false;
  const HANDLE console = CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  const bool written = write(console);
  CloseHandle(console);
  return written;
}

void TellUsage() {
  if (!WriteOut(windows::kUsage))
    MessageBoxW(nullptr, windows::Wide(windows::kUsage).c_str(), kTitle, MB_ICONINFORMATION | MB_OK);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> switches;
  for (int i = 1; i < count; ++i) switches.push_back(windows::Utf8(words[i]));
  LocalFree(words);
  bool unattended = false;
  for (const std::string& word : switches) unattended = unattended || word == "--unattended";
  try {
    const windows::Options options = windows::ReadOptions(switches);
    options.help ? TellUsage() : Run(options);
    return 0;
  } catch (const vb::RunTimeError& error) {
    const std::string text = error.Description() + (error.Source().empty() ? "" : "\n(" + error.Source() + ")");
    if (unattended) {
      std::fprintf(stderr, "%s\n", text.c_str());
    } else {
      MessageBoxW(nullptr, windows::Wide(text).c_str(), kTitle, MB_ICONEXCLAMATION | MB_OK);
    }
    return 1;
  }
}
