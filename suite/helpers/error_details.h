#pragma once

#include <memory>
#include <string>

#include "base/late/object.h"
#include "base/vb/error.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's error log: appends to errors.log in the application folder and tells the user.
class ErrorDetails : public late::TableObject<ErrorDetails> {
 public:
  explicit ErrorDetails(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}

  static const late::MemberTable<ErrorDetails>& Members();
  std::string TypeName() const override { return "ErrorDetails"; }

  /// Appends a line without a message box. Raises nothing.
  void Note(std::string_view module, std::string_view routine, const vb::RunTimeError& error) const;

 private:
  void Append(late::Arguments& arguments) const;
  void Tell(late::Arguments& arguments) const;

  std::shared_ptr<Surroundings> surroundings_;
};

}  // namespace suite
