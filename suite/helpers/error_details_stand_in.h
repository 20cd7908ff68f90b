#pragma once

#include <memory>
#include <string>

#include "base/late/object.h"
#include "base/vb/error.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's error log: appends to errors.log in the application folder, or in the
/// user's temporary folder where the first cannot be written, and tells the user.
class ErrorDetailsStandIn : public late::TableObject<ErrorDetailsStandIn> {
 public:
  explicit ErrorDetailsStandIn(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}

  static const late::MemberTable<ErrorDetailsStandIn>& Members();
  std::string TypeName() const override { return "ErrorDetails"; }

  /// Appends a line without a message box. Raises nothing.
  void Note(std::string_view module, std::string_view routine, const vb::RunTimeError& error) const;

 private:
  void Log(late::Arguments& arguments) const;
  /// Whether the line could be written.
  bool Append(const std::string& folder, const std::string& line) const;
  std::string LineOf(late::Arguments& arguments) const;
  void Tell(late::Arguments& arguments) const;

  std::shared_ptr<Surroundings> surroundings_;
};

}  // namespace suite
