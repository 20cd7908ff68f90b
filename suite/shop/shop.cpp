#include "suite/shop/shop.h"

#include "base/ado/connection.h"
#include "suite/engine/objects/database.h"
#include "suite/shop/scripts.h"

namespace suite {

void LoadSchema(Database& database, bool replication) {
  database.RunScript(SchemaScript());
  if (replication) database.RunScript(ReplicationScript());
}

void LoadSample(Database& database) {
  for (const auto script : {ShopsScript(), ItemsScript(), PackingScript(), StockScript(), DocumentsScript(), RequestsScript()})
    database.RunScript(script);
}

vb::Date SampleProcessDate() {
  return vb::MakeDate(2024, 3, 15);
}

}  // namespace suite
