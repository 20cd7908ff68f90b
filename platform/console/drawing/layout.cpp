#include "platform/console/drawing/layout.h"

#include <algorithm>
#include <cstdlib>

#include "base/controls/menu.h"
#include "base/controls/tab_control.h"
#include "platform/console/drawing/control_pictures.h"

namespace console {
namespace {

constexpr int kSameLineTwips = 120;   ///< middles this near to each other are on one line
constexpr int kFirstLineTwips = 150;  ///< the middle of a tall control's first line, below its top
constexpr int kSlackTwips = 60;       ///< designers let neighbours overlap a little

struct Block {
  Canvas sheet;
  controls::Position place;
  int x = 0, y = 0;
  int band = 0;

  int Width() const { return sheet.Width(); }
  int Middle() const { return place.top + (sheet.Height() > 1 ? kFirstLineTwips : place.height / 2); }
  int Right() const { return place.left + place.width; }
  int Bottom() const { return place.top + place.height; }
  bool SharesColumnsWith(const Block& other) const { return x < other.x + other.Width() && other.x < x + Width(); }
  bool SharesHeightWith(const Block& other) const {
    return place.top + kSlackTwips < other.Bottom() && other.place.top + kSlackTwips < Bottom();
  }
};

Canvas Boxed(const Canvas& inside, int columns, std::string_view title) {
  Canvas sheet;
  const int width = std::max({columns, inside.Width() + 3, Length(title) + 6});
  sheet.Box(0, 0, width, inside.Height() + 2, title);
  sheet.Paste(1, 1, inside);
  return sheet;
}

std::string TabHeadings(const controls::TabControl& tab) {
  std::string headings;
  for (int page = 0; page < tab.Tabs(); ++page) {
    if (!tab.TabVisible(page)) continue;
    const std::string caption = PlainCaption(tab.TabCaption(page));
    if (!headings.empty()) headings += " / ";
    headings += page == tab.Tab() ? "[" + caption + "]" : caption;
  }
  return std::string(tab.HasFocus() ? "» " : "") + headings;
}

Canvas Draw(const controls::Control& control, int columns, int twipsPerColumn) {
  const auto inside = [&] { return DrawChildren(control.Owner(), &control, twipsPerColumn); };
  switch (control.Kind()) {
    case controls::ControlKind::TextBox:
      return DrawTextBox(dynamic_cast<const controls::TextBox&>(control), columns);
    case controls::ControlKind::ComboBox:
      return DrawComboBox(dynamic_cast<const controls::ComboBox&>(control), columns);
    case controls::ControlKind::OptionButton:
      return DrawOption(dynamic_cast<const controls::OptionButton&>(control));
    case controls::ControlKind::CheckBox:
      return DrawCheckBox(dynamic_cast<const controls::CheckBox&>(control));
    case controls::ControlKind::CommandButton:
      return DrawButton(dynamic_cast<const controls::CommandButton&>(control));
    case controls::ControlKind::Label:
      return DrawLabel(dynamic_cast<const controls::Label&>(control), columns);
    case controls::ControlKind::Frame:
      return Boxed(inside(), columns, PlainCaption(control.CaptionText()));
    case controls::ControlKind::PictureBox:
      return inside();
    case controls::ControlKind::ListView:
      return DrawList(dynamic_cast<const controls::ListView&>(control), columns, twipsPerColumn);
    case controls::ControlKind::FlexGrid:
      return DrawGrid(dynamic_cast<const controls::FlexGrid&>(control), columns, twipsPerColumn);
    case controls::ControlKind::TabControl:
      return Boxed(inside(), columns, TabHeadings(dynamic_cast<const controls::TabControl&>(control)));
    case controls::ControlKind::Menu:
      break;
  }
  return {};
}

std::vector<Block> BlocksOf(const controls::Form& form, const controls::Control* container, int twipsPerColumn) {
  std::vector<Block> blocks;
  for (const controls::Control* control : form.Controls()) {
    if (control->Container() != container || control->Kind() == controls::ControlKind::Menu || !control->IsShown()) continue;
    const controls::Position& place = control->Place();
    const int columns = (place.left + place.width) / twipsPerColumn - place.left / twipsPerColumn - 1;
    Block block{Draw(*control, columns, twipsPerColumn), place};
    if (block.sheet.Height() > 0) blocks.push_back(std::move(block));
  }
  return blocks;
}

/// Numbers the lines of the form from top to bottom; blocks end up in their order.
void FindBands(std::vector<Block>& blocks) {
  std::stable_sort(blocks.begin(), blocks.end(), [](const Block& a, const Block& b) { return a.Middle() < b.Middle(); });
  int band = 0;
  int start = 0;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    if (i == 0 || blocks[i].Middle() - start > kSameLineTwips) {
      ++band;
      start = blocks[i].Middle();
    }
    blocks[i].band = band;
  }
}

void PlaceColumns(std::vector<Block>& blocks, int twipsPerColumn) {
  std::vector<Block*> byLeft;
  byLeft.reserve(blocks.size());
  for (Block& block : blocks) byLeft.push_back(&block);
  std::stable_sort(byLeft.begin(), byLeft.end(), [](const Block* a, const Block* b) { return a->place.left < b->place.left; });
  for (std::size_t i = 0; i < byLeft.size(); ++i) {
    Block& block = *byLeft[i];
    block.x = std::max(0, block.place.left / twipsPerColumn);
    for (std::size_t n = 0; n < i; ++n) {
      const Block& before = *byLeft[n];
      const bool beside = before.SharesHeightWith(block) && before.Right() <= block.place.left + kSlackTwips;
      if (before.band == block.band || beside) block.x = std::max(block.x, before.x + before.Width() + 1);
    }
  }
}

void PlaceRows(std::vector<Block>& blocks) {
  int y = 0;
  for (std::size_t start = 0; start < blocks.size();) {
    std::size_t end = start;
    while (end < blocks.size() && blocks[end].band == blocks[start].band) ++end;
    for (std::size_t i = start; i < end; ++i) {
      for (std::size_t n = 0; n < start; ++n) {
        if (blocks[n].SharesColumnsWith(blocks[i])) y = std::max(y, blocks[n].y + blocks[n].sheet.Height());
      }
    }
    for (std::size_t i = start; i < end; ++i) blocks[i].y = y;
    start = end;
  }
}

}  // namespace

Canvas DrawChildren(const controls::Form& form, const controls::Control* container, int twipsPerColumn) {
  std::vector<Block> blocks = BlocksOf(form, container, twipsPerColumn);
  FindBands(blocks);
  PlaceColumns(blocks, twipsPerColumn);
  PlaceRows(blocks);
  Canvas sheet;
  for (const Block& block : blocks) sheet.Paste(block.x, block.y, block.sheet);
  return sheet;
}

}  // namespace console
