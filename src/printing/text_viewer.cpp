#include "src/printing/text_viewer.h"

#include "base/vb/text.h"

namespace goods {
namespace {

constexpr int kMaximisedWithFocus = 3;
constexpr std::string_view kSlipArgument = "  c:\\Reqtohq.txt";
constexpr std::string_view kUsualFile = "c:\\Reqtohq.txt";

}  // namespace

std::string TextViewer(basGoodsRequest& session) {
  const std::string directory = session.services.workstation.WindowsDirectory();
  const bool oldLayout = vb::InStrNoCase(directory, "WINDOWS") > 0;
  return directory + (oldLayout ? "\\command\\edit.com " : "\\system32\\edit.com ");
}

void ShowTextFile(basGoodsRequest& session, std::string_view viewer, std::string_view file) {
  controls::Workstation& workstation = session.services.workstation;
  const bool usualFile = file.empty() || vb::EqualNoCase(file, kUsualFile);
  const std::string argument = usualFile ? std::string(kSlipArgument) : "  " + std::string(file);
  const bool present = workstation.FileExists(vb::RTrim(viewer));
  workstation.StartProgram((present ? std::string(viewer) : std::string("notepad.exe ")) + argument, kMaximisedWithFocus);
}

}  // namespace goods
