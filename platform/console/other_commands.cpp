#include "base/controls/menu.h"
#include "base/vb/text.h"
#include "platform/console/looking_commands.h"
#include "platform/text/drawing/control_pictures.h"

namespace console {
namespace {

constexpr int kVerbWidth = 46;

void HelpCommands(const CommandTable& table, Output& output) {
  for (const CommandGroup& group : table.Groups()) {
    output.Text(group.title);
    for (const Command& command : group.commands) {
      std::string usage = "  " + std::string(command.verb) + ' ' + std::string(command.arguments);
      output.Text(text::Fit(usage, std::max(kVerbWidth, text::Length(usage))) + ' ' + std::string(command.purpose));
    }
  }
  output.Text(
      "NAME is a control of the form on top, or form.control. TEXT stands as it is; \\n, \\t, \\\\ and \\\" are escapes.");
}

/// The access keys of a form: what Alt with a letter reaches.
void HelpAccessKeys(const controls::Form& form, Output& output) {
  output.Text("Access keys of " + form.Name());
  for (const controls::Control* control : form.Controls()) {
    const char32_t key = control->AccessKey();
    if (key == 0 || control->Kind() == controls::ControlKind::Menu || !control->IsShown()) continue;
    const controls::Control* reached = form.FindAccessKey(key);
    std::string line = "  Alt+";
    vb::AppendCharacter(line, key);
    output.Text(line + "  " + text::PlainCaption(control->CaptionText()) + (reached ? " (" + reached->Name() + ")" : ""));
  }
}

/// What a person can name on the form, in tab order.
void HelpControls(const controls::Form& form, Output& output) {
  std::string names;
  for (const controls::Control* control : form.TabOrder()) {
    if (control->CanFocus()) names += (names.empty() ? "" : ", ") + control->Name();
  }
  output.Text("Controls: " + names);
}

}  // namespace

CommandGroup OtherCommands(const TextDesktop& desktop, const CommandTable& table, Output& output, FileReader files) {
  CommandGroup group{"Other", {}};
  group.commands.push_back(
      {"cat", "FILE", "a file of the application folder", Moment::Always, [&output, files = std::move(files)](Words& words) {
         if (words.AtEnd()) throw CommandError("the file is missing");
         const std::string content = files(vb::Trim(words.Raw()));
         if (!content.empty()) output.Text(content);
       }});
  group.commands.push_back({"help", "", "this", Moment::Always, [&](Words&) {
                              HelpCommands(table, output);
                              if (!desktop.ActiveForm()) return;
                              HelpAccessKeys(*desktop.ActiveForm(), output);
                              HelpControls(*desktop.ActiveForm(), output);
                            }});
  return group;
}

}  // namespace console
