#include "src/printing/text_viewer.h"

#include "base/vb/text.h"

namespace goods {
namespace {

constexpr int kMaximisedWithFocus = 3;
constexpr std::string_view kUsualFile = "c:\\Reqtohq.txt";

std::string Quoted(std::string_view path) {
  return '"' + std::string(path) + '"';
}

}  // namespace

std::string TextViewer(basGoodsRequest& session) {
  const std::string directory = session.services.workstation.WindowsDirectory();
  const bool oldLayout = vb::InStrNoCase(directory, "WINDOWS") > 0;
  return directory + (oldLayout ? "\\command\\edit.com " : "\\system32\\edit.com ");
}

void ShowTextFile(basGoodsRequest& session, std::string_view viewer, std::string_view file) {
  workstation::Workstation& workstation = session.services.workstation;
  const bool usualFile = vb::EqualNoCase(file, kUsualFile);
  std::string command;
  if (workstation.FileExists(vb::RTrim(viewer))) {
    command = std::string(viewer) + "  " + std::string(usualFile ? kUsualFile : file);
  } else {
    // By its bare name the system would look for it in the current folder and the host's first.
    command = Quoted(workstation.WindowsDirectory() + "\\notepad.exe") + " " + Quoted(usualFile ? kUsualFile : file);
  }
  workstation.StartProgram(command, kMaximisedWithFocus);
}

}  // namespace goods
