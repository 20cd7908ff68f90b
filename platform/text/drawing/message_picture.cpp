#include "platform/text/drawing/message_picture.h"

#include <algorithm>

#include "platform/text/drawing/answers.h"

namespace text {

Canvas DrawMessage(const controls::Message& message, int marked, int columns) {
  if (marked == 0) marked = message.DefaultButton();
  Canvas inside;
  int row = 0;
  for (const std::string& line : Wrapped(message.text, columns)) inside.Put(1, row++, line);
  int x = 0;
  int number = 0;
  for (const controls::Answer answer : ButtonsOf(message)) {
    const bool isMarked = ++number == marked;
    const std::string button = "< " + ButtonCaption(answer) + " >";
    inside.Put(x, row, isMarked ? " »" : "  ");
    inside.Put(x + 2, row, button, isMarked ? kChosen : kPlain);
    inside.Mark({.part = Spot::Part::Answer, .index = number, .x = x + 2, .y = row, .width = Length(button)});
    if (isMarked) inside.SetCaret({x + 1, row});
    x += 2 + Length(button);
  }
  Canvas sheet;
  sheet.Box(0, 0, std::max(inside.Width() + 4, Length(message.title) + 6), inside.Height() + 2, message.title);
  sheet.Paste(1, 1, inside);
  return sheet;
}

}  // namespace text
