#pragma once

#include <array>
#include <memory>
#include <sstream>
#include <string>

#include "platform/console/acting_commands.h"
#include "platform/console/interpreter.h"
#include "platform/console/looking_commands.h"
#include "tests/platform/console/order_form.h"

namespace console {

/// A shop whose database answers every statement with the same rows and remembers what it was asked.
class FakeDatabase : public DatabaseTools {
 public:
  void Query(std::string_view statement, const std::function<void(std::span<const late::Value>)>& row) override;
  void FailAt(int n, std::string text) override;

  std::string asked;
};

/// Plays console scripts on the order form.
class TextSession {
 public:
  enum class Person { No, Yes };

  /// Shows the form, carries the script out, and gives what was printed.
  std::string Play(const std::string& script, Person person = Person::No);

  OrderForm& Form() { return *form_; }
  int Errors() const { return errors_; }
  FakeDatabase database;

  /// How often the form will refuse to close.
  int refusals = 0;

 private:
  std::shared_ptr<OrderForm> form_;
  std::unique_ptr<TextDesktop> desktop_;
  int errors_ = 0;
};

}  // namespace console
