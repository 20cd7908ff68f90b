#pragma once

#include <memory>
#include <string>

#include "base/late/object.h"
#include "suite/engine/objects/error_list.h"
#include "suite/engine/store/session.h"

namespace suite {

/// The ADO Connection object.
class Connection : public late::TableObject<Connection> {
 public:
  Connection() = default;
  Connection(std::shared_ptr<Session> session, std::shared_ptr<void> database, std::string connectionString)
      : session_(std::move(session)), database_(std::move(database)), connectionString_(std::move(connectionString)) {}
  ~Connection() override;

  static const late::MemberTable<Connection>& Members();
  std::string TypeName() const override { return "Connection"; }

  /// The open session; error 3709 when the connection is closed, for those who want to work on it.
  const std::shared_ptr<Session>& OpenSession() const;
  int CursorLocation() const { return cursorLocation_; }
  /// Runs a statement. Error 3709 when the connection is closed.
  RunResult Run(std::string_view text, bool updatable);
  /// Runs `body`; what the server refuses is also found in Errors afterwards.
  template <class Body>
  auto Noting(const Body& body) {
    try {
      return body();
    } catch (const ServerError& error) {
      errors_->Keep(error);
      throw;
    }
  }

 private:
  void Open(late::Arguments& arguments);
  void Close();
  late::Value Execute(late::Arguments& arguments);
  late::Value BeginTrans();
  void End(void (Session::*how)());
  Session& Required() const;

  std::shared_ptr<Session> session_;
  std::shared_ptr<void> database_;
  std::string connectionString_;
  std::shared_ptr<ErrorList> errors_ = std::make_shared<ErrorList>();
  int timeout_ = 30;
  int cursorLocation_ = 2;
};

}  // namespace suite
