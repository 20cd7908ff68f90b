#pragma once

#include <string>

namespace controls {

/// Message box styles, added up: buttons + icon + default button.
enum MessageStyle {
  kOkOnly = 0,
  kOkCancel = 1,
  kYesNoCancel = 3,
  kYesNo = 4,
  kCritical = 16,
  kQuestion = 32,
  kExclamation = 48,
  kInformation = 64,
  kDefaultButton2 = 256,
  kDefaultButton3 = 512,
};

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct Message {
  std::string text;
  int style = kOkOnly;
  std::string title;

  int Buttons() const { return style & 15; }
  int Icon() const { return style & 0x70; }
  /// 1-based number of the default button.
  int DefaultButton() const { return (style & kDefaultButton3) ? 3 : (style & kDefaultButton2) ? 2 : 1; }
  /// The answer of the n-th button (1-based); of the last one when there are fewer.
  Answer AnswerOf(int button) const;
  /// What Esc answers: OK of an OK box, Cancel where there is one; none (false) for Yes/No.
  bool CanEscape() const { return Buttons() != kYesNo; }
};

}  // namespace controls
