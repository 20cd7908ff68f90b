#include "platform/text/drawing/layout.h"

#include <algorithm>
#include <utility>

#include "base/controls/control_visitor.h"
#include "base/controls/tab_control.h"
#include "platform/text/drawing/control_pictures.h"

namespace text {
namespace {

constexpr int kSameLineTwips = 120;   ///< middles this near to each other are on one line
constexpr int kFirstLineTwips = 150;  ///< the middle of a tall control's first line, below its top
constexpr int kHolderColumns = 4;     ///< the frame of a holder, about
constexpr int kSlackTwips = 60;       ///< designers let neighbours overlap a little

struct Block {
  Canvas sheet;
  controls::Control* control = nullptr;
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

Canvas DrawFrame(const controls::Frame& frame, const Canvas& inside, int columns) {
  constexpr int kTitleColumn = 3;
  Canvas sheet = Boxed(inside, columns, PlainCaption(frame.Caption()));
  if (!frame.Caption().empty()) sheet.PutCaption(kTitleColumn, 0, frame.Caption(), frame.AcceptsInput() ? kPlain : kDim);
  return sheet;
}

/// A frame with the headings of its pages in the upper edge.
Canvas DrawTabs(controls::TabControl& tab, const Canvas& inside, int columns) {
  constexpr std::string_view kBetween = " / ";
  int x = 3;
  std::string headings = tab.HasFocus() ? "» " : "";
  std::vector<Spot> pages;
  std::string_view between;
  for (int page = 0; page < tab.Tabs(); ++page) {
    if (!tab.TabVisible(page)) continue;
    const std::string caption = PlainCaption(tab.TabCaption(page));
    headings += between;
    pages.push_back({.control = &tab, .part = Spot::Part::Page, .index = page, .x = x + Length(headings)});
    headings += page == tab.Tab() ? "[" + caption + "]" : caption;
    pages.back().width = x + Length(headings) - pages.back().x;
    between = kBetween;
  }
  Canvas sheet = Boxed(inside, columns, headings);
  for (const Spot& page : pages) {
    const int bracket = page.index == tab.Tab() ? 1 : 0;
    sheet.PutCaption(page.x + bracket, 0, tab.TabCaption(static_cast<int>(page.index)));
    sheet.Mark(page);
  }
  if (tab.HasFocus()) sheet.SetCaret({x, 0});
  return sheet;
}

/// Draws one control with what it holds.
class Drawing : private controls::ControlVisitor {
 public:
  Drawing(int columns, const Surface& surface) : columns_(columns), surface_(surface) {}
  Canvas Of(controls::Control& control) {
    control.Accept(*this);
    Canvas whole;
    whole.Mark({.control = &control, .width = sheet_.Width(), .height = sheet_.Height()});
    whole.Paste(0, 0, sheet_);
    return whole;
  }

 private:
  void Visit(controls::CheckBox& box) override { sheet_ = DrawCheckBox(box); }
  void Visit(controls::ComboBox& combo) override { sheet_ = DrawComboBox(combo, columns_, surface_); }
  void Visit(controls::CommandButton& button) override { sheet_ = DrawButton(button); }
  void Visit(controls::FlexGrid& grid) override { sheet_ = DrawGrid(grid, columns_, surface_); }
  void Visit(controls::Frame& frame) override { sheet_ = DrawFrame(frame, Inside(frame), columns_); }
  void Visit(controls::Label& label) override { sheet_ = DrawLabel(label, columns_); }
  void Visit(controls::ListView& list) override { sheet_ = DrawList(list, columns_, surface_); }
  void Visit(controls::Menu&) override {}
  void Visit(controls::OptionButton& option) override { sheet_ = DrawOption(option); }
  void Visit(controls::PictureBox& box) override { sheet_ = Inside(box); }
  void Visit(controls::TabControl& tab) override { sheet_ = DrawTabs(tab, Inside(tab), columns_); }
  void Visit(controls::TextBox& box) override { sheet_ = DrawTextBox(box, columns_, surface_); }

  Canvas Inside(const controls::Control& holder) const {
    constexpr int kFrame = 3;
    return DrawChildren(holder.Owner(), &holder, surface_, surface_.columns > 0 ? columns_ - kFrame : 0);
  }

  int columns_;
  const Surface& surface_;
  Canvas sheet_;
};

std::vector<Block> BlocksOf(const controls::Form& form, const controls::Control* container, const Surface& surface) {
  std::vector<Block> blocks;
  for (controls::Control* control : form.Controls()) {
    if (control->Container() != container || control->Kind() == controls::ControlKind::Menu || !control->IsShown()) continue;
    const controls::Position& place = control->Place();
    const int twipsPerColumn = surface.twipsPerColumn;
    const int columns = (place.left + place.width) / twipsPerColumn - place.left / twipsPerColumn - 1;
    Block block{Drawing(columns, surface).Of(*control), control, place};
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

void PlaceColumns(std::vector<Block>& blocks, const Surface& surface) {
  std::vector<Block*> byLeft;
  byLeft.reserve(blocks.size());
  for (Block& block : blocks) byLeft.push_back(&block);
  std::stable_sort(byLeft.begin(), byLeft.end(), [](const Block* a, const Block* b) { return a->place.left < b->place.left; });
  for (std::size_t i = 0; i < byLeft.size(); ++i) {
    Block& block = *byLeft[i];
    block.x = std::max(0, block.place.left / surface.twipsPerColumn);
    for (std::size_t n = 0; n < i; ++n) {
      const Block& before = *byLeft[n];
      const bool beside = before.SharesHeightWith(block) && before.Right() <= block.place.left + kSlackTwips;
      // On a screen, which may be narrow, the mark of a box is gap enough after its label.
      const int gap = surface.isScreen && before.control->Kind() == controls::ControlKind::Label ? 0 : 1;
      if (before.band == block.band || beside) block.x = std::max(block.x, before.x + before.Width() + gap);
    }
  }
}

/// Moves one-line blocks that reach beyond the width to a line of their own below the others'; whether there was one.
bool WrapLines(std::vector<Block>& blocks, int width) {
  bool wrapped = false;
  for (Block& block : blocks) {
    if (block.sheet.Height() != 1 || block.x + block.Width() <= width) continue;
    int left = block.place.left;
    for (const Block& other : blocks) {
      if (other.band == block.band) left = std::min(left, other.place.left);
    }
    if (left == block.place.left) continue;
    block.place.left = left;
    block.place.top += std::max(block.place.height, kSameLineTwips + 1);
    wrapped = true;
  }
  return wrapped;
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

/// The columns up to the next block on the right, or to the edge.
int RoomOf(const Block& block, const std::vector<Block>& blocks, int width) {
  int end = width;
  for (const Block& other : blocks) {
    const bool sharesRows = other.y < block.y + block.sheet.Height() && block.y < other.y + other.sheet.Height();
    if (other.x > block.x && sharesRows) end = std::min(end, other.x - 1);
  }
  return end - block.x;
}

/// What sticks to both edges takes the room that is left.
void Stretch(std::vector<Block>& blocks, const Surface& surface, int width) {
  constexpr int kBothEdges = controls::kAnchorLeft | controls::kAnchorRight;
  for (Block& block : blocks) {
    if ((block.control->Anchors() & kBothEdges) != kBothEdges || block.control->Kind() == controls::ControlKind::Label) continue;
    const int room = RoomOf(block, blocks, width);
    if (room <= block.Width()) continue;
    block.sheet = Drawing(room, surface).Of(*block.control);
  }
}

}  // namespace

Canvas DrawChildren(const controls::Form& form, const controls::Control* container, const Surface& surface, int width) {
  std::vector<Block> blocks = BlocksOf(form, container, surface);
  FindBands(blocks);
  PlaceColumns(blocks, surface);
  if (surface.wrapAt > 0 && WrapLines(blocks, container ? surface.wrapAt - kHolderColumns : surface.wrapAt)) {
    FindBands(blocks);
    PlaceColumns(blocks, surface);
  }
  PlaceRows(blocks);
  if (width > 0) Stretch(blocks, surface, width);
  Canvas sheet;
  for (const Block& block : blocks) sheet.Paste(block.x, block.y, block.sheet);
  return sheet;
}

}  // namespace text
