#include "src/printing/windows_print.h"

#include <string>
#include <string_view>

#include "src/faces/common_db.h"
#include "src/module/settings_reader.h"

namespace goods {
namespace {

constexpr std::string_view kTitle = "Request To HQ";
constexpr std::int32_t kOverlappedMaximised = 0x1CF0000;
/// What a user needs to print from the preview: the print buttons themselves, and finding the way about a long report.
constexpr std::string_view kPreviewOptions[] = {"HasPrintButton", "HasPrintSetupButton", "HasNavigationControls",
                                                "HasZoomControl"};

std::string UserName(basGoodsRequest& session, CommonDb& db) {
  db.strTableName("lousers where userid=" + std::to_string(session.gIntUserID));
  return db.fnReturnField("username").TextOrEmpty();
}

std::string DepartmentName(basGoodsRequest& session, CommonDb& db) {
  db.strTableName("ashops a,adepartmentmaster b where shopid=" + std::to_string(session.gIntShopID) + " and " +
                  " a.DepartmentID=b.departmentid");
  return db.fnReturnField("departmentname").TextOrEmpty();
}

/// The log-on as shipped, each text open to a setting of the shop's own, so that no password needs to stay as it is here.
void LogOn(basGoodsRequest& session, late::Object& server) {
  const SettingsFile settings(session);
  const auto text = [&](std::string_view key, std::string_view shipped) { return settings.QuietFileCode(key, shipped); };
  server.Call("LogOnServer",
              {text("reportdriver", "pdsodbc.dll"), text("reportsource", "admindsnv2"), text("reportdatabase", "adminv2"),
               text("reportuser", "admin"), text("reportpassword", "plumgate0417")});
}

void SetParameter(late::Object& report, std::int32_t number, const late::Value& value) {
  const late::ObjectPtr fields = report.Get("ParameterFields").ToObject();
  fields->Get("Item", {number}).ToObject()->Call("SetCurrentValue", {value});
}

}  // namespace

void WIndowsprint(basGoodsRequest& session, std::int32_t requestId) {
  CommonDb db(session.services.factory, session.gAdoCon);
  const std::string userName = UserName(session, db);
  const std::string reportFile = session.services.workstation.ApplicationFolder() + "\\reports\\reqtohq.rpt";
  const late::ObjectPtr server = session.services.factory.Create("Crystal.CRPE.Application");
  LogOn(session, *server);
  const late::ObjectPtr report = server->Call("OpenReport", {reportFile}).ToObject();
  SetParameter(*report, 1, kTitle);
  SetParameter(*report, 2, " ");
  SetParameter(*report, 3, requestId);
  SetParameter(*report, 4, session.gIntShopID);
  SetParameter(*report, 5, userName);
  SetParameter(*report, 6, DepartmentName(session, db));
  const late::ObjectPtr options = report->Get("PrintWindowOptions").ToObject();
  for (const std::string_view option : kPreviewOptions) options->Put(option, true);
  // Without its objects the server closes the preview.
  session.services.desktop.KeepWhileShown(kTitle, {server, report}, [&] {
    report->Call("Preview", {kTitle, 0, 0, 0, 0, kOverlappedMaximised});
  });
}

}  // namespace goods
