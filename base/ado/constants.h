#pragma once

namespace ado {

enum CursorType { kForwardOnly = 0, kKeyset = 1, kDynamic = 2, kStatic = 3 };
enum LockType { kReadOnly = 1, kPessimistic = 2, kOptimistic = 3, kBatchOptimistic = 4 };
enum CursorLocation { kUseServer = 2, kUseClient = 3 };
enum ObjectState { kClosed = 0, kOpen = 1 };
enum CommandOption { kCommandText = 1, kExecuteNoRecords = 128 };

/// ADO's own error numbers, as they arrive in Err.Number (0x800A0000 + number as HRESULT).
enum ErrorNumber : long {
  kArgumentError = 3001,
  kNoCurrentRecord = 3021,
  kIllegalOperation = 3219,
  kInTransaction = 3246,
  kFeatureNotAvailable = 3251,
  kItemNotFound = 3265,
  kDataConversion = 3421,
  kObjectClosed = 3704,
  kObjectOpen = 3705,
  kInvalidConnection = 3709,
};

}  // namespace ado
