#include "base/controls/menu.h"
#include "base/vb/text.h"
#include "platform/console/acting_commands.h"
#include "platform/console/escape.h"
#include "platform/text/drawing/answers.h"

namespace console {
namespace {

controls::Answer ParseAnswer(std::string_view name) {
  using controls::Answer;
  for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No}) {
    if (vb::EqualNoCase(text::AnswerName(answer), name)) return answer;
  }
  throw CommandError("the answer is ok, cancel, yes or no, not " + Quote(name));
}

void GiveAnswer(TextDesktop& desktop, Words& words) {
  const std::string_view name = words.Need("the answer");
  words.End();
  if (!desktop.AnswerMessage(ParseAnswer(name))) throw CommandError("the message has no button " + std::string(name));
}

void Pick(TextDesktop& desktop, Words& words) {
  const std::string_view name = words.Need("the entry");
  words.End();
  for (controls::Menu* entry : desktop.MenuEntries()) {
    if (!vb::EqualNoCase(entry->Name(), name)) continue;
    if (!entry->Enabled()) throw CommandError(entry->Name() + " is disabled");
    desktop.PickEntry(entry);
    return;
  }
  if (!vb::EqualNoCase(name, "none")) throw CommandError("the menu has no entry " + Quote(name));
  desktop.PickEntry(nullptr);
}

}  // namespace

CommandGroup AnswerCommands(TextDesktop& desktop) {
  CommandGroup group{"Messages and menus", {}};
  group.commands.push_back({"answer", "ok | cancel | yes | no", "the open message", Moment::MessageOpen,
                            [&desktop](Words& words) { GiveAnswer(desktop, words); }});
  group.commands.push_back(
      {"pick", "NAME | none", "an entry of the open menu", Moment::MenuOpen, [&desktop](Words& words) { Pick(desktop, words); }});
  group.commands.push_back({"quit", "", "close everything, without saving", Moment::Always, [&desktop](Words& words) {
                              words.End();
                              desktop.End(TextDesktop::Ending::Quit);
                            }});
  return group;
}

}  // namespace console
