#pragma once

#include <memory>

#include "base/late/object.h"
#include "platform/windows/products/shopsuite/embedded_ado.h"
#include "suite/engine/objects/database.h"

namespace windows {

/// The class ShopSuite.Database: the embedded shop database for hosts and scripts without a server. Kept by its user as long as
/// he works on it: with it goes what makes recordsets for its connections.
class ShopDatabase : public late::TableObject<ShopDatabase> {
 public:
  explicit ShopDatabase(std::shared_ptr<EmbeddedAdo> ado) : ado_(std::move(ado)) {}

  static const late::MemberTable<ShopDatabase>& Members();
  std::string TypeName() const override { return "Database"; }

 private:
  /// An open connection to the file, which becomes the sample shop when it is new; the empty path is a shop in memory, gone with
  /// its connections.
  late::Value Open(const std::string& path);

  std::shared_ptr<EmbeddedAdo> ado_;
};

}  // namespace windows
