// The late-bound face of a list view: its own members, the collections of lines and of column headers.

#include "base/controls/control_members.h"
#include "base/controls/list_view.h"
#include "base/vb/error.h"
#include "base/vb/text.h"

namespace controls {

namespace {

/// A list view together with the form that it lives in.
using ListPtr = std::shared_ptr<ListView>;

ListPtr Shared(ListView& list) {
  return std::static_pointer_cast<ListView>(list.AsObject());
}

class LateLine : public late::TableObject<LateLine> {
 public:
  LateLine(ListPtr list, std::shared_ptr<ListItem> item) : list_(std::move(list)), item_(std::move(item)) {}
  std::string TypeName() const override { return "ListItem"; }
  int Index() const { return list_->IndexOf(*item_); }

  static const late::MemberTable<LateLine>& Members();

 private:
  bool Selected() const { return Index() != 0 && list_->SelectedItem() == Index(); }
  void SetSelected(bool selected) {
    if (const int index = Index(); index != 0 && (selected || list_->SelectedItem() == index))
      list_->Select(selected ? index : 0);
  }

  ListPtr list_;
  std::shared_ptr<ListItem> item_;
};

const late::MemberTable<LateLine>& LateLine::Members() {
  using L = LateLine;
  using late::Arguments;
  static const auto text = [](L& self, Arguments&) { return late::Value(self.item_->Text()); };
  static const auto setText = [](L& self, Arguments& a) { self.item_->SetText(a[0].ToText()); };
  static const late::MemberTable<L> table = {
      {"Text", text, setText},
      {"", text, setText},
      {"SubItems", [](L& self, Arguments& a) { return late::Value(self.item_->SubItem(a[0].ToInt32())); },
       [](L& self, Arguments& a) { self.item_->SetSubItem(a[0].ToInt32(), a[1].ToText()); }, 1, 1},
      {"Checked", [](L& self, Arguments&) { return late::Value(self.item_->Checked()); },
       [](L& self, Arguments& a) { self.item_->SetChecked(a[0].ToBool()); }},
      {"Key", [](L& self, Arguments&) { return late::Value(self.item_->Key()); },
       [](L& self, Arguments& a) { self.item_->SetKey(a[0].ToText()); }},
      {"Tag", [](L& self, Arguments&) { return late::Value(self.item_->Tag()); },
       [](L& self, Arguments& a) { self.item_->SetTag(a[0].ToText()); }},
      {"Selected", [](L& self, Arguments&) { return late::Value(self.Selected()); },
       [](L& self, Arguments& a) { self.SetSelected(a[0].ToBool()); }},
      {"Index", [](L& self, Arguments&) { return members::Out(self.Index()); }, {}},
      {"EnsureVisible",
       [](L& self, Arguments&) {
         self.list_->EnsureVisible(self.Index());
         return late::Value(true);
       },
       {}},
  };
  return table;
}

late::Value LineOf(const ListPtr& list, int index) {
  return std::make_shared<LateLine>(list, list->SharedItem(index));
}

class LateLines : public late::TableObject<LateLines> {
 public:
  explicit LateLines(ListPtr list) : list_(std::move(list)) {}
  std::string TypeName() const override { return "ListItems"; }

  static const late::MemberTable<LateLines>& Members() {
    using L = LateLines;
    using late::Arguments;
    static const auto item = [](L& self, Arguments& a) { return LineOf(self.list_, self.Find(a[0])); };
    static const late::MemberTable<L> table = {
        {"Count", [](L& self, Arguments&) { return members::Out(self.list_->Count()); }, {}},
        {"Item", item, {}, 1, 1},
        {"", item, {}, 1, 1},
        {"Add", [](L& self, Arguments& a) { return self.Add(a); }, {}, 0, 5},
        {"Remove",
         [](L& self, Arguments& a) {
           self.list_->Remove(self.Find(a[0]));
           return late::Value();
         },
         {},
         1,
         1},
        {"Clear",
         [](L& self, Arguments&) {
           self.list_->Clear();
           return late::Value();
         },
         {}},
    };
    return table;
  }

 private:
  /// A line number, or the line of a key.
  int Find(const late::Value& which) const {
    if (!which.IsText()) return which.ToInt32();
    const std::string key = which.ToText();
    for (int index = 1; index <= list_->Count(); ++index) {
      if (vb::EqualNoCase(list_->Item(index).Key(), key)) return index;
    }
    vb::Raise(35601, "Element not found");
  }

  /// Index, key and text may be left out; icons are not shown.
  late::Value Add(late::Arguments& arguments) {
    const int index = arguments.Or(0, std::int32_t{list_->Count() + 1}).ToInt32();
    ListItem& line = list_->Insert(index, arguments.Or(2, "").TextOrEmpty());
    line.SetKey(arguments.Or(1, "").TextOrEmpty());
    return LineOf(list_, index);
  }

  ListPtr list_;
};

class LateHeader : public late::TableObject<LateHeader> {
 public:
  LateHeader(ListPtr list, int index) : list_(std::move(list)), index_(index) { list_->Column(index_); }
  std::string TypeName() const override { return "ColumnHeader"; }

  static const late::MemberTable<LateHeader>& Members() {
    using H = LateHeader;
    using late::Arguments;
    static const auto text = [](H& self, Arguments&) { return late::Value(self.list_->Column(self.index_).text); };
    static const auto setText = [](H& self, Arguments& a) { self.list_->SetColumnText(self.index_, a[0].ToText()); };
    static const late::MemberTable<H> table = {
        {"Text", text, setText},
        {"", text, setText},
        {"Width", [](H& self, Arguments&) { return members::Out(self.list_->Column(self.index_).width); },
         [](H& self, Arguments& a) { self.list_->SetColumnWidth(self.index_, vb::CLng(a[0].ToDouble())); }},
        {"Alignment", [](H& self, Arguments&) { return members::Out(self.list_->Column(self.index_).alignment); },
         [](H& self, Arguments& a) {
           self.list_->SetColumnAlignment(self.index_, static_cast<ColumnAlignment>(a[0].ToInt32()));
         }},
        {"Index", [](H& self, Arguments&) { return members::Out(self.index_); }, {}},
    };
    return table;
  }

 private:
  ListPtr list_;
  int index_;
};

class LateHeaders : public late::TableObject<LateHeaders> {
 public:
  explicit LateHeaders(ListPtr list) : list_(std::move(list)) {}
  std::string TypeName() const override { return "ColumnHeaders"; }

  static const late::MemberTable<LateHeaders>& Members() {
    using H = LateHeaders;
    using late::Arguments;
    static const auto item = [](H& self, Arguments& a) -> late::Value {
      return std::make_shared<LateHeader>(self.list_, a[0].ToInt32());
    };
    static const late::MemberTable<H> table = {
        {"Count", [](H& self, Arguments&) { return members::Out(self.list_->ColumnCount()); }, {}},
        {"Item", item, {}, 1, 1},
        {"", item, {}, 1, 1},
        // Index and key are taken and not kept: columns are added after the last one.
        {"Add",
         [](H& self, Arguments& a) -> late::Value {
           self.list_->AddColumn(a.Or(2, "").TextOrEmpty(), vb::CLng(a.Or(3, 1440.0).ToDouble()),
                                 static_cast<ColumnAlignment>(a.Or(4, std::int32_t{0}).ToInt32()));
           return std::make_shared<LateHeader>(self.list_, self.list_->ColumnCount());
         },
         {},
         0,
         6},
    };
    return table;
  }

 private:
  ListPtr list_;
};

late::Value CellOf(ListView& self, late::Arguments& arguments) {
  const ListItem& line = self.Item(arguments[0].ToInt32());
  const int column = arguments[1].ToInt32();
  return column == 0 ? line.Text() : line.SubItem(column);
}

void SetCellOf(ListView& self, late::Arguments& arguments) {
  ListItem& line = self.Item(arguments[0].ToInt32());
  const int column = arguments[1].ToInt32();
  if (column == 0) return line.SetText(arguments[2].ToText());
  line.SetSubItem(column, arguments[2].ToText());
}

/// The selected line of ListItems, Nothing where there is none.
late::Value SelectedLine(ListView& self, late::Arguments&) {
  const int selected = self.SelectedItem();
  return selected == 0 ? late::Value(late::ObjectPtr()) : LineOf(Shared(self), selected);
}

/// A line of ListItems, Nothing for none; the number of a line is taken as well.
void SelectByName(ListView& self, late::Arguments& arguments) {
  if (!arguments[0].IsObject()) return self.Select(arguments[0].ToInt32());
  const late::ObjectPtr* line = arguments[0].If<late::ObjectPtr>();
  self.Select(*line ? (*line)->Get("Index").ToInt32() : 0);
}

}  // namespace

const Control::LateMember* ListView::FindMember(std::string_view name) const {
  using late::Arguments;
  using V = ListView;
  static const members::MemberList<V, LateMember> list = {
      members::ReadOnly<V>("Count", &V::Count),
      {"SelectedItem", SelectedLine, SelectByName},
      {"Checked", [](V& self, Arguments& a) { return late::Value(self.Item(a[0].ToInt32()).Checked()); },
       [](V& self, Arguments& a) { self.Item(a[0].ToInt32()).SetChecked(a[1].ToBool()); }, 1, 1},
      {"SubItem", CellOf, SetCellOf, 2, 2},
      {"CellForeColor",
       [](V& self, Arguments& a) { return members::Out(self.Item(a[0].ToInt32()).CellForeColor(a[1].ToInt32())); },
       [](V& self, Arguments& a) {
         self.Item(a[0].ToInt32()).SetCellForeColor(a[1].ToInt32(), static_cast<Color>(a[2].ToInt32()));
       },
       2, 2},
      {"ColumnHeader", [](V& self, Arguments& a) { return late::Value(self.Column(a[0].ToInt32()).text); },
       [](V& self, Arguments& a) { self.SetColumnText(a[0].ToInt32(), a[1].ToText()); }, 1, 1},
      {"ColumnWidth", [](V& self, Arguments& a) { return members::Out(self.Column(a[0].ToInt32()).width); },
       [](V& self, Arguments& a) { self.SetColumnWidth(a[0].ToInt32(), vb::CLng(a[1].ToDouble())); }, 1, 1},
      {"Alignment", [](V& self, Arguments& a) { return members::Out(self.Column(a[0].ToInt32()).alignment); },
       [](V& self, Arguments& a) { self.SetColumnAlignment(a[0].ToInt32(), static_cast<ColumnAlignment>(a[1].ToInt32())); }, 1,
       1},
      late::Collection<V>("ListItems", [](V& self) { return std::make_shared<LateLines>(Shared(self)); }),
      late::Collection<V>("ColumnHeaders", [](V& self) { return std::make_shared<LateHeaders>(Shared(self)); }),
      {"ColumnCount", [](V& self, Arguments&) { return members::Out(self.ColumnCount()); }, {}},
      members::Property<V>("CheckBoxes", &V::CheckBoxes, &V::SetCheckBoxes),
      members::Method<V>("Clear", &V::Clear),
  };
  if (const LateMember* member = list.Find(name)) return member;
  return Control::FindMember(name);
}

}  // namespace controls
