#pragma once

#include "base/ado/connection.h"
#include "base/late/object.h"
#include "platform/windows/products/shophost/options.h"

namespace windows {

/// The shop's database as the host opens it.
struct Shop {
  late::ObjectPtr database;  ///< the embedded one's keeper; it goes after the connection
  ado::Connection connection;
  vb::Date processDate;  ///< what to offer first
};

/// Opens a real ADO connection, or the embedded database: the file given, or the user's own, which is the sample shop at first.
Shop OpenShop(late::Factory& factory, const Options& options, vb::Date today);

}  // namespace windows
