#include "platform/console/text_desktop.h"

#include <algorithm>
#include <utility>

#include "base/controls/menu.h"
#include "base/vb/text.h"
#include "platform/console/escape.h"
#include "platform/text/drawing/answers.h"
#include "platform/text/drawing/form_picture.h"
#include "platform/text/drawing/message_picture.h"

namespace console {
namespace {

using text::kMaxRefusals;

/// Points `slot` to `value` for as long as it lives.
template <class T>
class Presence {
 public:
  Presence(T*& slot, T& value) : slot_(slot), before_(std::exchange(slot, &value)) {}
  ~Presence() { slot_ = before_; }
  Presence(const Presence&) = delete;
  Presence& operator=(const Presence&) = delete;

 private:
  T*& slot_;
  T* before_;
};

std::string_view IconName(int icon) {
  switch (icon) {
    case controls::kCritical:
      return "critical";
    case controls::kQuestion:
      return "question";
    case controls::kExclamation:
      return "exclamation";
    case controls::kInformation:
      return "information";
    default:
      return "none";
  }
}

std::string_view ButtonsName(int buttons) {
  switch (buttons) {
    case controls::kOkCancel:
      return "okcancel";
    case controls::kYesNoCancel:
      return "yesnocancel";
    case controls::kYesNo:
      return "yesno";
    default:
      return "ok";
  }
}

std::string MessageLine(const controls::Message& message) {
  std::string line = Quote(message.text);
  line.append(" title=").append(Quote(message.title));
  line.append(" icon=").append(IconName(message.Icon()));
  line.append(" buttons=").append(ButtonsName(message.Buttons()));
  line.append(" default=").append(std::to_string(message.DefaultButton()));
  return line;
}

}  // namespace

std::vector<std::string> TextDesktop::MessagePicture() const {
  if (!message_) return {};
  return text::DrawMessage(message_->message).Lines();
}

void TextDesktop::ReadAndHandle(std::string_view prompt) {
  const auto line = input_.NextLine(prompt);
  if (!line) {
    ending_ = Ending::EndOfInput;
  } else {
    handler_(*line);
  }
}

bool TextDesktop::AnswerMessage(controls::Answer answer) {
  const auto buttons = text::ButtonsOf(message_->message);
  if (std::find(buttons.begin(), buttons.end(), answer) == buttons.end()) return false;
  message_->answer = answer;
  return true;
}

controls::Answer TextDesktop::AnswerWithoutAsking(const controls::Message& message) const {
  if (ending_ == Ending::Quit && message.text == "Save Changes?") return controls::Answer::No;
  return message.AnswerOf(message.DefaultButton());
}

controls::Answer TextDesktop::MsgBox(controls::Form*, const controls::Message& message) {
  ++messagesOpened_;
  output_.Line("message", MessageLine(message));
  OpenMessage open{message, {}};
  const Presence presence(message_, open);
  std::string prompt = "answer";
  for (const auto button : text::ButtonsOf(message)) prompt.append(" ").append(text::AnswerName(button)).append("|");
  prompt.back() = '>';
  while (!open.answer && ending_ == Ending::NotYet) ReadAndHandle(prompt + " ");
  return open.answer ? *open.answer : AnswerWithoutAsking(message);
}

const std::vector<controls::Menu*>& TextDesktop::MenuEntries() const {
  return menu_->entries;
}

void TextDesktop::PickEntry(controls::Menu* entry) {
  menu_->picked = true;
  menu_->entry = entry;
}

controls::Menu* TextDesktop::PopupMenu(controls::Form&, controls::Menu& menu) {
  output_.Line("menu", menu.Name());
  OpenMenu open;
  for (controls::Menu* entry : menu.Entries()) {
    if (!entry->Visible() || entry->IsSeparator()) continue;
    open.entries.push_back(entry);
    output_.Line("item", entry->Name() + ' ' + Quote(entry->Caption()) + (entry->Enabled() ? " enabled" : " disabled"));
  }
  const Presence presence(menu_, open);
  while (!open.picked && ending_ == Ending::NotYet) ReadAndHandle("pick> ");
  return open.entry;
}

void TextDesktop::RunModal(controls::Form& form) {
  int refusals = 0;
  while (form.IsShown()) {
    if (ending_ == Ending::NotYet) {
      ShowPictureToPerson();
      ReadAndHandle(form.Name() + "> ");
    } else if (refusals == kMaxRefusals) {
      output_.Error(form.Name() + " does not close and is abandoned");
      return;
    } else if (!form.CloseByUser()) {
      ++refusals;
    }
  }
}

void TextDesktop::Opening(controls::Form& form, controls::Form*) {
  Remember(form);
}

void TextDesktop::Opened(controls::Form& form) {
  pictureIsOld_ = true;
  output_.Line("form", form.Name() + ' ' + Quote(form.Caption()));
}

void TextDesktop::Closed(controls::Form& form) {
  pictureIsOld_ = true;
  if (!form.IsLoaded()) output_.Line("closed", form.Name());  // an abandoned form was never unloaded
}

void TextDesktop::Changed(controls::Control& control, controls::Aspect) {
  Remember(control.Owner());
}

void TextDesktop::FormChanged(controls::Form& form) {
  Remember(form);
}

void TextDesktop::FocusMoved(controls::Form& form, controls::Control*) {
  Remember(form);
}

void TextDesktop::PointerChanged(controls::Form&, bool hourglass) {
  output_.Trace("pointer", hourglass ? "hourglass" : "default");
}

void TextDesktop::Remember(controls::Form& form) {
  pictureIsOld_ = true;
  if (ActiveForm() == &form) return;  // remembered when it opened; a filling grid reports thousands of changes
  const auto object = form.weak_from_this().lock();
  if (!object) return;
  for (const auto& known : known_) {
    if (known.lock() == object) return;
  }
  std::erase_if(known_, [](const auto& known) { return known.expired(); });
  known_.push_back(object);
}

controls::Form* TextDesktop::FindLoaded(std::string_view name) const {
  for (controls::Form* form : Stack()) {
    if (vb::EqualNoCase(form->Name(), name)) return form;
  }
  for (const auto& known : known_) {
    auto* form = dynamic_cast<controls::Form*>(known.lock().get());
    if (form && form->IsLoaded() && vb::EqualNoCase(form->Name(), name)) return form;
  }
  return nullptr;
}

void TextDesktop::ShowPictureToPerson() {
  if (!input_.IsTerminal() || !pictureIsOld_ || !ActiveForm()) return;
  for (const std::string& line : text::DrawForm(*ActiveForm())) output_.Text(line);
  pictureIsOld_ = false;
}

}  // namespace console
