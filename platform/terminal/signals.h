#pragma once

namespace terminal {

/// What the system has asked the program for.
enum class Asked { Nothing, Redraw, Stop, End };

/// Catches hang-up, end, suspension and resumption for as long as it lives; they wait until they are taken. One at a time.
class Signals {
 public:
  Signals();
  ~Signals();
  Signals(const Signals&) = delete;
  Signals& operator=(const Signals&) = delete;

  /// Becomes readable when something is asked.
  int Descriptor() const;
  Asked Take();
  /// Stops the process as the system's own suspension does; returns when it goes on.
  static void StopNow();
};

}  // namespace terminal
