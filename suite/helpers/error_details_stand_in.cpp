#include "suite/helpers/error_details_stand_in.h"

#include "base/vb/error.h"
#include "base/vb/text.h"

namespace suite {

using late::Arguments;
using late::Value;

namespace {

/// ErrorTrack's arguments, in their order.
enum Argument : std::size_t { kForm, kUser, kRoutine, kNumber, kSource, kDescription, kMode, kFlag };

/// A line of the log holds one error, whatever its texts hold.
std::string OneLine(const std::string& text) {
  return vb::Replace(vb::Replace(vb::Replace(text, "\r", " "), "\n", " "), "\t", " ");
}

}  // namespace

const late::MemberTable<ErrorDetailsStandIn>& ErrorDetailsStandIn::Members() {
  static const late::MemberTable<ErrorDetailsStandIn> table{
      {"ErrorTrack",
       [](ErrorDetailsStandIn& self, Arguments& arguments) {
         self.Log(arguments);
         self.Tell(arguments);
         return Value(true);
       },
       nullptr, 8, 8},
  };
  return table;
}

void ErrorDetailsStandIn::Note(std::string_view module, std::string_view routine, const vb::RunTimeError& error) const {
  std::vector<Value> values{module, "",  routine, static_cast<std::int32_t>(error.Number()), error.Source(), error.Description(),
                            "",     true};
  Arguments arguments(values);
  Log(arguments);
}

void ErrorDetailsStandIn::Log(Arguments& arguments) const {
  const std::string line = LineOf(arguments);
  workstation::Workstation& workstation = surroundings_->workstation;
  // An application folder that may not be written, or a full disk, must not hide the error itself.
  if (!Append(workstation.ApplicationFolder(), line)) Append(workstation.TempFolder(), line);
}

std::string ErrorDetailsStandIn::LineOf(Arguments& arguments) const {
  std::string line = vb::FormatDate(surroundings_->workstation.Now(), "yyyy-mm-dd hh:nn:ss");
  for (const std::size_t field : {kUser, kForm, kRoutine, kNumber, kSource, kDescription, kMode}) {
    line += "\t" + OneLine(std::string(vb::Trim(arguments[field].TextOrEmpty())));
  }
  return line + "\r\n";
}

bool ErrorDetailsStandIn::Append(const std::string& folder, const std::string& line) const {
  try {
    const auto log = surroundings_->workstation.OpenForAppend(folder + "\\errors.log");
    log->Write(line);
    log->Close();
    return true;
  } catch (const vb::RunTimeError&) {
    return false;
  }
}

void ErrorDetailsStandIn::Tell(Arguments& arguments) const {
  const std::string form(vb::Trim(arguments[kForm].TextOrEmpty()));
  const std::string routine(vb::Trim(arguments[kRoutine].TextOrEmpty()));
  controls::Message message;
  message.text =
      arguments[kDescription].TextOrEmpty() + "\n(" + form + " " + routine + ", " + arguments[kNumber].TextOrEmpty() + ")";
  message.style = controls::kExclamation;
  message.title = "Error";
  surroundings_->desktop.MsgBox(surroundings_->desktop.ActiveForm(), message);
}

}  // namespace suite
