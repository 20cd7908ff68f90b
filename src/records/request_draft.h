#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/vb/date.h"
#include "src/records/request.h"

namespace goods {

/// A request that is being edited and not saved, as it is kept outside the database.
struct RequestDraft {
  Request request;
  bool isNew = true;    ///< else a draft of the stored request with request.id
  std::string basedOn;  ///< UpdateTimeText of the stored request when it was opened; empty for none
  vb::Date savedAt;
  /// Id and number under which a new request was about to be committed; 0 and empty before its first OK.
  std::int32_t savingId = 0;
  std::string savingNumber{};
};

/// The draft as text that support staff can read: the format's name and version in the first line, then a "key: value" a line.
/// Backslash, tabulator and line ends within a value are written \\, \t, \r and \n.
std::string DraftText(const RequestDraft& draft);

/// What DraftText wrote. Nothing when the text is of another version, is damaged or ends early.
std::optional<RequestDraft> ParseDraft(std::string_view text);

}  // namespace goods
