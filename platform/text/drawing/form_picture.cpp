#include "platform/text/drawing/form_picture.h"

#include <algorithm>

#include "platform/text/drawing/control_pictures.h"
#include "platform/text/drawing/layout.h"

namespace text {
namespace {

constexpr int kMaxColumns = 96;

int OuterWidth(const controls::Form& form) {
  int width = form.Width();
  for (const controls::Control* control : form.Controls()) {
    if (!control->Container() && control->IsShown()) width = std::max(width, control->Place().left + control->Place().width);
  }
  return width;
}

/// Explains the marks that the picture may hold.
std::string Legend(const controls::Form& form, const Surface& surface) {
  std::string legend;
  const auto explain = [&](bool used, std::string_view meaning) {
    if (used) legend.append(legend.empty() ? "" : ", ").append(meaning);
  };
  const auto any = [&](auto isMarked) {
    return std::any_of(form.Controls().begin(), form.Controls().end(), [&](const controls::Control* control) {
      return control->Kind() != controls::ControlKind::Menu && control->IsShown() && isMarked(*control);
    });
  };
  explain(any([](const controls::Control& control) { return MarkOf(control) == "»"; }), "» has the focus");
  explain(any([](const controls::Control& control) { return MarkOf(control) == "~"; }), "~ disabled");
  explain(any([&surface](const controls::Control& control) {
            const auto* grid = controls::As<controls::FlexGrid>(&control);
            const auto* list = controls::As<controls::ListView>(&control);
            return (grid && HasRedRows(*grid, surface)) || (list && HasRedLines(*list, surface));
          }),
          "! red");
  return legend;
}

}  // namespace

int TwipsPerColumn(const controls::Form& form, int columns, int min) {
  return std::max(min, OuterWidth(form) / columns);
}

Canvas DrawForm(const controls::Form& form, const Surface& surface) {
  const Canvas inside = DrawChildren(form, nullptr, surface, surface.columns);
  const std::string legend = Legend(form, surface);
  Canvas sheet;
  const int width =
      std::max({inside.Width() + 3, form.Width() / surface.twipsPerColumn + 2, Length(form.Caption()) + 6, Length(legend) + 6});
  sheet.Box(0, 0, width, inside.Height() + 2, form.Caption(), legend);
  sheet.Paste(1, 1, inside);
  return sheet;
}

std::vector<std::string> DrawForm(const controls::Form& form) {
  return DrawForm(form, Surface{.twipsPerColumn = TwipsPerColumn(form, kMaxColumns)}).Lines();
}

}  // namespace text
