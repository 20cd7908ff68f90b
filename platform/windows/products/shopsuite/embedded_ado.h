#pragma once

#include <vector>

#include "platform/windows/windows_gate.h"

namespace windows {

/// While it exists, ADO's Connection and Recordset created by ProgID in this apartment are the embedded engine's: a client of an
/// embedded connection creates its recordsets that way, and ADO's own could not read from it.
class EmbeddedAdo {
 public:
  EmbeddedAdo();
  EmbeddedAdo(const EmbeddedAdo&) = delete;
  EmbeddedAdo& operator=(const EmbeddedAdo&) = delete;
  ~EmbeddedAdo();

 private:
  void Serve(const char* progId);

  std::vector<DWORD> served_;
};

}  // namespace windows
