#include "platform/console/control_finder.h"

#include "base/vb/text.h"
#include "platform/console/escape.h"

namespace console {
namespace {

controls::Control& ControlOf(const controls::Form& form, std::string_view name) {
  if (controls::Control* control = form.FindControl(name)) return *control;
  throw CommandError("no control " + Quote(name) + " on " + form.Name());
}

}  // namespace

controls::Form& ActiveForm(const TextDesktop& desktop) {
  if (controls::Form* form = desktop.ActiveForm()) return *form;
  throw CommandError("no form is open");
}

controls::Form& LoadedForm(const TextDesktop& desktop, std::string_view name) {
  if (controls::Form* form = desktop.FindLoaded(name)) return *form;
  throw CommandError("no form " + Quote(name) + " is loaded");
}

controls::Control& ControlToRead(const TextDesktop& desktop, std::string_view name) {
  const PropertyPath path = ParsePropertyPath(name);
  if (!path.indexes.empty() || path.names.size() > 2) throw CommandError("a control is expected, not " + Quote(name));
  if (path.names.size() == 2) return ControlOf(LoadedForm(desktop, path.names[0]), path.names[1]);
  return ControlOf(ActiveForm(desktop), path.names[0]);
}

controls::Control& ControlToActOn(const TextDesktop& desktop, std::string_view name) {
  controls::Control& control = ControlToRead(desktop, name);
  const controls::Form& active = ActiveForm(desktop);
  if (&control.Owner() != &active) throw CommandError(control.Owner().Name() + " is behind " + active.Name());
  if (!control.IsShown()) throw CommandError(control.Name() + " is hidden");
  if (!control.AcceptsInput()) throw CommandError(control.Name() + " is disabled");
  return control;
}

controls::Control& ControlToFocus(const TextDesktop& desktop, std::string_view name) {
  controls::Control& control = ControlToActOn(desktop, name);
  if (!control.CanFocus()) throw CommandError(control.Name() + " takes no focus");
  return control;
}

}  // namespace console
