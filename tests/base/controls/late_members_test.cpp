// Forms and controls as helper components see them: by name only.

#include <gtest/gtest.h>

#include "tests/base/controls/counter_form.h"
#include "tests/base/controls/model_driver.h"

namespace counter {
namespace {

using late::Value;

class LateMembers : public testing::Test {
 protected:
  ModelDriver driver;
  std::shared_ptr<frmCounter> form = std::make_shared<frmCounter>(driver.Desktop());
  late::ObjectPtr late = form;

  late::ObjectPtr Named(std::string_view name) { return late->Get(name).ToObject(); }
  static long ErrorOf(const std::function<void()>& work) {
    try {
      work();
    } catch (const vb::RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }
};

TEST_F(LateMembers, AHelperWalksAFormWithoutKnowingIt) {
  const late::ObjectPtr all = late->Get("controls").ToObject();
  const int count = all->Get("COUNT").ToInt32();
  EXPECT_EQ(count, 16);
  int painted = 0;
  for (int index = 0; index < count; ++index) {
    const late::ObjectPtr control = all->Get("", {Value(index)}).ToObject();
    if (control->TypeName() != "TextBox") continue;
    control->Put("backcolor", Value(65535));
    ++painted;
  }
  EXPECT_EQ(painted, 2);
  EXPECT_EQ(form->txtQuantity.BackColor(), 65535u);
  EXPECT_EQ(all->Get("Item", {Value("TXTITEM")}).ToObject()->Get("name").ToText(), "txtItem");
  EXPECT_EQ(ErrorOf([&] { all->Get("Item", {Value("txtNone")}); }), 730);
  late->Put("BACKCOLOR", Value(-2147483633));
  EXPECT_EQ(form->BackColor(), controls::kButtonFace) << "signed colours of late-bound callers keep their bits";
  EXPECT_EQ(late->Get("BackColor").ToDouble(), 2147483663.0) << "read unsigned";
}

TEST_F(LateMembers, FormsAnswerTheirOwnMembersControlsAndFields) {
  form->visits = 5;
  EXPECT_EQ(late->Get("LNGVISITS").ToInt32(), 5);
  EXPECT_FALSE(form->IsLoaded()) << "a field is no control";
  EXPECT_EQ(late->Get("caption").ToText(), "Counter");
  EXPECT_EQ(late->Get("Width").ToInt32(), 9000);
  EXPECT_FALSE(late->Get("Visible").ToBool());
  EXPECT_EQ(late->TypeName(), "frmCounter");
  late->Put("txtitem", Value("by default property"));
  EXPECT_EQ(form->txtItem.Text(), "by default property");
  EXPECT_TRUE(late->Has("CMDOK"));
  EXPECT_FALSE(late->Has("cmdNone"));
  EXPECT_EQ(ErrorOf([&] { late->Get("cmdNone"); }), vb::kMemberNotFound);
  EXPECT_EQ(ErrorOf([&] { late->Put("lngVisits", Value(1)); }), vb::kMemberNotFound);
  driver.Work(*form, [&] { EXPECT_EQ(late->Get("ActiveControl").ToObject()->Get("Name").ToText(), "txtItem"); });
}

TEST_F(LateMembers, WhatEveryControlAnswers) {
  const late::ObjectPtr box = Named("TxtItem");
  box->Call("move", {Value(120), Value(240), Value(3000)});
  EXPECT_EQ(box->Get("Left").ToInt32() + box->Get("WIDTH").ToInt32(), 3120);
  box->Put("Tag", Value("first"));
  box->Put("ToolTipText", Value("Code or barcode"));
  box->Put("Enabled", Value(false));
  EXPECT_EQ(form->txtItem.Tag() + "/" + form->txtItem.ToolTipText(), "first/Code or barcode");
  EXPECT_FALSE(form->txtItem.Enabled());
  EXPECT_EQ(ErrorOf([&] { box->Call("SetFocus"); }), vb::kInvalidCall);
  EXPECT_EQ(box->Get("Parent").ToObject(), late);
  EXPECT_EQ(Named("optUp")->Get("Container").ToObject()->Get("Caption").ToText(), "Sort");
  EXPECT_EQ(box->Get("Container").ToObject(), late) << "the form itself";
  EXPECT_FALSE(box->Has("Index")) << "no control arrays";
  EXPECT_EQ(ErrorOf([&] { box->Put("Name", Value("txtOther")); }), vb::kMemberNotFound);
  EXPECT_EQ(ErrorOf([&] { box->Get("Text", {Value(1)}); }), vb::kWrongArgumentCount);
  EXPECT_EQ(ErrorOf([&] { box->Put("Text", Value(late::Null{})); }), vb::kInvalidUseOfNull);
  // The object keeps its form alive.
  const std::weak_ptr<late::Object> watched = late;
  form.reset();
  late.reset();
  EXPECT_FALSE(watched.expired());
  EXPECT_EQ(box->Get("tag").ToText(), "first");
}

TEST_F(LateMembers, TextBoxesComboBoxesAndButtons) {
  Named("txtItem")->Put("text", Value("abcdef"));
  Named("txtItem")->Put("SelStart", Value(2));
  Named("txtItem")->Put("SelLength", Value(2));
  EXPECT_EQ(Named("txtItem")->Get("SelText").ToText(), "cd");
  Named("txtItem")->Put("MaxLength", Value(6));
  EXPECT_EQ(Named("txtItem")->Get("").ToText(), "abcdef");

  const late::ObjectPtr combo = Named("cboUnit");
  combo->Call("AddItem", {Value("Box")});
  combo->Call("additem", {Value("Bag")});
  combo->Put("ItemData", {combo->Get("NewIndex")}, Value(77));
  combo->Put("ListIndex", Value(1));
  EXPECT_EQ(combo->Get("List", {Value(1)}).ToText() + combo->Get("Text").ToText(), "BagBag");
  EXPECT_EQ(form->cboUnit.ItemData(1), 77);
  combo->Call("RemoveItem", {Value(0)});
  EXPECT_EQ(combo->Get("ListCount").ToInt32(), 1);
  EXPECT_EQ(combo->Get("style").ToInt32(), 2);
  combo->Call("Clear");
  EXPECT_EQ(form->cboUnit.ListCount(), 0);

  Named("chkDone")->Put("Value", Value(1));
  Named("optUp")->Put("Value", Value(true));
  EXPECT_TRUE(form->chkDone.IsChecked() && form->optUp.Value());
  form->Tell(form->cmdOk.Click, "ok");
  Named("cmdOk")->Put("Default", Value(true));
  Named("cmdOk")->Put("Value", Value(true));
  EXPECT_EQ(form->Told(), "ok");
  EXPECT_EQ(form->DefaultButton(), &form->cmdOk);
}

TEST_F(LateMembers, AListIsFilledAndReadThroughItsCollections) {
  const late::ObjectPtr list = Named("lvwLines");
  const late::ObjectPtr lines = list->Get("ListItems").ToObject();
  const late::ObjectPtr second = lines->Call("Add", {Value(late::Missing{}), Value("k2"), Value("B7")}).ToObject();
  second->Put("SubItems", {Value(1)}, Value("Soap"));
  lines->Call("Add", {Value(1), Value(late::Missing{}), Value("A1")});
  EXPECT_EQ(list->Get("SubItem", {Value(2), Value(1)}).ToText(), "Soap");
  EXPECT_EQ(list->Get("SubItem", {Value(1), Value(0)}).ToText(), "A1");
  EXPECT_EQ(second->Get("Index").ToInt32(), 2);
  EXPECT_EQ(lines->Get("Item", {Value("K2")}).ToObject()->Get("Text").ToText(), "B7");
  lines->Get("", {Value(1)}).ToObject()->Put("Checked", Value(true));
  EXPECT_TRUE(list->Get("checked", {Value(1)}).ToBool());
  lines->Get("Item", {Value(1)}).ToObject()->Put("Selected", Value(true));
  EXPECT_EQ(list->Get("SelectedItem").ToObject()->Get("Index").ToInt32(), 1);
  list->PutRef("SelectedItem", second);
  EXPECT_TRUE(second->Get("Selected").ToBool());
  // The short forms: the index goes to the collection, a value to its item.
  EXPECT_EQ(list->Get("ListItems", {Value("k2")}).ToObject()->Get("SubItems", {Value(1)}).ToText(), "Soap");
  list->Put("ListItems", {Value(1)}, Value("A2"));
  EXPECT_EQ(list->Get("SubItem", {Value(1), Value(0)}).ToText(), "A2");
  EXPECT_EQ(list->Get("ColumnHeaders", {Value(2)}).ToObject()->Get("Index").ToInt32(), 2);
  EXPECT_EQ(late->Get("Controls", {Value("lvwLines")}).ToObject(), list);
  EXPECT_EQ(ErrorOf([&] { list->Get("ListItems", {Value(3)}); }), 35600);
  EXPECT_EQ(ErrorOf([&] { list->Put("ListItems", Value("all of them")); }), vb::kMemberNotFound);

  const late::ObjectPtr headers = list->Get("ColumnHeaders").ToObject();
  headers->Get("Item", {Value(2)}).ToObject()->Put("Width", Value(2500.4));
  headers->Get("Item", {Value(2)}).ToObject()->Put("Alignment", Value(1));
  headers->Call("Add", {Value(late::Missing{}), Value(late::Missing{}), Value("Qty"), Value(700)});
  EXPECT_EQ(list->Get("ColumnWidth", {Value(2)}).ToInt32(), 2500);
  EXPECT_EQ(list->Get("Alignment", {Value(2)}).ToInt32(), 1);
  EXPECT_EQ(list->Get("ColumnHeader", {Value(3)}).ToText(), "Qty");
  EXPECT_EQ(ErrorOf([&] { headers->Get("Item", {Value(4)}); }), 35600);

  lines->Call("Remove", {Value("k2")});
  EXPECT_EQ(second->Get("Text").ToText(), "B7") << "a held line outlives its removal";
  EXPECT_EQ(second->Get("Index").ToInt32(), 0);
  EXPECT_EQ(lines->Get("Count").ToInt32(), 1);
  lines->Call("Clear");
  EXPECT_EQ(list->Get("Count").ToInt32(), 0);
  EXPECT_EQ(ErrorOf([&] { list->Get("SelectedItem").ToObject(); }), vb::kObjectNotSet);
}

TEST_F(LateMembers, AGridIsSetUpSortedAndColouredByName) {
  const late::ObjectPtr grid = Named("flexStock");
  grid->Put("FormatString", Value("<Code|>Qty"));
  grid->Put("Rows", Value(1));
  grid->Call("AddItem", {Value("B\t2")});
  grid->Call("AddItem", {Value("A\t10")});
  grid->Put("TextMatrix", {Value(1), Value(1)}, Value("3"));
  grid->Put("Col", Value(0));
  grid->Put("Sort", Value(std::int16_t{1}));
  EXPECT_EQ(form->flexStock.TextMatrix(1, 0), "A");
  grid->Put("row", Value(2));
  grid->Put("CellForeColor", Value(255));
  grid->Put("CellForeColor", {Value(1), Value(1)}, Value(16776960));
  EXPECT_EQ(grid->Get("CellForeColor").ToInt32(), 255);
  EXPECT_EQ(form->flexStock.CellForeColor(2, 0), controls::kRed);
  EXPECT_EQ(form->flexStock.CellForeColor(1, 1), controls::kCyan);
  grid->Put("BackColorSel", Value(2147483662.0));
  EXPECT_EQ(form->flexStock.BackColorSel(), controls::kHighlightText);
  grid->Put("ColWidth", {Value(1)}, Value(1500));
  EXPECT_EQ(form->flexStock.ColWidth(1), 1500);
  grid->Put("ColSel", Value(1));
  EXPECT_EQ(grid->Get("Clip").ToText(), "B\t3");
  grid->Put("Clip", Value("C\t4"));
  EXPECT_EQ(grid->Get("Text").ToText(), "C");
  grid->Call("RemoveItem", {Value(2)});
  EXPECT_EQ(grid->Get("rows").ToInt32(), 2);

  const late::ObjectPtr tabs = Named("tabPages");
  tabs->Put("Tab", Value(1));
  tabs->Put("TabVisible", {Value(0)}, Value(false));
  EXPECT_EQ(tabs->Get("Tabs").ToInt32(), 2);
  EXPECT_EQ(tabs->Get("tabcaption", {Value(1)}).ToText(), "&Stock");
  EXPECT_FALSE(form->tabPages.TabVisible(0));
}

}  // namespace
}  // namespace counter
