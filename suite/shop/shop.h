#pragma once

#include "base/vb/date.h"

namespace suite {

class Database;

/// Creates the suite's tables, views and the godown procedure in an empty database; with `replication` the request lines
/// carry a row identifier. A table that is there already is the engine's error.
void LoadSchema(Database& database, bool replication);

/// Fills a database that has the schema and no rows with the sample shop.
void LoadSample(Database& database);

/// The business date of the sample shop, 15 March 2024: the register's date range counts back from it.
vb::Date SampleProcessDate();

}  // namespace suite
