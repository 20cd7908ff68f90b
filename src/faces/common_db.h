#pragma once

#include <cstdint>
#include <string_view>

#include "src/faces/face.h"

namespace ado {
class Connection;
}
namespace controls {
class ListView;
}

namespace goods {

/// The suite's database helper. Members carry their classic names.
class CommonDb : public Face {
 public:
  CommonDb() = default;
  /// Creates the helper and hands it the connection. Error 429 when it is not registered.
  CommonDb(late::Factory& factory, const ado::Connection& connection, std::string_view progId = "ShopCommon.clsCommonDB");

  /// The table or view of the following look-ups; " where ..." may follow its name.
  void strTableName(std::string_view table);
  /// The field of the first matching row; Null or Empty when no row matches. `condition` goes without the word where.
  late::Value fnReturnField(std::string_view field);
  late::Value fnReturnField(std::string_view field, std::string_view condition);
  /// Greatest value of the column plus one.
  std::int32_t fnGetNextMaxNo(std::string_view column);
  void fnUpdateSelectedRecord(std::string_view condition, std::string_view column, std::int16_t value);
  /// Fills a list view with a key column (the line's text) and a text column (sub-item 1).
  void PopulateListview(controls::ListView& list, std::string_view tables, std::string_view condition, std::string_view keyColumn,
                        std::string_view textColumn, std::string_view option);
  /// Removes the list's selected line; `index` is its number and `count` the lines before the removal.
  void fnDeleteListview(controls::ListView& list, std::int32_t index, std::int32_t count);
};

}  // namespace goods
