#include "base/controls/message_box.h"

#include <algorithm>
#include <vector>

namespace controls {

Answer Message::AnswerOf(int button) const {
  std::vector<Answer> answers;
  switch (Buttons()) {
    case kOkCancel:
      answers = {Answer::Ok, Answer::Cancel};
      break;
    case kYesNoCancel:
      answers = {Answer::Yes, Answer::No, Answer::Cancel};
      break;
    case kYesNo:
      answers = {Answer::Yes, Answer::No};
      break;
    default:
      answers = {Answer::Ok};
      break;
  }
  const auto last = static_cast<int>(answers.size());
  return answers[static_cast<std::size_t>(std::clamp(button, 1, last) - 1)];
}

}  // namespace controls
