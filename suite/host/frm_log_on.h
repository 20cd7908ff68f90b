#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "base/ado/connection.h"
#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/form.h"
#include "base/controls/text_box.h"
#include "suite/host/host_memory.h"

namespace suite {

/// Who works where and on which business day.
struct LogOn {
  std::int32_t companyId = 0;
  std::int32_t shopId = 0;
  std::int32_t userId = 0;
  vb::Date processDate;
};

/// What a host's caller asks for instead of what was chosen last time.
struct LogOnPresets {
  std::optional<std::int32_t> companyId;
  std::optional<std::int32_t> shopId;
  std::optional<std::int32_t> userId;
  std::optional<vb::Date> processDate;
};

/// The host's window: company, shop, user and process date from the shop's database, as chosen last time; opens the goods
/// requests as often as one likes. Knows nothing of the component: `open` does that.
class frmLogOn : public controls::Form {
 public:
  using Open = std::function<void(const LogOn&)>;
  /// `memory` outlives the form. `today` is offered as process date when none is remembered.
  frmLogOn(controls::Desktop& desktop, ado::Connection connection, HostMemory& memory, vb::Date today, LogOnPresets presets,
           Open open);

  /// The current choice, loading the form for it; nothing while a list is without a choice or the date cannot be read.
  std::optional<LogOn> Chosen();
  /// Names the first preset that the lists do not have ("There is no shop 9"), loading the form for it; empty when they have all.
  std::string MissingPreset();

  controls::Label lblcompany{*this, "lblcompany"};
  controls::ComboBox cboCompany{*this, "cboCompany"};
  controls::Label lblshop{*this, "lblshop"};
  controls::ComboBox cboShop{*this, "cboShop"};
  controls::Label lbluser{*this, "lbluser"};
  controls::ComboBox cboUser{*this, "cboUser"};
  controls::Label lbldate{*this, "lbldate"};
  controls::TextBox txtdate{*this, "txtdate"};
  controls::CommandButton cmdopen{*this, "cmdopen"};
  controls::CommandButton cmdexit{*this, "cmdexit"};

 protected:
  void Design() override;
  void ReportError(std::string_view routine, const vb::RunTimeError& error) override;

 private:
  void Form_Load();
  void cboShop_Click();
  void cmdopen_Click();
  /// Fills a list with the statement's ids and names and selects the preset or else the remembered id, else the first.
  void Fill(controls::ComboBox& list, std::string_view statement, std::string_view remembered,
            std::optional<std::int32_t> preset);
  bool Refuse(controls::Control& control, std::string_view text);
  void Remember(const LogOn& logOn);

  ado::Connection connection_;
  HostMemory& memory_;
  vb::Date today_;
  LogOnPresets presets_;
  Open open_;
};

}  // namespace suite
