#pragma once

#include <deque>

#include "base/controls/alignment.h"
#include "base/controls/control.h"
#include "base/controls/table_text.h"

namespace controls {

struct ColumnHeader {
  std::string text;
  int width = 1440;  ///< twips
  ColumnAlignment alignment = ColumnAlignment::Left;
};

class ListView;

/// One line. Sub-items count from 1 up to the columns less one; further ones are error 380.
class ListItem {
 public:
  explicit ListItem(ListView& list) : list_(&list) {}
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  /// "" while not set.
  const std::string& SubItem(int index) const;
  void SetSubItem(int index, std::string_view text);
  const std::string& SubItemToolTip(int index) const;
  void SetSubItemToolTip(int index, std::string_view text);
  /// Of a cell, columns counting from 0 (the line's own text); kDefaultColor is the list's.
  Color CellForeColor(int column) const;
  void SetCellForeColor(int column, Color color);
  /// Of every cell.
  void SetForeColor(Color color);
  bool IsColored() const { return !colors_.empty(); }
  bool Checked() const { return checked_; }
  /// By code: no event.
  void SetChecked(bool checked);
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  const std::string& Key() const { return key_; }
  void SetKey(std::string key) { key_ = std::move(key); }

 private:
  void CheckIndex(int index) const;

  ListView* list_;
  std::string text_;
  std::vector<std::string> subItems_;
  std::vector<std::string> toolTips_;
  std::vector<Color> colors_;  ///< by column; empty where the line has none of its own
  std::string tag_;
  std::string key_;
  bool checked_ = false;
};

/// Report-style list view. Lines and column headers count from 1; a wrong index is error 35600 "Index out of bounds".
/// The first line added to an empty list becomes the selected one.
class ListView : public Control {
 public:
  static constexpr ControlKind kKind = ControlKind::ListView;
  ListView(Form& form, std::string name) : Control(form, kKind, std::move(name)) {}

  void AddColumn(std::string_view text, int width, ColumnAlignment alignment = ColumnAlignment::Left);
  int ColumnCount() const;
  const ColumnHeader& Column(int index) const;
  void SetColumnWidth(int index, int width);
  void SetColumnAlignment(int index, ColumnAlignment alignment);
  void SetColumnText(int index, std::string_view text);
  bool CheckBoxes() const { return checkBoxes_; }
  void SetCheckBoxes(bool checkBoxes);

  int Count() const;
  ListItem& Item(int index);
  const ListItem& Item(int index) const;
  /// Appends a line. The reference stays good until the line is removed.
  ListItem& Add(std::string_view text);
  /// The same before line `index`; after the last one for Count() + 1.
  ListItem& Insert(int index, std::string_view text);
  void Remove(int index);
  void Clear();

  /// The selected line, 0 for none.
  int SelectedItem() const;
  /// Selects by code; no event. 0 deselects.
  void Select(int index);
  void EnsureVisible(int index);
  /// The first line that EnsureVisible keeps in view, for the desktop.
  int VisibleLine() const { return visibleLine_; }

  // What a person does.
  void ClickItem(int index);                ///< selects, fires ItemClick, then Click
  void CheckItem(int index, bool checked);  ///< checks and fires ItemCheck
  void MoveMouse(int index, int column);    ///< over a cell, columns from 1; fires MouseMove
  void MoveTo(int index);                   ///< selects by keyboard: fires ItemClick unless the line is selected already
  /// The edge of a column pulled to a width in twips. It stays wide enough to be taken hold of; a hidden one (width 0) stays
  /// hidden.
  void PullColumn(int index, int width);
  /// Arrow, page, home and end keys; whether the key was one of them.
  bool NavigationKey(int keyCode);

  /// The tip of a cell, the list's own where the cell has none. Columns count from 1.
  const std::string& ToolTipAt(int index, int column) const;
  /// The tip where the mouse was last.
  const std::string& ToolTipUnderMouse() const;

  /// A line that may outlive its removal, for late-bound holders.
  std::shared_ptr<ListItem> SharedItem(int index) const;
  /// 0 when the line was removed.
  int IndexOf(const ListItem& item) const;

  Event<ListItem&> ItemClick;
  Event<ListItem&> ItemCheck;
  Event<int> ColumnClick;
  Event<const std::string&> Pasted;  ///< a person pastes this text

  /// Ctrl+C copies the selected line, after Ctrl+A all lines, as a table with the headings; hidden columns are left out. Ctrl+V
  /// fires Pasted.
  void OnKey(int keyCode, int shift) override;
  void OnCharacter(int character) override;
  void Accept(ControlVisitor& visitor) override;
  void Reset() override;
  std::string TypeName() const override { return "ListView"; }

 protected:
  const LateMember* FindMember(std::string_view name) const override;

 private:
  friend class ListItem;
  void CheckLine(int index) const;
  void CheckColumn(int index) const;
  void Copy() const;
  void CopyLine(const ListItem& line, TableText& table) const;

  std::vector<ColumnHeader> columns_;
  std::deque<std::shared_ptr<ListItem>> items_;
  bool checkBoxes_ = false;
  int selected_ = 0;
  bool allSelected_ = false;  ///< by Ctrl+A, until a line is selected
  int visibleLine_ = 1;
  int mouseLine_ = 0, mouseColumn_ = 0;
};

}  // namespace controls
