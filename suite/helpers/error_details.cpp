#include "suite/helpers/error_details.h"

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

const late::MemberTable<ErrorDetails>& ErrorDetails::Members() {
  static const late::MemberTable<ErrorDetails> table{
      {"ErrorTrack",
       [](ErrorDetails& self, Arguments& arguments) {
         // A full disk must not hide the error itself.
         try {
           self.Append(arguments);
         } catch (const vb::RunTimeError&) {
         }
         self.Tell(arguments);
         return Value(true);
       },
       nullptr, 8, 8},
  };
  return table;
}

void ErrorDetails::Note(std::string_view module, std::string_view routine, const vb::RunTimeError& error) const {
  try {
    std::vector<Value> values{
        module, "", routine, static_cast<std::int32_t>(error.Number()), error.Source(), error.Description(), "", true};
    Arguments arguments(values);
    Append(arguments);
  } catch (const vb::RunTimeError&) {
    // What is noted is no error of the user's: without a log there is nobody to notify.
  }
}

void ErrorDetails::Append(Arguments& arguments) const {
  controls::Workstation& workstation = surroundings_->workstation;
  std::string line = vb::FormatDate(workstation.Now(), "yyyy-mm-dd hh:nn:ss");
  for (const std::size_t field : {kUser, kForm, kRoutine, kNumber, kSource, kDescription, kMode}) {
    line += "\t" + OneLine(std::string(vb::Trim(arguments[field].TextOrEmpty())));
  }
  const auto log = workstation.OpenForAppend(workstation.ApplicationFolder() + "\\errors.log");
  log->Write(line + "\r\n");
  log->Close();
}

void ErrorDetails::Tell(Arguments& arguments) const {
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
