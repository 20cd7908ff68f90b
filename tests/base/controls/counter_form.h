#pragma once

#include <string>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/flex_grid.h"
#include "base/controls/form.h"
#include "base/controls/list_view.h"
#include "base/controls/menu.h"
#include "base/controls/tab_control.h"
#include "base/controls/text_box.h"

namespace counter {

/// A form of a shop's counter, with one of everything. What happens to it is told in `story`.
class frmCounter : public controls::Form {
 public:
  explicit frmCounter(controls::Desktop& desktop, std::string name = "frmCounter") : Form(desktop, std::move(name)) {
    PublishField("lngVisits", [this] { return late::Value(static_cast<std::int32_t>(visits)); });
  }

  controls::Label lblItem{*this, "lblItem"};
  controls::TextBox txtItem{*this, "txtItem"};
  controls::TextBox txtQuantity{*this, "txtQuantity"};
  controls::ComboBox cboUnit{*this, "cboUnit"};
  controls::Frame fraSort{*this, "fraSort"};
  controls::OptionButton optUp{*this, "optUp"};
  controls::OptionButton optDown{*this, "optDown"};
  controls::OptionButton optCash{*this, "optCash"};
  controls::CheckBox chkDone{*this, "chkDone"};
  controls::TabControl tabPages{*this, "tabPages"};
  controls::ListView lvwLines{*this, "lvwLines"};
  controls::FlexGrid flexStock{*this, "flexStock"};
  controls::CommandButton cmdOk{*this, "cmdOk"};
  controls::CommandButton cmdClose{*this, "cmdClose"};
  controls::Menu mnuPopup{*this, "mnuPopup"};
  controls::Menu mnuRefresh{*this, "mnuRefresh", &mnuPopup};

  int visits = 0;  ///< a field of the form, not a control: survives unloading
  std::vector<std::string> story;
  std::vector<std::string> errors;  ///< "routine number"

  /// Notes the event when it fires.
  template <class... A>
  void Tell(controls::Event<A...>& event, const std::string& what) {
    On(event, what, [this, what](A...) { story.push_back(what); });
  }
  /// What happened since the last time this was asked.
  std::string Told() {
    std::string all;
    for (const std::string& part : std::exchange(story, {})) all += (all.empty() ? "" : ", ") + part;
    return all;
  }
  // Wiring from the outside, for tests.
  using Form::On;

 protected:
  void Design() override {
    SetCaption("Counter");
    SetSize(9000, 6000);
    int top = 120;
    for (controls::Control* control : std::initializer_list<controls::Control*>{&lblItem, &txtItem, &txtQuantity, &cboUnit,
                                                                                &optCash, &chkDone, &cmdOk, &cmdClose}) {
      control->Move(120, std::exchange(top, top + 480), 1800, 330);
    }
    fraSort.Move(120, 4200, 1800, 1200);
    optUp.Move(120, 240, 1500, 330);
    optDown.Move(120, 660, 1500, 330);
    tabPages.Move(2100, 120, 6780, 5760);
    lvwLines.Move(120, 420, 6540, 5220);
    flexStock.Move(120, 420, 6540, 5220);
    lblItem.SetCaption("&Item:");
    cboUnit.SetStyle(controls::ComboStyle::DropDownList);
    fraSort.SetCaption("Sort");
    optUp.SetContainer(&fraSort);
    optDown.SetContainer(&fraSort);
    optUp.SetCaption("&Up");
    chkDone.SetCaption("&Done");
    tabPages.SetTabs(2);
    tabPages.SetTabCaption(0, "&Lines");
    tabPages.SetTabCaption(1, "&Stock");
    lvwLines.SetContainer(&tabPages, 0);
    lvwLines.AddColumn("Code", 1200);
    lvwLines.AddColumn("Name", 3000);
    flexStock.SetContainer(&tabPages, 1);
    flexStock.SetFixedCols(0);
    cmdOk.SetCaption("&Ok");
    cmdClose.SetCaption("&Close");
    mnuPopup.SetVisible(false);
    mnuRefresh.SetCaption("&Refresh");
  }
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override {
    errors.push_back(std::string(routine) + " " + std::to_string(error.Number()));
  }
};

}  // namespace counter
