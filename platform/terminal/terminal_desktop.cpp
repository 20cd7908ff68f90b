#include "platform/terminal/terminal_desktop.h"

#include <algorithm>

#include "base/controls/flex_grid.h"
#include "base/controls/list_view.h"
#include "platform/text/drawing/answers.h"
#include "platform/text/drawing/control_pictures.h"
#include "platform/text/drawing/form_picture.h"

namespace terminal {
namespace {

constexpr int kMinTwipsPerColumn = 40;  ///< of a form that grows with its window
constexpr std::string_view kCommonKeys = "F1 keys  Alt+letter underlined  Ctrl+J Ctrl+Enter";

/// The keys of a control that the form does not say by itself.
std::string_view KeysOf(const controls::Control& control) {
  switch (control.Kind()) {
    case controls::ControlKind::TextBox:
      return "Ctrl+A all  Ctrl+C copy  Ctrl+X cut  Ctrl+V paste  Ctrl+Z undo";
    case controls::ControlKind::ComboBox:
      return "F4 list  Up Down";
    case controls::ControlKind::FlexGrid:
    case controls::ControlKind::ListView:
      return "Up Down PgUp PgDn  Ctrl+C copy  Shift+F10 menu";
    case controls::ControlKind::CheckBox:
    case controls::ControlKind::CommandButton:
      return "Space press";
    case controls::ControlKind::OptionButton:
      return "Up Down";
    case controls::ControlKind::TabControl:
      return "Left Right  Ctrl+PgDn page";
    default:
      return {};
  }
}

std::string TipOf(const controls::Control& control) {
  if (const auto* list = controls::As<controls::ListView>(&control)) {
    const int line = list->SelectedItem();
    for (int column = 1; line > 0 && column <= list->ColumnCount(); ++column) {
      const std::string& tip = list->ToolTipAt(line, column);
      if (!tip.empty()) return tip;
    }
  }
  return control.ToolTipText();
}

}  // namespace

text::Surface TerminalDesktop::SurfaceOf(const controls::Form& form) const {
  text::Surface surface;
  surface.isScreen = true;
  if (form.IsResizable()) surface.columns = screen_.Width() - 3;
  surface.scrolled = &scrolled_;
  if (const auto found = fittings_.find(&form); found != fittings_.end()) {
    surface.twipsPerColumn = found->second.twipsPerColumn;
    surface.wrapAt = found->second.wrapAt;
    surface.extraRows = found->second.extraRows;
  }
  return surface;
}

/// Boxes and columns give up width where the form is too wide, lists give up rows where it is too high; those of a form that can
/// grow take what is left.
text::Canvas TerminalDesktop::FittedPicture(const controls::Form& form, text::Surface& surface) const {
  constexpr int kMaxTwipsPerColumn = 220;  // a box of a date's width would show nothing
  const int columns = screen_.Width();
  const int natural = text::TwipsPerColumn(form, columns - 4, form.IsResizable() ? kMinTwipsPerColumn : text::kMinTwipsPerColumn);
  surface.twipsPerColumn = natural;
  surface.wrapAt = 0;
  surface.extraRows = 0;
  text::Canvas picture = text::DrawForm(form, surface);
  while (picture.Width() > columns && surface.twipsPerColumn < kMaxTwipsPerColumn) {
    surface.twipsPerColumn += surface.twipsPerColumn / 12;
    picture = text::DrawForm(form, surface);
  }
  if (picture.Width() > columns) {
    surface.twipsPerColumn = natural;
    surface.wrapAt = columns - 3;
    picture = text::DrawForm(form, surface);
  }
  const int left = Rows() - picture.Height();
  // Two lists one above the other would each take the rows.
  for (int extra = form.IsResizable() ? left : std::min(left, 0); extra != 0; extra /= 2) {
    surface.extraRows = extra;
    picture = text::DrawForm(form, surface);
    if (picture.Height() <= Rows() || extra < 0) break;
  }
  return picture;
}

text::Canvas TerminalDesktop::PictureOf(const controls::Form& form) {
  text::Surface surface = SurfaceOf(form);
  Fitting& fitting = fittings_[&form];
  if (fitting.columns == screen_.Width() && fitting.rows == Rows()) {
    text::Canvas picture = text::DrawForm(form, surface);
    if (picture.Width() == fitting.width && picture.Height() == fitting.height) return picture;
  }
  text::Canvas picture = FittedPicture(form, surface);
  fitting = {screen_.Width(),        Rows(),         picture.Width(),  picture.Height(),
             surface.twipsPerColumn, surface.wrapAt, surface.extraRows};
  return picture;
}

/// The part of a picture that fits on the screen and shows its caret.
text::Canvas TerminalDesktop::InSight(const text::Canvas& picture) const {
  constexpr int kMargin = 8;
  const auto start = [](int size, int room, int caret, int margin) {
    return size <= room || caret + margin < room ? 0 : std::min(caret + margin + 1, size) - room;
  };
  const text::Point caret = picture.Caret().value_or(text::Point{});
  return picture.Part(start(picture.Width(), screen_.Width(), caret.x, kMargin), start(picture.Height(), Rows(), caret.y, 1),
                      screen_.Width(), Rows());
}

void TerminalDesktop::Compose() {
  composed_ = text::Canvas();
  composed_.Put(0, screen_.Height() - 1, "");
  const auto cover = [this](const text::Canvas& whole, const std::optional<text::Point>& place) {
    const text::Canvas picture = InSight(whole);
    const int x = place ? place->x : (screen_.Width() - picture.Width()) / 2;
    const int y = place ? place->y : (Rows() - picture.Height()) / 2;
    composed_.Cover(std::clamp(x, 0, std::max(0, screen_.Width() - picture.Width())),
                    std::clamp(y, 0, std::max(0, Rows() - picture.Height())), picture);
  };
  for (const controls::Form* form : Stack()) cover(PictureOf(*form), std::nullopt);
  for (const Popup* popup : popups_) cover(popup->picture, popup->place);
  composed_.Put(0, screen_.Height() - 1, text::Fit(StatusText(), screen_.Width()), text::kDim);
}

std::string TerminalDesktop::StatusText() const {
  if (!popups_.empty()) return popups_.back()->hint;  // the person can answer a popup even while the hourglass is on
  if (hourglasses_ > 0) return "Please wait ...";
  const controls::Control* control = ActiveForm() ? ActiveForm()->ActiveControl() : nullptr;
  if (!control) return std::string(kCommonKeys);
  const std::string tip = TipOf(*control);
  std::string status = tip.empty() ? "" : tip + "  |  ";
  return status.append(KeysOf(*control)).append("  ").append(kCommonKeys);
}

void TerminalDesktop::Paint() {
  Compose();
  screen_.Show(composed_);
}

long TerminalDesktop::RowsShown(const controls::Control& list) const {
  return text::RowsShown(list, SurfaceOf(list.Owner()));
}

void TerminalDesktop::PutOnClipboard(const std::string& text) {
  Desktop::PutOnClipboard(text);
  screen_.CopyOut(text);
}

void TerminalDesktop::PointerChanged(controls::Form&, bool hourglass) {
  hourglasses_ += hourglass ? 1 : -1;
  if (hourglass && !hasEnded_) Paint();
}

std::optional<Event> TerminalDesktop::NextEvent() {
  Event event = screen_.Next();
  switch (event.kind) {
    case Event::Kind::End:
      hasEnded_ = true;
      return std::nullopt;
    case Event::Kind::Stop:
      screen_.Suspend();
      return std::nullopt;
    case Event::Kind::Redraw:
      return std::nullopt;
    default:
      return event;
  }
}

void TerminalDesktop::RunModal(controls::Form& form) {
  int refusals = 0;
  while (form.IsShown()) {
    if (hasEnded_) {
      if (refusals == text::kMaxRefusals) return;
      if (!form.CloseByUser()) ++refusals;
      continue;
    }
    LookAtCurrentCell(form);
    Compose();
    if (!screen_.HasWaiting()) screen_.Show(composed_);
    const auto event = NextEvent();
    if (!event) continue;
    if (event->kind == Event::Kind::Mouse) {
      HandleMouse(form, *event);
    } else if (event->kind == Event::Kind::Paste) {
      HandlePaste(form, event->text);
    } else {
      HandleKey(form, *event);
    }
  }
}

void TerminalDesktop::Closed(controls::Form& form) {
  fittings_.erase(&form);
  for (const controls::Control* control : form.Controls()) scrolled_.erase(control);
  lookedAt_ = {};
}

}  // namespace terminal
