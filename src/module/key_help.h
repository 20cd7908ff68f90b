#pragma once

#include <span>
#include <string>
#include <string_view>

namespace goods {

/// What a key, or one of several, does in a form.
struct KeyHelp {
  std::string_view key;
  std::string_view does;
};

/// The keys of one form, in the order that they are told.
struct FormKeyHelp {
  std::string_view form;
  std::span<const KeyHelp> keys;
};

/// All forms that tell their keys, in the order of the users' page, whose tables say the same.
std::span<const FormKeyHelp> KeyHelpOfAllForms();

/// The keys of the form for a message box, a line each; empty for a form that tells none.
std::string KeysToTell(std::string_view form);

}  // namespace goods
