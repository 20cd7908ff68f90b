#pragma once

#include <string_view>

/// The SQL scripts of suite/shop as they were when the program was built.
namespace suite {

std::string_view SchemaScript();
std::string_view ReplicationScript();

std::string_view ShopsScript();
std::string_view ItemsScript();
std::string_view PackingScript();
std::string_view StockScript();
std::string_view DocumentsScript();
std::string_view RequestsScript();

}  // namespace suite
