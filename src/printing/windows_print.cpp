#include "src/printing/windows_print.h"

#include <string>
#include <string_view>

#include "src/faces/common_db.h"
#include "src/faces/report_server.h"
#include "src/module/settings_reader.h"

namespace goods {
namespace {

constexpr std::string_view kTitle = "Request To HQ";
constexpr std::int32_t kOverlappedMaximised = 0x1CF0000;

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
ReportLogOn LogOn(basGoodsRequest& session) {
  const SettingsFile settings(session);
  return {settings.QuietFileCode("reportdriver", "pdsodbc.dll"), settings.QuietFileCode("reportsource", "admindsnv2"),
          settings.QuietFileCode("reportdatabase", "adminv2"), settings.QuietFileCode("reportuser", "admin"),
          settings.QuietFileCode("reportpassword", "plumgate0417")};
}

/// What a user needs to print from the preview: the print buttons themselves, and finding the way about a long report.
void OfferPrinting(PrintWindowOptions options) {
  options.HasPrintButton(true);
  options.HasPrintSetupButton(true);
  options.HasNavigationControls(true);
  options.HasZoomControl(true);
}

}  // namespace

void WIndowsprint(basGoodsRequest& session, std::int32_t requestId) {
  CommonDb db(session.services.factory, session.gAdoCon);
  const std::string userName = UserName(session, db);
  ReportServer server(session.services.factory);
  server.LogOnServer(LogOn(session));
  Report report = server.OpenReport(session.services.workstation.ApplicationFolder() + "\\reports\\reqtohq.rpt");
  report.SetParameterField(1, kTitle);
  report.SetParameterField(2, " ");
  report.SetParameterField(3, requestId);
  report.SetParameterField(4, session.gIntShopID);
  report.SetParameterField(5, userName);
  report.SetParameterField(6, DepartmentName(session, db));
  OfferPrinting(report.PrintWindowOptions());
  // Without its objects the server closes the preview.
  session.services.desktop.KeepWhileShown(kTitle, {server.Object(), report.Object()},
                                          [&] { report.Preview(kTitle, kOverlappedMaximised); });
}

}  // namespace goods
