#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "src/faces/face.h"

namespace goods {

/// Where and as whom the report server logs on.
struct ReportLogOn {
  std::string driver;
  std::string source;
  std::string database;
  std::string user;
  std::string password;
};

/// What a report's preview window offers. Members carry their classic names.
class PrintWindowOptions : public Face {
 public:
  explicit PrintWindowOptions(late::ObjectPtr options) : Face(std::move(options)) {}

  void HasPrintButton(bool shown);
  void HasPrintSetupButton(bool shown);
  void HasNavigationControls(bool shown);
  void HasZoomControl(bool shown);
};

/// An open report. Members carry their classic names.
class Report : public Face {
 public:
  explicit Report(late::ObjectPtr report) : Face(std::move(report)) {}

  /// Sets the current value of a parameter field, numbered from 1.
  void SetParameterField(std::int32_t number, const late::Value& value);
  goods::PrintWindowOptions PrintWindowOptions();
  /// Opens the preview window at its default place and size and does not wait for it. `style` is a window style of the system.
  void Preview(std::string_view title, std::int32_t style);
};

/// The Crystal Reports automation server. Members carry their classic names, and raise what the server raises.
class ReportServer : public Face {
 public:
  /// Error 429 when it is not registered.
  explicit ReportServer(late::Factory& factory);

  void LogOnServer(const ReportLogOn& logOn);
  Report OpenReport(std::string_view file);
};

}  // namespace goods
