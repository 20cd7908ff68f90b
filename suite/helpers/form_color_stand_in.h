#pragma once

#include <memory>
#include <string>
#include <utility>

#include "base/late/object.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's form colouring: one calm scheme for all forms, which steps back while the person has asked the
/// system for high contrast. Reaches forms and controls by member name.
class FormColorStandIn : public late::TableObject<FormColorStandIn> {
 public:
  explicit FormColorStandIn(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}
  static const late::MemberTable<FormColorStandIn>& Members();
  std::string TypeName() const override { return "clsFormcolor"; }

  static void Applyformcolor(late::Object& form, const controls::Desktop& desktop);
  static void Applytabcolor(late::Object& tab, const controls::Desktop& desktop);

 private:
  std::shared_ptr<Surroundings> surroundings_;
};

}  // namespace suite
