#pragma once

#include <memory>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/form.h"
#include "base/controls/list_view.h"
#include "base/controls/menu.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"

namespace console {

/// A small order form with one control of each kind: enough of a component to drive.
class OrderForm : public controls::Form {
 public:
  explicit OrderForm(controls::Desktop& desktop, std::string name = "frmOrder");

  controls::Label lblName{*this, "lblName"};
  controls::TextBox txtName{*this, "txtName"};
  controls::Label lblQty{*this, "lblQty"};
  controls::TextBox txtQty{*this, "txtQty"};
  controls::ComboBox cboUnit{*this, "cboUnit"};
  controls::Frame fraKind{*this, "fraKind"};
  controls::OptionButton optShop{*this, "optShop"};
  controls::OptionButton optGodown{*this, "optGodown"};
  controls::CheckBox chkUrgent{*this, "chkUrgent"};
  controls::TabControl tabLists{*this, "tabLists"};
  controls::FlexGrid flexStock{*this, "flexStock"};
  controls::ListView lvwLines{*this, "lvwLines"};
  controls::CommandButton cmdOK{*this, "cmdOK"};
  controls::CommandButton cmdMore{*this, "cmdMore"};
  controls::CommandButton cmdHidden{*this, "cmdHidden"};
  controls::CommandButton cmdClose{*this, "cmdClose"};
  controls::Menu mnuPopup{*this, "mnuPopup"};
  controls::Menu mnuAdd{*this, "mnuAdd", &mnuPopup};
  controls::Menu mnuDelete{*this, "mnuDelete", &mnuPopup};

  /// What the handlers noted, in their order.
  std::vector<std::string> notes;
  /// How often the form refuses to close.
  int refusals = 0;
  std::shared_ptr<OrderForm> more;

 protected:
  void Design() override;
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override;

 private:
  void WireEvents();
  void PlaceHeader();
  void PlaceLists();
};

}  // namespace console
