#pragma once

#include <functional>
#include <utility>

namespace controls {

/// One event of a control or form with its single handler. Forms wire handlers through Form::On, which traps errors.
template <class... A>
class Event {
 public:
  using Handler = std::function<void(A...)>;

  void Wire(Handler handler) { handler_ = std::move(handler); }
  void Fire(A... arguments) const {
    if (handler_) handler_(arguments...);
  }

 private:
  Handler handler_;
};

}  // namespace controls
