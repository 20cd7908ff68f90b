#include "platform/console/drawing/message_picture.h"

#include <algorithm>

#include "platform/console/drawing/canvas.h"

namespace console {
namespace {

constexpr int kMaxColumns = 90;

}  // namespace

std::vector<std::string> DrawMessage(const controls::Message& message, const std::vector<std::string>& buttons) {
  Canvas inside;
  int row = 0;
  for (const std::string& line : Wrapped(message.text, kMaxColumns)) inside.Put(1, row++, line);
  std::string line;
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    line += static_cast<int>(i) + 1 == message.DefaultButton() ? " »< " : "  < ";
    line += buttons[i] + " >";
  }
  inside.Put(0, row, line);
  Canvas sheet;
  sheet.Box(0, 0, std::max(inside.Width() + 4, Length(message.title) + 6), inside.Height() + 2, message.title);
  sheet.Paste(1, 1, inside);
  return sheet.Lines();
}

}  // namespace console
