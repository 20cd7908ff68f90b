#include "platform/windows/products/shopsuite/shop_database.h"

#include "suite/shop/shop.h"

namespace windows {

const late::MemberTable<ShopDatabase>& ShopDatabase::Members() {
  using Class = ShopDatabase;
  static const late::MemberTable<Class> table{
      {"Open", [](Class& self, late::Arguments& arguments) { return self.Open(arguments.Or(0, "").TextOrEmpty()); }, nullptr, 0,
       1},
      {"ProcessDate", [](Class&, late::Arguments&) { return late::Value(suite::SampleProcessDate()); }, nullptr},
  };
  return table;
}

late::Value ShopDatabase::Open(const std::string& path) {
  const auto database = suite::Database::Open(path);
  database->FillWhenEmpty([&](const late::ObjectPtr&) {
    suite::LoadSchema(*database, false);
    suite::LoadSample(*database);
  });
  return database->Connect();
}

}  // namespace windows
