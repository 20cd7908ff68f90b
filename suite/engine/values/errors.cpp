#include "suite/engine/values/errors.h"

#include <sqlite3.h>

#include "base/ado/constants.h"

namespace suite {
namespace {

long HResult(unsigned code) {
  return static_cast<long>(static_cast<int>(code));
}

/// The HRESULT under which the classic provider reports a native error.
long NumberOf(int native) {
  switch (native) {
    case kInvalidObject:
    case kUnknownProcedure:
      return HResult(0x80040E37);
    case kInvalidDate:
    case kDateOutOfRange:
    case kInvalidConversion:
    case kInvalidNumberConversion:
      return HResult(0x80040E07);
    case kTextOverflowsInt:
    case kOverflow:
    case kTruncation:
      return HResult(0x80040E57);
    case kNullNotAllowed:
    case kDuplicateIndexKey:
    case kDuplicateKey:
      return HResult(0x80040E2F);
    case kLockTimeout:
      return HResult(0x80040E31);
    case kNothingToCommit:
    case kNothingToRollBack:
      return HResult(0x8004D00E);
    case kTransactionOpen:
      return HResult(0x8004D013);
    case kPermissionDenied:
    case kMayNotCreate:
      return HResult(0x80040E09);
    case kRowNotFound:
      return HResult(0x80040E38);
    case kStoreFailure:
    case kDeadlockVictim:
    case kConnectionReset:
      return HResult(kUnspecified);
    default:
      return HResult(0x80040E14);
  }
}

std::string AdoText(long number) {
  switch (number) {
    case ado::kArgumentError:
      return "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another.";
    case ado::kNoCurrentRecord:
      return "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record.";
    case ado::kIllegalOperation:
      return "Operation is not allowed in this context.";
    case ado::kInTransaction:
      return "Connection object cannot be explicitly closed while in a transaction.";
    case ado::kFeatureNotAvailable:
      return "Current Recordset does not support updating. This may be a limitation of the provider, or of the selected "
             "locktype.";
    case ado::kItemNotFound:
      return "Item cannot be found in the collection corresponding to the requested name or ordinal.";
    case ado::kDataConversion:
      return "Application uses a value of the wrong type for the current operation.";
    case ado::kObjectClosed:
      return "Operation is not allowed when the object is closed.";
    case ado::kObjectOpen:
      return "Operation is not allowed when the object is open.";
    case ado::kInvalidConnection:
      return "The connection cannot be used to perform this operation. It is either closed or invalid in this context.";
    default:
      return std::string(vb::ErrorText(number));
  }
}

/// The part of the store's message after ": ", which names the columns of the constraint ("table.column, table.column").
std::string Subject(std::string_view message) {
  const std::size_t colon = message.rfind(": ");
  return std::string(colon == std::string_view::npos ? message : message.substr(colon + 2));
}

[[noreturn]] void RaiseConstraint(int code, const std::string& message) {
  const std::string subject = Subject(message);
  const std::size_t dot = subject.find('.');
  const std::string table = subject.substr(0, dot);
  const std::string column = dot == std::string::npos ? std::string() : subject.substr(dot + 1);
  switch (code) {
    case SQLITE_CONSTRAINT_NOTNULL:
      RaiseServer(kNullNotAllowed, "Cannot insert the value NULL into column '" + column + "', table '" + table +
                                       "'; column does not allow nulls. The statement fails.");
    case SQLITE_CONSTRAINT_PRIMARYKEY:
      RaiseServer(kDuplicateKey, "Violation of PRIMARY KEY constraint 'PK_" + table +
                                     "'. Cannot insert duplicate key in object '" + table + "' (" + subject + ").");
    case SQLITE_CONSTRAINT_UNIQUE:
      RaiseServer(kDuplicateIndexKey,
                  "Cannot insert duplicate key row in object '" + table + "' with a unique index (" + subject + ").");
    default:
      RaiseServer(kConstraintConflict, "The statement conflicted with a constraint: " + message);
  }
}

}  // namespace

ServerError::ServerError(int native, std::string text)
    : RunTimeError(NumberOf(native), std::move(text), std::string(kProviderName)), native_(native) {}

ServerError::ServerError(unsigned hresult, std::string_view text)
    : RunTimeError(HResult(hresult), std::string(text), std::string(kProviderName)), native_(0) {}

std::string ServerError::SqlState() const {
  switch (native_) {
    case 0:
      return {};
    case kInvalidColumn:
      return "42S22";
    case kInvalidObject:
      return "42S02";
    case kNullNotAllowed:
    case kConstraintConflict:
    case kDuplicateIndexKey:
    case kDuplicateKey:
      return "23000";
    case kDeadlockVictim:
      return "40001";
    case kLockTimeout:
      return "HYT00";
    case kTruncation:
      return "22001";
    case kConnectionReset:
      return "08S01";
    default:
      return "42000";
  }
}

bool ServerError::EndsTransaction() const {
  return native_ == kDeadlockVictim || native_ == kEndedInTrigger;
}

void RaiseServer(int native, std::string text) {
  throw ServerError(native, std::move(text));
}

void RaiseProvider(unsigned hresult, std::string_view text) {
  throw ServerError(hresult, text);
}

void RaiseAdo(long number, std::string_view source) {
  vb::Raise(number, AdoText(number), std::string(source));
}

void RaiseFromStore(sqlite3* store, int code) {
  const int extended = store ? sqlite3_extended_errcode(store) : code;
  const std::string message = store ? sqlite3_errmsg(store) : sqlite3_errstr(code);
  switch (extended & 0xff) {
    case SQLITE_CONSTRAINT:
      RaiseConstraint(extended, message);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      RaiseServer(kLockTimeout,
                  "Lock request time out period exceeded: another program is writing to the database. Try again in a "
                  "moment. (" +
                      message + ")");
    case SQLITE_INTERRUPT:
      RaiseServer(kLockTimeout, "Timeout expired");
    case SQLITE_ERROR:
      if (message == "integer overflow") RaiseOverflow("numeric");
      RaiseServer(kNotPrepared, "The statement could not be prepared: " + message);
    case SQLITE_FULL:
      RaiseServer(kStoreFailure,
                  "The disk of the database file is full, and this step was not stored. Free some space on it, then "
                  "try again. (" +
                      message + ")");
    case SQLITE_READONLY:
      RaiseServer(kStoreFailure,
                  "The database file may only be read here, and this step was not stored. Ask for the right to "
                  "write to the file and its folder, then try again. (" +
                      message + ")");
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      RaiseServer(kStoreFailure,
                  "The database file is damaged, or no database. Stop working with it and have its last backup "
                  "restored. (" +
                      message + ")");
    case SQLITE_CANTOPEN:
      RaiseServer(kStoreFailure,
                  "The database file cannot be opened. See that its folder is there and may be written, then try "
                  "again. (" +
                      message + ")");
    default:
      RaiseServer(kStoreFailure, "The database file cannot be read or written: " + message);
  }
}

void RaiseConversion(std::string_view value, std::string_view type) {
  RaiseServer(kInvalidConversion, "Syntax error converting the varchar value '" + std::string(value) +
                                      "' to a column of data type " + std::string(type) + ".");
}

void RaiseDateConversion() {
  RaiseServer(kInvalidDate, "Syntax error converting datetime from character string.");
}

void RaiseOverflow(std::string_view type) {
  RaiseServer(kOverflow, "Arithmetic overflow error converting expression to data type " + std::string(type) + ".");
}

void RaiseTruncation() {
  RaiseServer(kTruncation, "String or binary data would be truncated.");
}

}  // namespace suite
