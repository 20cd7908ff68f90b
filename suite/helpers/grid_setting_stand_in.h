#pragma once

#include <memory>
#include <string>

#include "base/ado/connection.h"
#include "base/late/object.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's grid settings: column widths of a grid by user, company and interface, kept in smpGridSettings
/// (created on first use). It is given no connection, so it works on the one last given to any of the stand-ins.
class GridSettingStandIn : public late::TableObject<GridSettingStandIn> {
 public:
  explicit GridSettingStandIn(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}

  static const late::MemberTable<GridSettingStandIn>& Members();
  std::string TypeName() const override { return "clsMasterGridSetting"; }

 private:
  /// Which user's settings of which grid.
  struct Owner {
    std::int16_t userId;
    std::int32_t companyId;
    std::int32_t interfaceId;
    std::string Condition() const;
  };
  static Owner OwnerOf(late::Arguments& arguments);
  ado::Connection Connection() const;
  /// Applies the stored widths; columns without one stay as they are.
  void fnGridSettings(const Owner& owner, late::Object& grid) const;
  /// Stores the grid's present widths as the user's.
  void fnSaveGridSettings(const Owner& owner, late::Object& grid) const;

  std::shared_ptr<Surroundings> surroundings_;
};

}  // namespace suite
