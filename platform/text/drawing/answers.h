#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/message_box.h"

namespace text {

/// How often a form that is closed unasked may refuse before it is given up.
inline constexpr int kMaxRefusals = 3;

/// The buttons of a message box from left to right.
std::vector<controls::Answer> ButtonsOf(const controls::Message& message);
/// "ok", "cancel", "yes" or "no".
std::string_view AnswerName(controls::Answer answer);
/// What the button says: "OK", "Cancel", "Yes" or "No".
std::string ButtonCaption(controls::Answer answer);

}  // namespace text
