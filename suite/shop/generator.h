#pragma once

#include "base/ado/connection.h"

namespace suite {

class Database;

/// How much GenerateShop adds.
struct Scale {
  int requests = 0;
  int items = 0;
  int linesPerRequest = 3;
};

/// Adds active, saleable items to the list of shop 1 (with description, packing, price and stock), and requests of shop 1 with
/// their lines, every one inside the register's date range. All or nothing: one transaction. Needs the sample data. Numbers
/// below 0 count as 0. Lines of a request have items of their own as long as the shop lists enough of them (5,000 at most).
void GenerateShop(Database& database, const Scale& scale);
/// The same inside the transaction that the caller has begun.
void GenerateShop(ado::Connection& connection, const Scale& scale);
void GenerateShop(Database& database, int requests, int items);

}  // namespace suite
