#include "tests/support/scripted_desktop.h"

#include <gtest/gtest.h>

#include "base/controls/combo_box.h"
#include "base/controls/menu.h"
#include "base/vb/text.h"

namespace support {
namespace {

const char* NameOf(bool isForm, bool isMessage) {
  return isMessage ? "message" : isForm ? "form" : "menu";
}

bool PersonCan(controls::Control& control) {
  if (!control.IsShown()) {
    ADD_FAILURE() << control.Name() << " is hidden: nobody can work with it";
    return false;
  }
  if (!control.Enabled()) {
    ADD_FAILURE() << control.Name() << " is disabled: nobody can work with it";
    return false;
  }
  return true;
}

}  // namespace

ScriptedDesktop::~ScriptedDesktop() {
  Verify();
}

void ScriptedDesktop::ExpectMessage(std::string text, controls::Answer answer, int style) {
  steps_.push_back({Step::Kind::Message, std::move(text), answer, style, {}});
}

void ScriptedDesktop::ExpectForm(std::string name, std::function<void(controls::Form&)> work) {
  steps_.push_back({Step::Kind::Form, std::move(name), controls::Answer::Ok, -1, std::move(work)});
}

void ScriptedDesktop::ExpectMenu(std::string pick) {
  steps_.push_back({Step::Kind::Menu, std::move(pick), controls::Answer::Ok, -1, {}});
}

void ScriptedDesktop::Verify() {
  for (const Step& step : steps_) {
    ADD_FAILURE() << "expected " << NameOf(step.kind == Step::Kind::Form, step.kind == Step::Kind::Message)
                  << " never came: " << step.name;
  }
  steps_.clear();
}

bool ScriptedDesktop::Next(Step::Kind kind, const std::string& name, Step& step) {
  const bool matches =
      !steps_.empty() && steps_.front().kind == kind && (kind == Step::Kind::Menu || steps_.front().name == name);
  if (!matches) {
    ADD_FAILURE() << "unexpected " << NameOf(kind == Step::Kind::Form, kind == Step::Kind::Message) << ": " << name
                  << "\nexpected: " << (steps_.empty() ? std::string("nothing") : steps_.front().name);
    return false;
  }
  step = std::move(steps_.front());
  steps_.pop_front();
  return true;
}

controls::Answer ScriptedDesktop::MsgBox(controls::Form*, const controls::Message& message) {
  messages.push_back(message);
  Step step;
  if (!Next(Step::Kind::Message, message.text, step)) return message.AnswerOf(message.DefaultButton());
  if (step.style >= 0) {
    EXPECT_EQ(step.style, message.style) << message.text;
  }
  return step.answer;
}

controls::Menu* ScriptedDesktop::PopupMenu(controls::Form&, controls::Menu& menu) {
  lastMenu.clear();
  controls::Menu* picked = nullptr;
  Step step;
  const bool expected = Next(Step::Kind::Menu, menu.Name(), step);
  for (controls::Menu* entry : menu.Entries()) {
    if (entry->IsSeparator() || !entry->Visible()) continue;
    lastMenu.push_back(entry->Enabled() ? entry->Name() : "(" + entry->Name() + ")");
    if (!expected || !vb::EqualNoCase(entry->Name(), step.name)) continue;
    if (entry->Enabled())
      picked = entry;
    else
      ADD_FAILURE() << entry->Name() << " is disabled in the menu";
  }
  if (expected && !step.name.empty() && picked == nullptr) ADD_FAILURE() << "no such entry to pick: " << step.name;
  return picked;
}

void ScriptedDesktop::PointerChanged(controls::Form&, bool hourglass) {
  hourglasses += hourglass ? 1 : -1;
  sawHourglass = sawHourglass || hourglass;
}

void ScriptedDesktop::RunModal(controls::Form& form) {
  opened.push_back(form.Name());
  Step step;
  if (Next(Step::Kind::Form, form.Name(), step) && step.work) step.work(form);
  for (int attempt = 0; form.IsShown() && attempt < 3; ++attempt) form.CloseByUser();
  if (form.IsShown()) throw std::runtime_error(form.Name() + " cannot be closed");
}

void Type(controls::Control& control, std::string_view text) {
  if (!PersonCan(control)) return;
  control.SetFocus();
  if (auto* box = dynamic_cast<controls::TextBox*>(&control); box != nullptr && box->SelLength() == 0) {
    box->SetSelStart(static_cast<int>(vb::Len(box->Text())));
  }
  for (std::size_t offset = 0; offset < text.size();) {
    controls::KeyStroke key;
    key.character = vb::NextCharacter(text, offset);
    PressKey(control.Owner(), key);
    if (!CanGoOnTyping(control.Owner(), control)) return;
  }
}

void Enter(controls::TextBox& box, std::string_view text) {
  if (!PersonCan(box)) return;
  box.SetFocus();
  box.SelectAll();
  if (text.empty()) {
    Press(box, "Delete");
  } else {
    Type(box, text);
  }
}

void Press(controls::Control& control, std::string_view key) {
  if (!PersonCan(control)) return;
  if (!control.HasFocus()) control.SetFocus();
  controls::KeyStroke stroke;
  if (!controls::ParseKey(key, stroke)) {
    ADD_FAILURE() << "no such key: " << key;
    return;
  }
  PressKey(control.Owner(), stroke);
}

void Click(controls::Control& control) {
  if (PersonCan(control)) ClickControl(control);
}

void Choose(controls::Control& control, std::string_view text) {
  if (!PersonCan(control)) return;
  auto& combo = dynamic_cast<controls::ComboBox&>(control);
  combo.SetFocus();
  for (int index = 0; index < combo.ListCount(); ++index) {
    if (combo.List(index) == text) {
      combo.Pick(index);
      return;
    }
  }
  ADD_FAILURE() << control.Name() << " does not offer " << text;
}

void CheckLine(controls::ListView& list, int line, bool checked) {
  if (PersonCan(list)) list.CheckItem(line, checked);
}

void DoubleClick(controls::Control& control) {
  if (!PersonCan(control)) return;
  control.SetFocus();
  control.DblClick.Fire();
}

void RightClick(controls::Control& control) {
  if (!PersonCan(control)) return;
  control.SetFocus();
  control.MouseDown.Fire(controls::kRightButton, 0);
  control.MouseUp.Fire(controls::kRightButton, 0);
}

void GoToRow(controls::FlexGrid& grid, long row, long col) {
  if (PersonCan(grid)) grid.ClickCell(row, col);
}

}  // namespace support
