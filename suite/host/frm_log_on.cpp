#include "suite/host/frm_log_on.h"

#include "base/vb/number.h"

namespace suite {
namespace {

using namespace controls;

constexpr std::string_view kTitle = "Shop host";
constexpr std::string_view kCompany = "company";
constexpr std::string_view kShop = "shop";
constexpr std::string_view kUser = "user";
constexpr std::string_view kDate = "processdate";

std::string UsersQuery(std::int32_t shopId) {
  return "select UserID,UserName from loUsers where ShopID=" + std::to_string(shopId) + " order by UserName";
}

std::int32_t ChosenId(const ComboBox& list) {
  return list.ListIndex() < 0 ? 0 : list.ItemData(list.ListIndex());
}

}  // namespace

frmLogOn::frmLogOn(controls::Desktop& desktop, ado::Connection connection, HostMemory& memory, vb::Date today,
                   LogOnPresets presets, Open open)
    : Form(desktop, "frmLogOn"),
      connection_(std::move(connection)),
      memory_(memory),
      today_(today),
      presets_(presets),
      open_(std::move(open)) {
  On(Loading, "Form_Load", &frmLogOn::Form_Load);
  On(cboShop.Click, "cboShop_Click", &frmLogOn::cboShop_Click);
  On(cmdopen.Click, "cmdopen_Click", &frmLogOn::cmdopen_Click);
  On(cmdexit.Click, "cmdexit_Click", [this] { Unload(); });
}

void frmLogOn::Design() {
  SetCaption(kTitle);
  SetSize(5760, 2880);
  int top = 240;
  const auto place = [&top](Label& label, std::string_view caption, Control& control) {
    label.SetCaption(caption);
    label.Move(240, top + 45, 1320, 240);
    control.Move(1680, top, 3840, 330);
    top += 480;
  };
  place(lblcompany, "&Company:", cboCompany);
  place(lblshop, "&Shop:", cboShop);
  place(lbluser, "&User:", cboUser);
  place(lbldate, "Process &date:", txtdate);
  for (ComboBox* list : {&cboCompany, &cboShop, &cboUser}) list->SetStyle(ComboStyle::DropDownList);
  txtdate.Move(1680, txtdate.Place().top, 1560, 330);
  txtdate.SetMaxLength(10);
  cmdopen.SetCaption("&Goods requests");
  cmdopen.Move(2280, 2280, 1800, 420);
  cmdopen.SetDefault(true);
  cmdexit.SetCaption("E&xit");
  cmdexit.Move(4200, 2280, 1320, 420);
  cmdexit.SetCancel(true);
}

void frmLogOn::Form_Load() {
  const vb::Date remembered = vb::TryParseDate(memory_.Read(kDate)).value_or(today_);
  txtdate.SetText(vb::DateText(presets_.processDate.value_or(remembered)));
  Fill(cboCompany, "select companyid,name from aCompanyMaster order by name", kCompany, presets_.companyId);
  Fill(cboShop, "select ShopID,shopname from aShops order by shopname", kShop, presets_.shopId);
}

void frmLogOn::cboShop_Click() {
  Fill(cboUser, UsersQuery(ChosenId(cboShop)), kUser, presets_.userId);
}

void frmLogOn::Fill(ComboBox& list, std::string_view statement, std::string_view remembered, std::optional<std::int32_t> preset) {
  const double wanted = preset ? *preset : vb::Val(memory_.Read(remembered));
  list.Clear();
  ado::Recordset rows = connection_.Execute(statement);
  int select = 0;
  ado::ForEachRow(rows, [&](const late::Array& block, std::size_t record) {
    const std::int32_t id = block.At(0, record).ToInt32();
    list.AddItem(block.At(1, record).TextOrEmpty(), id);
    if (id == wanted) select = list.NewIndex();
  });
  rows.Close();
  if (list.ListCount() > 0) list.SetListIndex(select);
}

std::optional<LogOn> frmLogOn::Chosen() {
  Load();
  const auto date = vb::TryParseDate(txtdate.Text());
  if (cboCompany.ListIndex() < 0 || cboShop.ListIndex() < 0 || cboUser.ListIndex() < 0 || !date) return std::nullopt;
  return LogOn{ChosenId(cboCompany), ChosenId(cboShop), ChosenId(cboUser), *date};
}

std::string frmLogOn::MissingPreset() {
  Load();
  const auto missing = [](const ComboBox& list, std::optional<std::int32_t> preset) {
    return preset && ChosenId(list) != *preset;
  };
  const auto none = [](std::string_view what, std::int32_t id) {
    return "There is no " + std::string(what) + " " + std::to_string(id);
  };
  if (missing(cboCompany, presets_.companyId)) return none("company", *presets_.companyId);
  if (missing(cboShop, presets_.shopId)) return none("shop", *presets_.shopId);
  if (missing(cboUser, presets_.userId)) return none("user", *presets_.userId) + " in this shop";
  return {};
}

bool frmLogOn::Refuse(Control& control, std::string_view text) {
  MsgBox(text, kInformation, kTitle);
  control.SetFocus();
  return false;
}

void frmLogOn::cmdopen_Click() {
  const auto complete = [this] {
    if (cboCompany.ListIndex() < 0) return Refuse(cboCompany, "Select the company");
    if (cboShop.ListIndex() < 0) return Refuse(cboShop, "Select the shop");
    if (cboUser.ListIndex() < 0) return Refuse(cboUser, "Select the user");
    return vb::TryParseDate(txtdate.Text()) ? true : Refuse(txtdate, "Enter a valid process date");
  };
  if (!complete()) return;
  const LogOn logOn = *Chosen();
  Remember(logOn);
  open_(logOn);
}

void frmLogOn::Remember(const LogOn& logOn) {
  memory_.Write(kCompany, std::to_string(logOn.companyId));
  memory_.Write(kShop, std::to_string(logOn.shopId));
  memory_.Write(kUser, std::to_string(logOn.userId));
  memory_.Write(kDate, vb::DateText(logOn.processDate));
}

void frmLogOn::ReportError(std::string_view, const vb::RunTimeError& error) {
  MsgBox(error.Description(), kExclamation, kTitle);
}

}  // namespace suite
