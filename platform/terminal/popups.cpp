// What lies over the forms: messages, menus, drop-down lists, the viewer of texts.

#include <algorithm>

#include "base/controls/combo_box.h"
#include "base/controls/menu.h"
#include "base/vb/text.h"
#include "platform/terminal/terminal_desktop.h"
#include "platform/text/drawing/answers.h"
#include "platform/text/drawing/message_picture.h"

namespace terminal {
namespace {

using controls::KeyStroke;

constexpr std::string_view kMessageKeys = "Enter or a button's first letter answers";
constexpr std::string_view kMoreKeys = "  PgUp PgDn the rest";
constexpr std::string_view kChoiceKeys = "Up Down choose  Enter takes  Esc leaves";
constexpr std::string_view kViewerKeys = "Up Down PgUp PgDn Left Right move  Esc closes";

/// Holds a popup on the screen for as long as it lives.
template <class Popup>
class OnScreen {
 public:
  OnScreen(std::vector<Popup*>& popups, Popup& popup) : popups_(popups) { popups_.push_back(&popup); }
  ~OnScreen() { popups_.pop_back(); }
  OnScreen(const OnScreen&) = delete;
  OnScreen& operator=(const OnScreen&) = delete;

 private:
  std::vector<Popup*>& popups_;
};

/// How far a key moves in something that shows `page` rows at once; 0 for other keys.
int StepOf(const KeyStroke& key, int page, int all) {
  switch (key.keyCode) {
    case controls::kKeyUp:
      return -1;
    case controls::kKeyDown:
      return 1;
    case controls::kKeyPageUp:
      return -page;
    case controls::kKeyPageDown:
      return page;
    case controls::kKeyHome:
      return -all;
    case controls::kKeyEnd:
      return all;
    default:
      return 0;
  }
}

char32_t UpperLetter(const KeyStroke& key) {
  return key.keyCode >= 'A' && key.keyCode <= 'Z' ? static_cast<char32_t>(key.keyCode) : U'\0';
}

/// The letter that picks an entry: after the mark, else the first.
char32_t LetterOf(std::string_view caption) {
  const std::size_t mark = caption.find('&');
  const std::string upper = vb::UCase(caption.substr(mark == std::string_view::npos ? 0 : mark + 1));
  std::size_t offset = 0;
  return upper.empty() ? U'\0' : vb::NextCharacter(upper, offset);
}

/// The button, from 1, that the event takes; 0 for none. Moves the mark.
int AnsweredBy(const Event& event, const controls::Message& message, int& marked, const text::Canvas& composed) {
  const std::vector<controls::Answer> buttons = text::ButtonsOf(message);
  const int count = static_cast<int>(buttons.size());
  if (event.kind == Event::Kind::Mouse) {
    const text::Spot* spot = composed.SpotAt(event.x, event.y);
    const bool isAnswer = event.button == Event::Button::Left && spot && spot->part == text::Spot::Part::Answer;
    return isAnswer ? static_cast<int>(spot->index) : 0;
  }
  if (event.kind != Event::Kind::Key) return 0;
  switch (event.key.keyCode) {
    case controls::kKeyReturn:
    case controls::kKeySpace:
      return marked;
    case controls::kKeyTab:
    case controls::kKeyLeft:
    case controls::kKeyRight: {
      const bool back = event.key.keyCode == controls::kKeyLeft || (event.key.shift & controls::kShift) != 0;
      marked = (marked - 1 + (back ? count - 1 : 1)) % count + 1;
      return 0;
    }
    case controls::kKeyEscape: {
      const auto cancel = std::find(buttons.begin(), buttons.end(), controls::Answer::Cancel);
      if (!message.CanEscape()) return 0;
      return cancel == buttons.end() ? 1 : static_cast<int>(cancel - buttons.begin()) + 1;
    }
    default:
      for (int button = 1; button <= count; ++button) {
        const std::string caption = text::ButtonCaption(buttons[static_cast<std::size_t>(button) - 1]);
        if ((event.key.shift & controls::kCtrl) == 0 && UpperLetter(event.key) == LetterOf(caption)) return button;
      }
      return 0;
  }
}

bool IsCopy(const Event& event) {
  return event.kind == Event::Kind::Key && event.key.keyCode == 'C' && event.key.shift == controls::kCtrl;
}

}  // namespace

controls::Answer TerminalDesktop::MsgBox(controls::Form*, const controls::Message& message) {
  Popup popup;
  popup.hint = kMessageKeys;
  const OnScreen shown(popups_, popup);
  int marked = std::min(message.DefaultButton(), static_cast<int>(text::ButtonsOf(message).size()));
  int top = 0;
  while (!hasEnded_) {
    const text::Canvas whole = text::DrawMessage(message, marked, std::min(90, screen_.Width() - 6));
    const int hidden = std::max(0, whole.Height() - Rows());
    top = std::clamp(top, 0, hidden);
    popup.picture = whole.Part(0, top, whole.Width(), Rows());
    if (hidden > 0) popup.hint = std::string(kMessageKeys).append(kMoreKeys);
    Paint();
    const auto event = NextEvent();
    if (!event) continue;
    if (IsCopy(*event)) PutOnClipboard(message.text);
    if (const int button = AnsweredBy(*event, message, marked, composed_); button > 0) return message.AnswerOf(button);
    if (event->kind == Event::Kind::Key) top += StepOf(event->key, Rows() - 1, whole.Height());
  }
  return message.AnswerOf(message.DefaultButton());
}

text::Canvas TerminalDesktop::DrawChoices(const std::vector<Choice>& entries, int current, int rows) const {
  const int count = static_cast<int>(entries.size());
  int width = 0;
  for (const Choice& entry : entries) width = std::max(width, text::Length(text::PlainCaption(entry.caption)));
  width = std::min(width, screen_.Width() - 4);
  const int top = std::clamp(current - rows / 2, 0, count - rows);
  text::Canvas sheet;
  sheet.Box(0, 0, width + 4, rows + 2, "");
  for (int y = 0; y < rows; ++y) {
    const Choice& entry = entries[static_cast<std::size_t>(top) + static_cast<std::size_t>(y)];
    const text::Looks looks = static_cast<text::Looks>((entry.isEnabled ? text::kPlain : text::kDim) |
                                                       (top + y == current ? text::kChosen : text::kPlain));
    sheet.Put(1, y + 1, text::Fit("", width + 2), looks);
    sheet.PutCaption(2, y + 1, text::Fit(entry.caption, text::Length(entry.caption)), looks);
    sheet.Mark({.part = text::Spot::Part::Entry, .index = top + y, .x = 1, .y = y + 1, .width = width + 2});
  }
  sheet.SetCaret({2, current - top + 1});
  return sheet;
}

TerminalDesktop::Choosing TerminalDesktop::ChooseByMouse(const std::vector<Choice>& entries, const Event& event,
                                                         int& current) const {
  if (event.button == Event::Button::WheelUp || event.button == Event::Button::WheelDown) {
    const int step = event.button == Event::Button::WheelUp ? -1 : 1;
    current = std::clamp(current + step, 0, static_cast<int>(entries.size()) - 1);
    return Choosing::GoesOn;
  }
  const text::Spot* spot = composed_.SpotAt(event.x, event.y);
  if (!spot || spot->part != text::Spot::Part::Entry) return Choosing::Left;
  current = static_cast<int>(spot->index);
  return Choosing::Taken;
}

TerminalDesktop::Choosing TerminalDesktop::ChooseByKey(const std::vector<Choice>& entries, const KeyStroke& key, int rows,
                                                       int& current) {
  const int count = static_cast<int>(entries.size());
  switch (key.keyCode) {
    case controls::kKeyEscape:
    case controls::kKeyTab:
      return Choosing::Left;
    case controls::kKeyReturn:
    case controls::kKeyF4:
      return Choosing::Taken;
    default:
      break;
  }
  if (const char32_t letter = UpperLetter(key)) {
    for (int step = 1; step <= count; ++step) {
      const int index = (current + step) % count;
      const std::string& caption = entries[static_cast<std::size_t>(index)].caption;
      if (LetterOf(caption) != letter) continue;
      current = index;
      return caption.find('&') == std::string::npos ? Choosing::GoesOn : Choosing::Taken;
    }
  }
  current = std::clamp(current + StepOf(key, rows, count), 0, count - 1);
  return Choosing::GoesOn;
}

int TerminalDesktop::Choose(const std::vector<Choice>& entries, int current, text::Point at) {
  if (entries.empty()) return -1;
  Popup popup;
  popup.hint = kChoiceKeys;
  popup.place = at;
  const OnScreen shown(popups_, popup);
  current = std::clamp(current, 0, static_cast<int>(entries.size()) - 1);
  while (!hasEnded_) {
    const int rows = std::min(static_cast<int>(entries.size()), Rows() - 2);
    popup.picture = DrawChoices(entries, current, rows);
    Paint();
    const auto event = NextEvent();
    if (!event || event->kind == Event::Kind::Paste) continue;
    const Choosing choosing = event->kind == Event::Kind::Mouse ? ChooseByMouse(entries, *event, current)
                                                                : ChooseByKey(entries, event->key, rows, current);
    if (choosing == Choosing::Left) return -1;
    if (choosing == Choosing::Taken && entries[static_cast<std::size_t>(current)].isEnabled) return current;
  }
  return -1;
}

controls::Menu* TerminalDesktop::PopupMenu(controls::Form&, controls::Menu& menu) {
  std::vector<controls::Menu*> shown;
  std::vector<Choice> choices;
  for (controls::Menu* entry : menu.Entries()) {
    if (!entry->Visible() || entry->IsSeparator()) continue;
    shown.push_back(entry);
    choices.push_back({entry->Caption(), entry->Enabled()});
  }
  const text::Point at = composed_.Caret().value_or(text::Point{});
  const int picked = Choose(choices, 0, {at.x + 2, at.y + 1});
  return picked < 0 ? nullptr : shown[static_cast<std::size_t>(picked)];
}

void TerminalDesktop::DropDown(controls::ComboBox& combo) {
  std::vector<Choice> choices;
  choices.reserve(static_cast<std::size_t>(combo.ListCount()));
  for (int index = 0; index < combo.ListCount(); ++index) choices.push_back({vb::Replace(combo.List(index), "&", "&&"), true});
  const text::Point at = composed_.Caret().value_or(text::Point{});
  const int picked = Choose(choices, combo.ListIndex(), {at.x, at.y + 1});
  if (picked >= 0 && combo.Owner().IsShown()) combo.Pick(picked);
}

void TerminalDesktop::ShowText(const std::string& title, const std::string& text) {
  std::vector<std::string> lines;
  int longest = 0;
  for (std::string_view rest = text; !rest.empty();) {
    lines.emplace_back(vb::TakeLine(rest).value_or(""));
    longest = std::max(longest, text::Length(lines.back()));
  }
  const int count = static_cast<int>(lines.size());
  Popup popup;
  popup.hint = kViewerKeys;
  const OnScreen shown(popups_, popup);
  int top = 0;
  int left = 0;
  while (!hasEnded_) {
    const int width = screen_.Width();
    const int rows = Rows() - 2;
    top = std::clamp(top, 0, std::max(0, count - rows));
    left = std::clamp(left, 0, std::max(0, longest - (width - 2)));
    text::Canvas page;
    for (int y = 0; y < rows && top + y < count; ++y)
      page.Put(0, y, lines[static_cast<std::size_t>(top) + static_cast<std::size_t>(y)]);
    popup.picture = text::Canvas();
    popup.picture.Box(0, 0, width, Rows(), title);
    popup.picture.Paste(1, 1, page.Part(left, 0, width - 2, rows));
    Paint();
    const auto event = NextEvent();
    if (!event) continue;
    if (event->kind == Event::Kind::Mouse) {
      if (event->button == Event::Button::WheelUp) top -= 3;
      if (event->button == Event::Button::WheelDown) top += 3;
      continue;
    }
    if (event->kind != Event::Kind::Key) continue;
    const int key = event->key.keyCode;
    if (key == controls::kKeyEscape || key == controls::kKeyReturn || key == 'Q') return;
    if (key == controls::kKeyLeft) left -= 8;
    if (key == controls::kKeyRight) left += 8;
    top += StepOf(event->key, rows, count);
  }
}

}  // namespace terminal
