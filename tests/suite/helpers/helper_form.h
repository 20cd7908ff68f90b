#pragma once

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "base/controls/text_box.h"
#include "tests/support/shop_fixture.h"

/// A form with one control of each kind that the helpers touch.
class HelperForm : public controls::Form {
 public:
  explicit HelperForm(controls::Desktop& desktop) : Form(desktop, "HelperForm") {}
  controls::Label lblName{*this, "lblName"};
  controls::TextBox txtQuantity{*this, "txtQuantity"};
  controls::ComboBox cboItem{*this, "cboItem"};
  controls::CheckBox chkDone{*this, "chkDone"};
  controls::ListView lvwPacks{*this, "lvwPacks"};
  controls::FlexGrid flexMaster{*this, "flexMaster"};

 protected:
  void Design() override {
    for (const char* column : {"ID", "Type", "Packs"}) lvwPacks.AddColumn(column, 1000);
    flexMaster.SetCols(4);
  }
  void ReportError(std::string_view, const vb::RunTimeError& error) override { throw error; }
};

/// The sample shop with such a form, loaded.
struct HelperShop : support::Shop {
  HelperShop() { form->Load(); }
  late::ObjectPtr Helper(std::string_view progId) {
    late::ObjectPtr helper = registry.Create(progId);
    if (helper->Has("adocon")) helper->PutRef("adocon", session.gAdoCon.Object());
    return helper;
  }
  std::shared_ptr<HelperForm> form = std::make_shared<HelperForm>(desktop);
};
