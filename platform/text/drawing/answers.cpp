#include "platform/text/drawing/answers.h"

#include "base/vb/text.h"

namespace text {

std::vector<controls::Answer> ButtonsOf(const controls::Message& message) {
  using controls::Answer;
  switch (message.Buttons()) {
    case controls::kOkCancel:
      return {Answer::Ok, Answer::Cancel};
    case controls::kYesNoCancel:
      return {Answer::Yes, Answer::No, Answer::Cancel};
    case controls::kYesNo:
      return {Answer::Yes, Answer::No};
    default:
      return {Answer::Ok};
  }
}

std::string_view AnswerName(controls::Answer answer) {
  switch (answer) {
    case controls::Answer::Cancel:
      return "cancel";
    case controls::Answer::Yes:
      return "yes";
    case controls::Answer::No:
      return "no";
    default:
      return "ok";
  }
}

std::string ButtonCaption(controls::Answer answer) {
  if (answer == controls::Answer::Ok) return "OK";
  const std::string_view name = AnswerName(answer);
  return vb::UCase(vb::Left(name, 1)) + vb::Mid(name, 2);
}

}  // namespace text
