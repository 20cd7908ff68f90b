// Every key that the users' page names, pressed in the windows of another process as a keyboard does.

#include "tests/keys/keys.h"

#include <cctype>
#include <gtest/gtest.h>
#include <optional>

#include "platform/windows/desktop/clipboard.h"
#include "tests/windows/products/person/patience.h"
#include "tests/windows/products/person/shop_host.h"

namespace keys {

void PrintTo(const FormKeys& form, std::ostream* to) {
  *to << form.title;
}

}  // namespace keys

namespace person {
namespace {

using keys::Effect;
using keys::Key;

/// Somebody who presses the table's keys.
class Presser {
 public:
  explicit Presser(Program& host) : host_(host), person_(host) { Meet("Goods Request to HQ"); }

  void Press(const Key& key) {
    if (key.at == "list") {
      front_->GoToList();
    } else if (!key.at.empty()) {
      front_->GoBehind(key.at);
    }
    front_->Type(key.typed);
    if (!key.key.empty()) front_->Press(key.key);
    if (!key.then.empty()) front_->Type(key.then);
    const std::string before = title_;
    See(key);
    if (!key.label.empty()) front_->Shows(key.label, key.shows);
    GoBack(key, before);
  }

 private:
  void Meet(const std::string& title) {
    front_ = person_.Meets(title);
    title_ = title;
  }

  void See(const Key& key) {
    switch (key.effect) {
      case Effect::Opens:
        return Meet(key.what);
      case Effect::Asks:
        EXPECT_EQ(person_.Answers(key.answer), key.what);
        return Meet(key.form.empty() ? title_ : key.form);
      case Effect::Menu:
        return person_.MeetsMenu();
      case Effect::Closes:
        front_->Goes();
        if (!key.what.empty()) return Meet(key.what);
        EXPECT_EQ(host_.ExitCode(), 0u) << host_.Complaint();
        return;
      case Effect::Focus:
        return SeeFocus(key.what);
      case Effect::Holds:
        return front_->Holds(key.what);
      case Effect::Selects:
        return front_->HasSelectedCell(key.what);
      case Effect::Lists:
        return front_->HasRows(std::stoi(key.what));
      case Effect::Copies:
        return SeeCopied(key.what);
      case Effect::Turns:
        return front_->HasInFront(key.what);
      case Effect::Shows:
        return;
    }
  }

  /// This program's own look at what the other process has put there.
  static void SeeCopied(const std::string& text) {
    std::string seen;
    const auto look = [&] {
      seen = windows::ClipboardText(nullptr);
      return seen.find(text) != std::string::npos;
    };
    WaitUntil(look, [&] { return "the clipboard holds " + seen; });
  }

  void SeeFocus(const std::string& place) {
    if (place == "list") return front_->HasFocusOnList();
    // The labels of boxes end with a colon, but for a small word.
    const bool isLabel = place.ends_with(':') || std::islower(static_cast<unsigned char>(place.front())) != 0;
    if (isLabel) return front_->HasFocusBehind(place);
    front_->HasFocusOn(place);
  }

  void GoBack(const Key& key, const std::string& to) {
    if (key.effect == Effect::Menu) return person_.LeavesMenu();
    for (const std::string& back : key.back) {
      front_->Press(back);
      Meet(to);
    }
  }

  Program& host_;
  Person person_;
  std::optional<FormOnScreen> front_;
  std::string title_;
};

class Keys : public testing::TestWithParam<keys::FormKeys> {};

TEST_P(Keys, OfTheUsersPageDoWhatItSays) {
  const ShopFolder folder;
  Program host(Host(folder, kLoggedOn));
  const keys::FormKeys& form = GetParam();
  Presser presser(host);
  for (const Key& key : form.way) presser.Press(key);
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
}  // namespace person
