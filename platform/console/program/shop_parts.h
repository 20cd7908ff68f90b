#pragma once

#include <memory>

#include "platform/console/options.h"
#include "platform/text/text_workstation.h"
#include "suite/engine/objects/database.h"

namespace console {

/// The database that the options name, with what a new one is to be filled with. Raises the run-time error of what cannot be had,
/// an OptionError for a file that cannot be read.
std::shared_ptr<suite::Database> OpenDatabase(const Options& options);

/// The workstation that the options describe; starts nothing. An OptionError where the application folder is missing.
text::TextWorkstation::Settings WorkstationSettings(const Options& options);

}  // namespace console
