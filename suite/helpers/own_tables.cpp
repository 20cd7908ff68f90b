#include "suite/helpers/own_tables.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

#include "suite/helpers/error_details_stand_in.h"

namespace suite {
namespace {

/// The server's errors for a missing right: on an object, to create a table, in the owner's schema.
constexpr std::array<std::int32_t, 3> kPermissionDenied = {229, 262, 2760};
constexpr std::int32_t kAlreadyThere = 2714;

bool Exists(ado::Connection& connection, std::string_view name) {
  ado::Recordset id = connection.Execute("select object_id('" + std::string(name) + "')");
  const bool exists = !id.Eof() && !id.Field(0).IsNull();
  id.Close();
  return exists;
}

}  // namespace

OwnTableState FindOrMake(const std::shared_ptr<Surroundings>& surroundings, ado::Connection& connection, const OwnTable& table) {
  std::set<std::string>& refused = surroundings->refusedTables;
  const std::string name(table.name);
  if (refused.contains(name)) return OwnTableState::Refused;
  if (Exists(connection, name)) return OwnTableState::Found;
  try {
    connection.ExecuteNoRecords("create table " + name + " (" + std::string(table.columns) + ")");
    return OwnTableState::Made;
  } catch (const vb::RunTimeError& error) {
    const std::int32_t number = connection.DetailOf(error).value_or(ado::ErrorDetail{}).nativeError;
    if (number == kAlreadyThere) return OwnTableState::Found;  // another workstation was quicker
    if (std::find(kPermissionDenied.begin(), kPermissionDenied.end(), number) == kPermissionDenied.end()) throw;
    refused.insert(name);
    ErrorDetailsStandIn(surroundings).Note("shopsuite", "create table " + name, error);
    return OwnTableState::Refused;
  }
}

}  // namespace suite
