#include "src/lists/cell_text.h"

#include <utility>

#include "base/vb/text.h"

namespace goods {

std::string CellText(late::Value&& value) {
  auto* text = std::get_if<std::string>(&value.Alternatives());
  if (!text) return value.TextOrEmpty();  // neither numbers nor dates have blanks around them
  const std::string_view trimmed = vb::Trim(*text);
  if (trimmed.size() == text->size()) return std::move(*text);
  return std::string(trimmed);
}

}  // namespace goods
