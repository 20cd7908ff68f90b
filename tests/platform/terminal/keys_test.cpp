// Every key that the users' page names, pressed on a terminal.

#include "tests/keys/keys.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "tests/platform/terminal/live_program.h"
#include "tests/platform/terminal/picture.h"

namespace keys {

void PrintTo(const FormKeys& form, std::ostream* to) {
  *to << form.title;
}

}  // namespace keys

namespace live {
namespace {

using keys::Effect;
using keys::Key;

constexpr const char* kMessageTitle = "Shop";
constexpr const char* kMenuKeys = "Up Down choose  Enter takes";

/// Lines that are wrapped elsewhere read the same.
std::string WithSingleBlanks(std::string text) {
  text.erase(std::unique(text.begin(), text.end(), [](char a, char b) { return a == ' ' && b == ' '; }), text.end());
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Somebody who presses the table's keys.
class Presser {
 public:
  void Press(const Key& key) {
    Go(key.at);
    program_.Type(key.typed);
    if (!key.key.empty()) program_.Press(key.key);
    program_.Type(key.then);
    const std::string before = title_;
    See(key);
    if (!key.label.empty()) {
      See([&](const Picture& form) { return form.After(key.label) == key.shows; }, key.label + " " + key.shows);
    }
    for (const std::string& back : key.back) {
      program_.Press(back);
      if (title_ != before) GoneIs(title_, before);
      if (key.effect == Effect::Menu) program_.ShowsNot(kMenuKeys);
    }
  }

 private:
  void See(const std::function<bool(const Picture&)>& holds, const std::string& what) {
    program_.Wait(
        [&] {
          const auto now = Picture::Find(program_.Screen(), title_);
          return now && holds(*now);
        },
        what);
  }

  void Go(const std::string& place) {
    const auto now = Picture::Find(program_.Screen(), title_);
    if (place.empty() || (now && now->HasFocusAt(place))) return;
    std::optional<Picture::Place> spot;
    bool isDropDown = false;
    See(
        [&](const Picture& form) {
          spot = place == "list" ? form.PlaceOfList() : form.PlaceAfter(place);
          isDropDown = spot && place != "list" && form.IsDropDown(*spot);
          return spot.has_value();
        },
        place);
    program_.Click(spot->x, spot->y);
    if (isDropDown) program_.Press("Esc");
    See([&](const Picture& form) { return form.HasFocusAt(place); }, "the focus at " + place);
  }

  void Meet(const std::string& title) {
    title_ = title;
    See([](const Picture&) { return true; }, title);
  }

  void GoneIs(const std::string& gone, const std::string& now) {
    program_.Wait([&] { return !Picture::Find(program_.Screen(), gone); }, "no more " + gone);
    Meet(now);
  }

  void Answer(const Key& key) {
    const std::string before = title_;
    Meet(kMessageTitle);
    See([&](const Picture& message) { return WithSingleBlanks(message.Message()) == WithSingleBlanks(key.what); }, key.what);
    program_.Press(key.answer.substr(0, 1));
    GoneIs(kMessageTitle, key.form.empty() ? before : key.form);
  }

  void See(const Key& key) {
    switch (key.effect) {
      case Effect::Opens:
        return Meet(key.what);
      case Effect::Asks:
        return Answer(key);
      case Effect::Menu:
        return program_.Shows(kMenuKeys);
      case Effect::Closes:
        return key.what.empty() || key.what == "Shop host" ? program_.Shows("Process date:") : GoneIs(title_, key.what);
      case Effect::Focus:
        return See([&](const Picture& form) { return form.HasFocusAt(key.what); }, "the focus at " + key.what);
      case Effect::Holds:
        return See([&](const Picture& form) { return form.Focused() == key.what; }, "a box with " + key.what);
      case Effect::Selects:
        return See([&](const Picture& form) { return form.HasSelected(key.what); }, "the row of " + key.what);
      case Effect::Lists:
        return See([&](const Picture& form) { return form.RowCount() == std::stoi(key.what); }, key.what + " rows");
      case Effect::Copies:
        return program_.Wait([&] { return Clipboard().find(key.what) != std::string::npos; }, "copied: " + key.what);
      case Effect::Turns:
        return See([&](const Picture& form) { return form.HasInFront(key.what); }, "the page " + key.what);
      case Effect::Shows:
        return;
    }
  }

  std::string Clipboard() const { return program_.Clipboard(); }

  LiveProgram program_;
  std::string title_ = "Goods Request to HQ";
};

class Keys : public testing::TestWithParam<keys::FormKeys> {};

TEST_P(Keys, OfTheUsersPageDoWhatItSaysOnATerminal) {
  Presser presser;
  const keys::FormKeys& form = GetParam();
  try {
    for (const Key& key : form.way) presser.Press(key);
  } catch (const std::runtime_error& error) {
    FAIL() << error.what();
  }
  for (std::size_t i = 0; i < form.keys.size(); ++i) {
    const Key& key = form.keys[i];
    SCOPED_TRACE(form.title + ": " + key.at + ' ' + key.typed + ' ' + key.key);
    try {
      presser.Press(key);
      if (key.effect == Effect::Closes && i + 1 < form.keys.size()) presser.Press(form.way.back());
    } catch (const std::runtime_error& error) {
      FAIL() << error.what();
    }
  }
}

std::string NameOf(const testing::TestParamInfo<keys::FormKeys>& form) {
  std::string name = form.param.title;
  std::erase(name, ' ');
  return name;
}
INSTANTIATE_TEST_SUITE_P(Form, Keys, testing::ValuesIn(keys::Table()), NameOf);

}  // namespace
}  // namespace live
