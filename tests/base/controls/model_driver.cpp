#include "tests/base/controls/model_driver.h"

#include <stdexcept>

#include "base/controls/keyboard.h"
#include "base/controls/menu.h"
#include "base/controls/text_box.h"
#include "base/vb/text.h"

namespace counter {

controls::Answer ModelDesktop::MsgBox(controls::Form*, const controls::Message& message) {
  messages.push_back(message.text);
  if (answers.empty()) return message.AnswerOf(message.DefaultButton());
  const controls::Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

controls::Menu* ModelDesktop::PopupMenu(controls::Form&, controls::Menu& menu) {
  for (controls::Menu* entry : menu.Entries()) {
    if (entry->Visible() && entry->Enabled() && entry->Name() == pick) return entry;
  }
  return nullptr;
}

void ModelDesktop::RunModal(controls::Form& form) {
  if (!hands.empty()) {
    const auto work = std::move(hands.front());
    hands.pop_front();
    work(form);
  }
  if (form.IsShown()) form.CloseByUser();
}

std::unique_ptr<ControlDriver> MakeDriver() {
  return std::make_unique<ModelDriver>();
}

void ModelDriver::Work(controls::Form& form, std::function<void()> hands) {
  desktop_.hands.push_front([hands = std::move(hands)](controls::Form&) { hands(); });
  form.Show();
}

void ModelDriver::Type(controls::Control& control, std::string_view text) {
  controls::Form& form = control.Owner();
  if (!form.MoveFocus(&control)) return;
  if (auto* box = dynamic_cast<controls::TextBox*>(&control); box && box->SelLength() == 0) {
    box->SetSelStart(static_cast<int>(vb::Len(box->Text())));
  }
  for (std::size_t offset = 0; offset < text.size() && controls::CanGoOnTyping(form, control);) {
    const std::size_t begin = offset;
    vb::NextCharacter(text, offset);
    Press(text.substr(begin, offset - begin));
  }
}

void ModelDriver::Paste(controls::Control& control, std::string_view text) {
  if (!control.Owner().MoveFocus(&control)) return;
  if (auto* box = dynamic_cast<controls::TextBox*>(&control)) box->Paste(text);
  if (auto* combo = dynamic_cast<controls::ComboBox*>(&control)) combo->Paste(text);
}

void ModelDriver::Press(std::string_view name) {
  controls::KeyStroke key;
  if (!controls::ParseKey(name, key)) throw std::invalid_argument("no such key: " + std::string(name));
  controls::PressKey(*desktop_.ActiveForm(), key);
}

void ModelDriver::Click(controls::Control& control) {
  controls::ClickControl(control);
}

void ModelDriver::Pick(controls::ComboBox& combo, int entry) {
  if (combo.Owner().MoveFocus(&combo)) combo.Pick(entry);
}

void ModelDriver::ClickLine(controls::ListView& list, int line) {
  if (list.Owner().MoveFocus(&list)) list.ClickItem(line);
}

void ModelDriver::CheckLine(controls::ListView& list, int line, bool checked) {
  if (list.Owner().MoveFocus(&list)) list.CheckItem(line, checked);
}

void ModelDriver::ClickCell(controls::FlexGrid& grid, long row, long col) {
  if (grid.Owner().MoveFocus(&grid)) grid.ClickCell(row, col);
}

void ModelDriver::ClickHeading(controls::FlexGrid& grid, long col) {
  grid.ClickHeading(col);
}

std::string ModelDriver::Read(controls::Control& control, std::string_view property) {
  return control.Get(property).TextOrEmpty();
}

std::string ModelDriver::Focus(const controls::Form& form) const {
  return form.ActiveControl() ? form.ActiveControl()->Name() : "";
}

}  // namespace counter
