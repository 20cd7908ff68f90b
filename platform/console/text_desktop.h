#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/desktop.h"
#include "base/controls/form.h"
#include "platform/console/input.h"
#include "platform/console/output.h"

namespace console {

/// A desktop made of text: says what opens and closes, and reads commands until a form is closed, a message answered, a menu
/// entry picked. What a command does is not its business: each line goes to the handler it was given.
class TextDesktop : public controls::Desktop {
 public:
  using LineHandler = std::function<void(const std::string& line)>;
  /// How the rest of the session is played without further commands.
  enum class Ending { NotYet, EndOfInput, Quit };

  TextDesktop(Input& input, Output& output) : input_(input), output_(output) {}

  void SetLineHandler(LineHandler handler) { handler_ = std::move(handler); }

  // The open message box.
  bool HasMessage() const { return message_ != nullptr; }
  /// The box as shown on the screen; nothing when none is open.
  std::vector<std::string> MessagePicture() const;
  /// The answer must be one of the box's buttons; false when it is not.
  bool AnswerMessage(controls::Answer answer);
  /// How many messages were opened so far.
  int MessagesOpened() const { return messagesOpened_; }
  /// How often the alarm has sounded; nothing is printed for it.
  int Alarms() const { return alarms_; }

  // The open pop-up menu.
  bool HasMenu() const { return menu_ != nullptr; }
  const std::vector<controls::Menu*>& MenuEntries() const;
  /// Null picks nothing.
  void PickEntry(controls::Menu* entry);

  /// From now on every form is closed and every message answered without asking.
  void End(Ending ending) { ending_ = ending; }

  /// A loaded form by name without regard to case, shown or not; null when there is none.
  controls::Form* FindLoaded(std::string_view name) const;

  controls::Answer MsgBox(controls::Form* owner, const controls::Message& message) override;
  controls::Menu* PopupMenu(controls::Form& form, controls::Menu& menu) override;
  void Beep() override { ++alarms_; }
  void Changed(controls::Control& control, controls::Aspect aspect) override;
  void FormChanged(controls::Form& form) override;
  void FocusMoved(controls::Form& form, controls::Control* control) override;
  void PointerChanged(controls::Form& form, bool hourglass) override;

 protected:
  void Opening(controls::Form& form, controls::Form* owner) override;
  void Opened(controls::Form& form) override;
  void RunModal(controls::Form& form) override;
  void Closed(controls::Form& form) override;

 private:
  struct OpenMessage {
    const controls::Message& message;
    std::optional<controls::Answer> answer;
  };
  struct OpenMenu {
    std::vector<controls::Menu*> entries;
    bool picked = false;
    controls::Menu* entry = nullptr;
  };

  /// Reads one line and hands it on; the end of the input begins the ending.
  void ReadAndHandle(std::string_view prompt);
  controls::Answer AnswerWithoutAsking(const controls::Message& message) const;
  void Remember(controls::Form& form);
  void ShowPictureToPerson();

  Input& input_;
  Output& output_;
  LineHandler handler_;
  Ending ending_ = Ending::NotYet;
  OpenMessage* message_ = nullptr;
  OpenMenu* menu_ = nullptr;
  int messagesOpened_ = 0;
  int alarms_ = 0;
  bool pictureIsOld_ = false;
  std::vector<std::weak_ptr<late::Object>> known_;
};

}  // namespace console
