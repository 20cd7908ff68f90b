#pragma once

#include <vector>

#include "platform/windows/windows_gate.h"

namespace windows {

/// While it lives, who creates ADO's Connection or Recordset by ProgID in this apartment gets the embedded engine's: whoever
/// works on an embedded connection makes his recordsets so, and ADO's own could not read from it.
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
