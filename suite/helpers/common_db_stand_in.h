#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/ado/connection.h"
#include "base/late/object.h"
#include "suite/helpers/surroundings.h"

namespace suite {

/// Stand-in of the suite's database helper: single values, next numbers, flag updates, filling of list views. Every member runs
/// on the connection it was given.
class CommonDbStandIn : public late::TableObject<CommonDbStandIn> {
 public:
  explicit CommonDbStandIn(std::shared_ptr<Surroundings> surroundings) : surroundings_(std::move(surroundings)) {}

  static const late::MemberTable<CommonDbStandIn>& Members();
  std::string TypeName() const override { return "clsCommonDB"; }

  /// First row's field of "select field from table [where condition]"; Null when no row matches.
  late::Value fnReturnField(std::string_view field, std::string_view condition);
  /// Greatest value of the column in the table plus one; 1 for an empty table. Error 6 beyond 32 bits.
  std::int32_t fnGetNextMaxNo(std::string_view column);
  void fnUpdateSelectedRecord(std::string_view condition, std::string_view column, std::int16_t value);
  /// Fills a list view: the key column is the line's text, the text column sub-item 1. The option "skip" leaves the further
  /// columns alone; any other one fills them with the text column's further fields.
  void PopulateListview(late::Object& list, std::string_view tables, std::string_view condition, std::string_view keyColumn,
                        std::string_view textColumn, std::string_view option);
  /// Removes line `index` of the list, or the selected one when `index` is no line of it.
  void fnDeleteListview(late::Object& list, std::int32_t index);

 private:
  void SetConnection(const late::Value& connection);

  std::shared_ptr<Surroundings> surroundings_;
  ado::Connection connection_;
  std::string strTableName_;
};

}  // namespace suite
