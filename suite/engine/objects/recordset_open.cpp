#include "base/ado/constants.h"
#include "suite/engine/objects/recordset.h"
#include "suite/engine/values/errors.h"

namespace suite {
namespace {

constexpr std::string_view kSource = "ADODB.Recordset";
constexpr int kCommandTable = 2;
constexpr int kCommandStoredProcedure = 4;

}  // namespace

Recordset::~Recordset() {
  if (session_) session_->Detach(this);
}

std::shared_ptr<Recordset> Recordset::OfResult(std::shared_ptr<Connection> connection, std::shared_ptr<Session> session,
                                               RunResult result, std::string source) {
  auto recordset = std::make_shared<Recordset>();
  recordset->connection_ = std::move(connection);
  recordset->source_ = std::move(source);
  recordset->later_ = result.later;
  if (!result.rows) return recordset;
  recordset->session_ = std::move(session);
  const bool client = recordset->connection_ && recordset->connection_->CursorLocation() == ado::kUseClient;
  recordset->onServer_ = !client;
  recordset->cursorType_ = client ? ado::kStatic : ado::kForwardOnly;
  recordset->cursor_ = std::make_unique<Cursor>(recordset->session_, std::move(result.rows), client, 0);
  recordset->session_->Attach(recordset.get());
  recordset->cursor_->Start();
  if (client) recordset->cursor_->ReadAll();
  return recordset;
}

void Recordset::RequireAlive() const {
  if (dead_) RaiseProvider(kCatastrophic, "Catastrophic failure");
}

Cursor& Recordset::Rows() {
  RequireAlive();
  if (!cursor_) RaiseAdo(ado::kObjectClosed, kSource);
  if (!pending_.empty()) ShowNew();
  return *cursor_;
}

void Recordset::RequireClosed() const {
  if (cursor_ || dead_) RaiseAdo(ado::kObjectOpen, kSource);
}

void Recordset::SetConnection(const late::Value& value) {
  RequireClosed();
  if (value.IsText()) {
    auto connection = std::make_shared<Connection>();
    connection->Call("Open", {value});
    connection_ = std::move(connection);
    return;
  }
  if (value.IsEmpty() || value.IsNull() || (value.IsObject() && !*value.If<late::ObjectPtr>())) {
    connection_.reset();
    return;
  }
  connection_ = std::dynamic_pointer_cast<Connection>(value.ToObject());
  if (!connection_) RaiseAdo(ado::kArgumentError, kSource);
}

void Recordset::Open(late::Arguments& arguments) {
  RequireClosed();
  if (arguments.Has(0)) source_ = arguments[0].ToText();
  if (arguments.Has(1)) SetConnection(arguments[1]);
  if (arguments.Has(2)) cursorType_ = arguments[2].ToInt32();
  if (arguments.Has(3)) lockType_ = arguments[3].ToInt32();
  if (arguments.Has(4)) options_ = arguments[4].ToInt32();
  if (cursorType_ < ado::kForwardOnly || cursorType_ > ado::kStatic || lockType_ < -1 || lockType_ > ado::kBatchOptimistic) {
    RaiseAdo(ado::kArgumentError, kSource);
  }
  if (lockType_ < ado::kReadOnly) lockType_ = ado::kReadOnly;
  OpenSource();
}

std::string Recordset::CommandText() const {
  const int kind = options_ < 0 ? 0 : options_ & 0xff;
  if (kind == kCommandTable) return "select * from " + source_;
  if (kind == kCommandStoredProcedure) return "exec " + source_;
  return source_;
}

void Recordset::OpenSource() {
  if (!connection_) RaiseAdo(ado::kInvalidConnection, kSource);
  const std::shared_ptr<Session> session = connection_->OpenSession();
  const bool updatable = lockType_ != ado::kReadOnly;
  RunResult result = connection_->Run(CommandText(), updatable);
  later_ = result.later;
  if (!result.rows) return;  // a statement without rows leaves the recordset closed
  const int location = cursorLocation_ ? cursorLocation_ : connection_->CursorLocation();
  onServer_ = location != ado::kUseClient;
  if (!onServer_) cursorType_ = ado::kStatic;
  auto cursor = std::make_unique<Cursor>(session, std::move(result.rows), cursorType_ != ado::kForwardOnly, maxRecords_);
  // A snapshot is read now; a plain reading cursor meets its first row (and a failing statement its error) now; the others wait.
  if (cursorType_ == ado::kStatic) {
    cursor->ReadAll();
  } else if (cursorType_ == ado::kForwardOnly && !updatable) {
    cursor->Start();
  }
  session_ = session;
  cursor_ = std::move(cursor);
  session_->Attach(this);
}

void Recordset::Close() {
  RequireAlive();
  if (!cursor_) RaiseAdo(ado::kObjectClosed, kSource);
  session_->Detach(this);
  ConnectionClosed();
}

/// Only rows that the server sends without a cursor occupy the connection; a cursor is asked for its rows, and one on the client
/// has them all.
bool Recordset::IsUnread() const {
  return cursor_ && onServer_ && cursorType_ == ado::kForwardOnly && lockType_ == ado::kReadOnly && !cursor_->IsAtEnd();
}

void Recordset::ReadAhead() {
  if (cursor_) cursor_->ReadAhead();
}

void Recordset::TransactionEnded() {
  if (!onServer_ || !cursor_) return;
  edit_ = Edit::None;
  edits_.clear();
  pending_.clear();
  lastSet_ = nullptr;
  writer_.reset();
  cursor_.reset();
  dead_ = true;
}

late::Value Recordset::NextRecordset(late::Arguments& arguments) {
  const std::shared_ptr<LaterResults> later = later_;
  const std::shared_ptr<Session> session = connection_ ? connection_->OpenSession() : nullptr;
  if (cursor_ || dead_) Close();
  later_.reset();
  if (!later || later->results.empty()) {
    if (later && later->error) connection_->Noting([&] { throw ServerError(*later->error); });
    return late::ObjectPtr();
  }
  RunResult result = std::move(later->results.front());
  later->results.pop_front();
  result.later = later;
  if (arguments.Has(0)) arguments.Write(0, result.affected);
  return late::ObjectPtr(OfResult(connection_, session, std::move(result), source_));
}

void Recordset::ConnectionClosed() {
  // Rows that were set but not sent go with the recordset.
  edit_ = Edit::None;
  edits_.clear();
  pending_.clear();
  lastSet_ = nullptr;
  writer_.reset();
  cursor_.reset();
  dead_ = false;
  session_.reset();
}

void Recordset::Requery() {
  Close();
  OpenSource();
}

}  // namespace suite
