#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/windows/windows_gate.h"

namespace hosts {

std::string TextOf(HWND window);
/// The visible child with this caption, access key marks left out; null when there is none.
HWND ChildCaptioned(HWND form, const std::string& caption);
/// The visible top-level windows of this thread that are the component's forms.
std::vector<HWND> OpenForms();

/// Somebody at the windows of this thread, between its messages: does with each form what is planned for it, one thing at a time
/// and each once it can be used again, then closes it; answers messages with No, else Cancel, else OK. One at a time.
class Hands {
 public:
  using Deed = std::function<void(HWND form)>;

  Hands();
  Hands(const Hands&) = delete;
  Hands& operator=(const Hands&) = delete;
  ~Hands();

  /// Does nothing more.
  void Rest();
  /// The button with this caption is pressed; nothing where it is disabled.
  static Deed Press(std::string caption);

  std::map<std::string, std::deque<Deed>> plan;  ///< by the form's caption
  Deed onMessage;                                ///< done with the first message, before it is answered
  struct Message {
    std::string title, text;
  };
  std::vector<Message> messages;
  std::vector<std::string> forms;  ///< captions of the forms met, in order
  std::string Said() const;        ///< all messages' texts, one a line

 private:
  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);
  void MeetMessage(HWND box);
  void MeetForm(HWND form);

  static inline Hands* present_ = nullptr;
  UINT_PTR timer_;
  std::vector<HWND> met_;
  HWND answered_ = nullptr;
};

}  // namespace hosts
