#include "suite/engine/objects/connection.h"

#include "base/ado/constants.h"
#include "suite/engine/objects/database.h"
#include "suite/engine/objects/recordset.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::string_view kSource = "ADODB.Connection";
constexpr std::string_view kScheme = "embedded:";

}  // namespace

Connection::~Connection() = default;

Session& Connection::Required() const {
  if (!session_) RaiseAdo(ado::kObjectClosed, kSource);
  return *session_;
}

const std::shared_ptr<Session>& Connection::OpenSession() const {
  if (!session_) RaiseAdo(ado::kInvalidConnection, kSource);
  return session_;
}

void Connection::Open(late::Arguments& arguments) {
  if (session_) RaiseAdo(ado::kObjectOpen, kSource);
  if (arguments.Has(0)) connectionString_ = arguments[0].ToText();
  if (!std::string_view(connectionString_).starts_with(kScheme)) {
    vb::Raise(ado::kArgumentError, "The connection string must read embedded:PATH.", std::string(kSource));
  }
  const auto database = Database::Open(connectionString_.substr(kScheme.size()));
  const auto opened = std::static_pointer_cast<Connection>(database->Connect());
  session_ = opened->session_;
  database_ = database;
  session_->SetTimeout(timeout_);
}

void Connection::Close() {
  if (Required().InTransaction()) RaiseAdo(ado::kInTransaction, kSource);
  session_->CloseRows();
  session_.reset();
  database_.reset();
}

late::Value Connection::Execute(late::Arguments& arguments) {
  if (!session_) RaiseAdo(ado::kObjectClosed, kSource);
  const std::shared_ptr<Session> session = session_;
  // A text that came by reference could change while it runs.
  const late::Value held = arguments.All()[0].IsByRef() ? late::Value(arguments[0]) : late::Value();
  const late::Value& text = held.IsEmpty() ? arguments[0] : held;
  const auto* statement = text.If<std::string>();
  RunResult result = Run(statement ? std::string_view(*statement) : std::string_view(), false);
  if (arguments.Has(1)) arguments.Write(1, result.affected);
  if (arguments.Has(2) && (arguments[2].ToInt32() & ado::kExecuteNoRecords)) {
    // The provider then reads all that the server has to say.
    Noting([&] { result.RaiseLater(); });
    return std::make_shared<Recordset>();
  }
  auto self = std::static_pointer_cast<Connection>(shared_from_this());
  const bool rows = static_cast<bool>(result.rows);
  return Recordset::OfResult(std::move(self), session, std::move(result), rows && statement ? *statement : std::string());
}

RunResult Connection::Run(std::string_view text, bool updatable) {
  const std::shared_ptr<Session> session = OpenSession();
  return Noting([&] { return session->Run(text, updatable); });
}

late::Value Connection::BeginTrans() {
  Noting([&] { Required().Begin(); });
  return std::int32_t{1};  // the server knows one level
}

void Connection::End(void (Session::*how)()) {
  Session& session = Required();
  Noting([&] { (session.*how)(); });
}

const late::MemberTable<Connection>& Connection::Members() {
  using Self = Connection;
  using Arguments = late::Arguments;
  using Value = late::Value;
  static const late::MemberTable<Connection> table = {
      {"Open", [](Self& self, Arguments& arguments) -> Value { return self.Open(arguments), Value(); }, nullptr, 0, 4},
      {"Close", [](Self& self, Arguments&) -> Value { return self.Close(), Value(); }, nullptr},
      {"Execute", [](Self& self, Arguments& arguments) { return self.Execute(arguments); }, nullptr, 1, 3},
      late::Collection<Self>("Errors", [](Self& self) { return self.errors_; }),
      {"BeginTrans", [](Self& self, Arguments&) { return self.BeginTrans(); }, nullptr},
      {"CommitTrans", [](Self& self, Arguments&) -> Value { return self.End(&Session::Commit), Value(); }, nullptr},
      {"RollbackTrans", [](Self& self, Arguments&) -> Value { return self.End(&Session::Rollback), Value(); }, nullptr},
      {"CommandTimeout", [](Self& self, Arguments&) -> Value { return std::int32_t{self.timeout_}; },
       [](Self& self, Arguments& arguments) {
         const std::int32_t seconds = arguments[0].ToInt32();
         if (seconds < 0) RaiseAdo(ado::kArgumentError, kSource);
         self.timeout_ = seconds;
         if (self.session_) self.session_->SetTimeout(seconds);
       }},
      {"State", [](Self& self, Arguments&) -> Value { return std::int32_t{self.session_ ? ado::kOpen : ado::kClosed}; }, nullptr},
      {"ConnectionString", [](Self& self, Arguments&) -> Value { return self.connectionString_; },
       [](Self& self, Arguments& arguments) {
         if (self.session_) RaiseAdo(ado::kObjectOpen, kSource);
         self.connectionString_ = arguments[0].ToText();
       }},
      {"CursorLocation", [](Self& self, Arguments&) -> Value { return std::int32_t{self.cursorLocation_}; },
       [](Self& self, Arguments& arguments) { self.cursorLocation_ = arguments[0].ToInt32(); }},
      {"Version", [](Self&, Arguments&) -> Value { return "2.8"; }, nullptr},
      {"Provider", [](Self&, Arguments&) -> Value { return std::string(kProviderName); }, nullptr},
  };
  return table;
}

}  // namespace suite
