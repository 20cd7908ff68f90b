#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/late/object.h"

namespace support {

/// Stands in for the error component and notes what is reported, "form|routine|number|mode", instead of showing it.
class ErrorNotes : public late::TableObject<ErrorNotes> {
 public:
  /// Puts itself in the place of whatever is registered; the notes outlive the registry's objects.
  static std::shared_ptr<ErrorNotes> Install(late::ClassRegistry& registry) {
    auto notes = std::make_shared<ErrorNotes>();
    registry.Unregister("ErrLog.ErrorDetails");
    registry.Register("ErrLog.ErrorDetails", [notes] { return notes; });
    return notes;
  }

  std::vector<std::string> lines;
  std::vector<std::string> users;  ///< the user's name of each line

  static const late::MemberTable<ErrorNotes>& Members() {
    static const late::MemberTable<ErrorNotes> table{{"ErrorTrack",
                                                      [](ErrorNotes& self, late::Arguments& report) {
                                                        self.lines.push_back(report[0].ToText() + "|" + report[2].ToText() + "|" +
                                                                             report[3].ToText() + "|" + report[6].ToText());
                                                        self.users.push_back(report[1].ToText());
                                                        return late::Value(true);
                                                      },
                                                      nullptr, 8, 8}};
    return table;
  }
  std::string TypeName() const override { return "ErrorDetails"; }
};

}  // namespace support
