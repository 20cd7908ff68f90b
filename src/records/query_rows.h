#pragma once

#include <string_view>
#include <type_traits>
#include <vector>

#include "base/ado/recordset.h"
#include "base/late/value.h"
#include "src/module/session.h"

namespace goods {

// Small queries on the session's connection. Each reader opens a recordset, reads and closes it: the connection is then free for
// the next statement. Database errors are raised.

/// A new recordset that is open on the query; the caller closes it.
ado::Recordset OpenQuery(basGoodsRequest& session, std::string_view query, ado::CursorType cursor = ado::kForwardOnly,
                         ado::LockType lock = ado::kReadOnly);

/// What `read(recordset)` returns of the query's open recordset, for what the readers below do not give.
template <class Read>
auto ReadQuery(basGoodsRequest& session, std::string_view query, Read read, ado::CursorType cursor = ado::kForwardOnly,
               ado::LockType lock = ado::kReadOnly) {
  ado::Recordset rows = OpenQuery(session, query, cursor, lock);
  if constexpr (std::is_void_v<std::invoke_result_t<Read&, ado::Recordset&>>) {
    read(rows);
    rows.Close();
  } else {
    auto result = read(rows);
    rows.Close();
    return result;
  }
}

/// All records of a query as (field, record); an array without records when it finds none.
late::ArrayPtr ReadRows(basGoodsRequest& session, std::string_view query);

/// The fields of the query's first record; an empty list when it finds none.
std::vector<late::Value> FirstRow(basGoodsRequest& session, std::string_view query);

/// The first field of the query's first record; Null when it finds none.
late::Value FirstValue(basGoodsRequest& session, std::string_view query);

/// The first field of the first record that the connection itself returns for a statement, without a recordset of its own. Error
/// 3021 when there is no record.
late::Value ExecuteForValue(basGoodsRequest& session, std::string_view statement);

}  // namespace goods
