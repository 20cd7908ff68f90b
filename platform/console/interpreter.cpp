#include "platform/console/interpreter.h"

#include "base/vb/error.h"
#include "base/vb/text.h"
#include "platform/console/escape.h"

namespace console {

void Interpreter::Execute(const std::string& line) {
  try {
    Run(Words(line));
  } catch (const CommandError& error) {
    output_.Error(error.what());
  } catch (const vb::RunTimeError& error) {
    output_.Error(std::to_string(error.Number()) + " " + error.Description());
  } catch (const std::exception& error) {
    output_.Error(std::to_string(vb::kInternalError) + " " + error.what());
  }
}

void Interpreter::Run(Words words) {
  const std::string_view verb = words.Take();
  if (verb.empty() || verb.front() == '#') return;
  const Command* command = commands_.Find(verb);
  if (!command) throw CommandError("unknown command " + Quote(verb) + ", see help");
  CheckMoment(*command);
  command->run(words);
}

void Interpreter::CheckMoment(const Command& command) const {
  switch (command.moment) {
    case Moment::Always:
      return;
    case Moment::MessageOpen:
      if (!desktop_.HasMessage()) throw CommandError("no message is open");
      return;
    case Moment::MenuOpen:
      if (!desktop_.HasMenu()) throw CommandError("no menu is open");
      return;
    case Moment::FormActive:
      if (desktop_.HasMessage()) throw CommandError("a message is open: answer it first");
      if (desktop_.HasMenu()) throw CommandError("a menu is open: pick an entry or none first");
      return;
  }
}

}  // namespace console
