#include "src/faces/report_server.h"

namespace goods {

void PrintWindowOptions::HasPrintButton(bool shown) {
  Component().Put("HasPrintButton", shown);
}

void PrintWindowOptions::HasPrintSetupButton(bool shown) {
  Component().Put("HasPrintSetupButton", shown);
}

void PrintWindowOptions::HasNavigationControls(bool shown) {
  Component().Put("HasNavigationControls", shown);
}

void PrintWindowOptions::HasZoomControl(bool shown) {
  Component().Put("HasZoomControl", shown);
}

void Report::SetParameterField(std::int32_t number, const late::Value& value) {
  const late::ObjectPtr fields = Component().Get("ParameterFields").ToObject();
  fields->Get("Item", {number}).ToObject()->Call("SetCurrentValue", {value});
}

PrintWindowOptions Report::PrintWindowOptions() {
  return goods::PrintWindowOptions(Component().Get("PrintWindowOptions").ToObject());
}

void Report::Preview(std::string_view title, std::int32_t style) {
  Component().Call("Preview", {title, 0, 0, 0, 0, style});
}

ReportServer::ReportServer(late::Factory& factory) : Face(factory.Create("Crystal.CRPE.Application")) {}

void ReportServer::LogOnServer(const ReportLogOn& logOn) {
  Component().Call("LogOnServer", {logOn.driver, logOn.source, logOn.database, logOn.user, logOn.password});
}

Report ReportServer::OpenReport(std::string_view file) {
  return Report(Component().Call("OpenReport", {file}).ToObject());
}

}  // namespace goods
