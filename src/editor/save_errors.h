#pragma once

#include "base/ado/connection.h"
#include "base/vb/error.h"

namespace goods {

enum class SaveStep { Writing, Committing };

/// The error in words that a shop user can act on, followed by the server's own, where its cause is neither the request nor the
/// component: another workstation, a server that undid the save, a broken connection. Any other error comes back as it is. Number
/// and source stay. Ask before the rollback: a rollback that fails leaves its own error on the connection.
vb::RunTimeError InUsersWords(const ado::Connection& connection, const vb::RunTimeError& error, SaveStep step);

}  // namespace goods
