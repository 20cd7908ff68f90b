#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <string>

#include "base/vb/error.h"
#include "suite/engine/objects/database.h"
#include "suite/engine/values/errors.h"

/// A small shop's request tables, and short ways to ask.
class RequestTables : public testing::Test {
 protected:
  RequestTables() : database_(suite::Database::Open("", {[] { return vb::MakeDate(2005, 3, 15, 10, 20, 30); }})) {
    database_->RunScript(
        "create table detail (line smallint not null, shop int not null, request int not null, item int not null,"
        " remarks varchar(20) null, qty decimal(18,3) null, raised bit null default 0, made datetime null, primary key (shop, "
        "request, line))");
    connection_ = database_->Connect();
  }

  void Fill(int rows) {
    for (int i = 1; i <= rows; ++i) {
      Execute("insert into detail (line, shop, request, item, remarks, qty) values (" + std::to_string(i) + ",1,1," +
              std::to_string(100 + i) + ",'line " + std::to_string(i) + "'," + std::to_string(i) + ".5)");
    }
  }
  late::ObjectPtr Execute(const std::string& statement) { return connection_->Call("Execute", {statement}).ToObject(); }
  late::Value Single(const std::string& statement) { return Execute(statement)->Get("Collect", {std::int32_t{0}}); }
  int Count(const std::string& where = "1=1") { return Single("select count(*) from detail where " + where).ToInt32(); }

  late::ObjectPtr Open(const std::string& source, int cursor, int lock) {
    late::ClassRegistry registry;
    suite::RegisterAdo(registry);
    const late::ObjectPtr recordset = registry.Create("ADODB.Recordset");
    recordset->Call("Open", {source, connection_, std::int32_t{cursor}, std::int32_t{lock}});
    return recordset;
  }
  static late::Value Field(const late::ObjectPtr& recordset, const char* name) { return recordset->Get("Collect", {name}); }
  static void Set(const late::ObjectPtr& recordset, const char* name, late::Value value) {
    recordset->Put("Collect", {name}, std::move(value));
  }

  /// The number of the error that the action raises; 0 when it raises none.
  static long ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const vb::RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }
  static int ServerErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const suite::ServerError& error) {
      return error.NativeError();
    }
    return 0;
  }

  std::shared_ptr<suite::Database> database_;
  late::ObjectPtr connection_;
};
