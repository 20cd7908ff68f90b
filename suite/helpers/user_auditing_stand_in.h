#pragma once

#include <memory>
#include <string>

#include "base/ado/connection.h"
#include "base/late/object.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's user auditing: one row of smpUserAudit an action. The table is created on first use.
class UserAuditingStandIn : public late::TableObject<UserAuditingStandIn> {
 public:
  explicit UserAuditingStandIn(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}

  static const late::MemberTable<UserAuditingStandIn>& Members();
  std::string TypeName() const override { return "clsUserAuditing"; }

  /// Keeps what each box, combo, check box and option shows in its Tag.
  static void SaveInToTag(late::Object& form);
  /// One line "name: before -> after" for each control that no longer shows what its tag kept.
  static std::string ChangesSinceTag(late::Object& form);

 private:
  void Open(late::Arguments& arguments);
  void SaveUserAuditingInfo(late::Arguments& arguments);

  std::shared_ptr<Surroundings> surroundings_;
  ado::Connection connection_;
  std::int32_t companyId_ = 0;
  std::int32_t shopId_ = 0;
  std::int32_t userId_ = 0;
  std::int32_t interfaceId_ = 0;
  vb::Date loggedTime_;
};

}  // namespace suite
