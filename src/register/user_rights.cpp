#include "base/vb/text.h"
#include "src/register/frm_master.h"

namespace goods {
namespace {

std::string RightsQuery(const basGoodsRequest& session) {
  return "select functionrights from louserrights where userid = " + std::to_string(session.gIntUserID) +
         " and interfaceid = " + std::to_string(session.gLngInterfaceID) +
         " and companyid = " + std::to_string(session.gIntCompanyID);
}

void TrimAndCapitalise(std::string& text) {
  text = vb::UCase(vb::Trim(text));
}

}  // namespace

// Without a trap of its own: an error here ends the load.
void frmMaster::USerRights() {
  ado::Recordset rows = ado::Recordset::Create(Session().services.factory);
  rows.Open(RightsQuery(Session()), Session().gAdoCon, ado::kKeyset, ado::kOptimistic);
  const bool hasRights = rows.RecordCount() > 0;
  if (hasRights) Session().gStrUserRights = rows.Field("FunctionRights").TextOrEmpty();  // null rights are empty rights
  rows.Close();
  if (!hasRights) return EnableCommands(true);  // nothing restricts this user until the first judgement of a request
  cmdnew.SetEnabled(HasRight("N"));
  CmdEdit.SetEnabled(HasRight("E"));
  CmdDelete.SetEnabled(HasRight("D"));
  Cmdprev.SetEnabled(HasRight("P"));
}

void frmMaster::EnableCommands(bool enabled) {
  for (controls::CommandButton* command : {&cmdnew, &CmdEdit, &CmdDelete, &Cmdprev}) command->SetEnabled(enabled);
}

bool frmMaster::fnUSerRights(std::string& letter) {
  bool granted = false;
  Trap("fnUSerRights", [&] {
    std::string& rights = Session().gStrUserRights;
    TrimAndCapitalise(letter);
    TrimAndCapitalise(rights);
    // "ADMIN" is a word, not five letters, and the word grants nothing here.
    granted = rights != "ADMIN" && vb::InStrNoCase(rights, letter) > 0;
  });
  return granted;
}

}  // namespace goods
