#include "tests/platform/console/text_session.h"

#include "base/vb/error.h"

namespace console {

void FakeDatabase::Query(std::string_view statement, const std::function<void(std::span<const late::Value>)>& row) {
  asked = statement;
  if (statement.starts_with("bad")) vb::Raise(102, "Incorrect syntax near 'bad'.");
  const std::array<late::Value, 5> first = {late::Value(late::Null{}), late::Value(true), late::Value(vb::Decimal{2500, 3}),
                                            late::Value("a\tb"), late::Value(vb::MakeDate(2024, 3, 15))};
  row(first);
}

void FakeDatabase::FailAt(int n, std::string text) {
  asked = "fail at " + std::to_string(n) + ": " + text;
}

std::string TextSession::Play(const std::string& script, Person person) {
  std::istringstream stream(script);
  std::ostringstream printed;
  Output output(printed);
  Input input(stream, output, Input::Echo::Off, person == Person::Yes ? Input::From::Terminal : Input::From::Script);
  form_.reset();
  desktop_ = std::make_unique<TextDesktop>(input, output);
  Interpreter interpreter(*desktop_, output);
  desktop_->SetLineHandler([&](const std::string& line) { interpreter.Execute(line); });
  interpreter.Commands().Add(MouseCommands(*desktop_));
  interpreter.Commands().Add(KeyboardCommands(*desktop_));
  interpreter.Commands().Add(AnswerCommands(*desktop_));
  interpreter.Commands().Add(LookingCommands(*desktop_, output, [](std::string_view name) {
    return name == "gIntShopID" ? late::Value(1) : late::Value(late::Missing{});
  }));
  interpreter.Commands().Add(DatabaseCommands(database, output));
  form_ = std::make_shared<OrderForm>(*desktop_);
  form_->refusals = refusals;
  form_->Show();
  errors_ = output.Errors();
  return printed.str();
}

}  // namespace console
