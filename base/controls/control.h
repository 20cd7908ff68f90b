#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/colors.h"
#include "base/controls/event.h"
#include "base/controls/keys.h"
#include "base/late/object.h"

namespace controls {

class ControlVisitor;
class Form;

enum class ControlKind {
  TextBox,
  ComboBox,
  OptionButton,
  CheckBox,
  CommandButton,
  Label,
  Frame,
  PictureBox,
  ListView,
  FlexGrid,
  TabControl,
  Menu
};

/// What changed of a control, for the desktop that shows it.
enum class Aspect { Text, Enabled, Visible, Position, Items, Selection, Colors, ToolTip, Layout };

/// What sticks to the form's edges when a resizable form grows.
enum Anchor { kAnchorLeft = 1, kAnchorTop = 2, kAnchorRight = 4, kAnchorBottom = 8 };

/// A position in twips (1440 per inch), relative to the container.
struct Position {
  int left = 0, top = 0, width = 0, height = 0;
};

/// A control as a plain model: properties and events with their classic names, no window. Touching a property of an unloaded
/// form's control loads the form. Controls are data members of their form; as late-bound objects they keep the form alive.
class Control : public late::Object {
 public:
  Control(Form& form, ControlKind kind, std::string name);
  ~Control() override;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }
  /// This control as a late-bound object that shares the form's ownership (the form is held by a shared_ptr).
  late::ObjectPtr AsObject();

  bool Enabled() const { return Loaded().enabled_; }
  void SetEnabled(bool enabled);
  /// The property itself; see IsShown for what a person sees.
  bool Visible() const { return Loaded().visible_; }
  void SetVisible(bool visible);
  /// Visible with all its containers, on the current page of its tab; a menu's entry with the menus above it.
  bool IsShown() const;
  /// Enabled with all its containers; a menu's entry with the menus above it.
  bool AcceptsInput() const;
  /// Shown, enabled with all its containers, and of a kind that takes the focus.
  bool CanFocus() const;
  const std::string& Tag() const { return Loaded().tag_; }
  void SetTag(std::string tag);
  const std::string& ToolTipText() const { return Loaded().toolTip_; }
  void SetToolTipText(std::string text);
  const Position& Place() const { return Loaded().place_; }
  void Move(int left, int top, int width, int height);
  void SetLeft(int left);
  void SetTop(int top);
  void SetWidth(int width);
  void SetHeight(int height);
  int Anchors() const { return anchors_; }
  void SetAnchors(int anchors) { anchors_ = anchors; }
  int TabIndex() const { return Loaded().tabIndex_; }
  void SetTabIndex(int index) { tabIndex_ = index; }
  bool TabStop() const { return Loaded().tabStop_; }
  void SetTabStop(bool stop) { tabStop_ = stop; }
  Color ForeColor() const { return Loaded().foreColor_; }
  void SetForeColor(Color color);
  Color BackColor() const { return Loaded().backColor_; }
  void SetBackColor(Color color);
  /// 0 default, 11 hourglass.
  int MousePointer() const { return Loaded().mousePointer_; }
  void SetMousePointer(int pointer);
  bool CausesValidation() const { return causesValidation_; }
  void SetCausesValidation(bool causes) { causesValidation_ = causes; }

  /// Frame, picture box or tab page that holds this control; null is the form itself.
  Control* Container() const { return container_; }
  int Page() const { return page_; }
  void SetContainer(Control* container, int page = 0);

  /// Caption with "&" before the access key; empty for controls without one.
  virtual std::string CaptionText() const { return {}; }
  /// The access key in upper case, 0 for none ("&&" is a plain ampersand).
  char32_t AccessKey() const;

  /// Moves the focus here; error 5 when the control cannot take it. Runs validation, lost-focus and got-focus handlers.
  void SetFocus();
  bool HasFocus() const;

  Event<> GotFocus;
  Event<> LostFocus;
  Event<bool&> Validate;  ///< set true to keep the focus
  Event<> Click;
  Event<> DblClick;
  Event<int&, int> KeyDown;  ///< key code (0 swallows the key), shift state
  Event<int&> KeyPress;      ///< character (0 swallows it)
  Event<int&, int> KeyUp;
  Event<MouseButton, int> MouseDown;  ///< button, shift state
  Event<MouseButton, int> MouseUp;
  Event<> MouseMove;

  // What the control does by itself with a person's key, character or click, once the handlers let them pass.
  virtual void OnKey(int /*keyCode*/, int /*shift*/) {}
  virtual void OnCharacter(int /*character*/) {}
  virtual void ClickedByPerson() { Click.Fire(); }

  /// Calls the visitor's function for this kind of control.
  virtual void Accept(ControlVisitor& visitor) = 0;

  // Late-bound face.
  late::Value Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) override;
  bool Has(std::string_view member) const override;
  std::string TypeName() const override;

  /// Back to the state of a control just drawn in the designer; Form calls it before Design.
  virtual void Reset();

 protected:
  virtual bool TakesFocus() const { return true; }
  /// The container that hides and disables this control; null for the form.
  virtual const Control* Holder() const { return container_; }
  /// Whether a control it holds on that page can be seen.
  virtual bool ShowsPage(int) const { return true; }
  /// Loads the form on first touch.
  void EnsureLoaded() const;
  void Changed(Aspect aspect);
  /// The same for a change that may have taken the focus away from where it is.
  void ReachChanged(Aspect aspect);
  /// Members of the derived class by name; null when unknown there. See control_members.h.
  struct LateMember {
    std::string_view name;
    std::function<late::Value(Control&, late::Arguments&)> get;
    std::function<void(Control&, late::Arguments&)> put;
    int minArguments = 0;  ///< arguments that must be there (the value put not counted)
    int maxArguments = 0;  ///< arguments that may be there
  };
  virtual const LateMember* FindMember(std::string_view name) const;

 private:
  friend class Form;
  const Control& Loaded() const {
    EnsureLoaded();
    return *this;
  }

  Form& form_;
  ControlKind kind_;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  std::string tag_;
  std::string toolTip_;
  Position place_;
  int anchors_ = kAnchorLeft | kAnchorTop;
  int tabIndex_ = 0;
  int defaultTabIndex_ = 0;
  bool tabStop_ = true;
  Color foreColor_ = kWindowText;
  Color backColor_ = kWindowBackground;
  int mousePointer_ = 0;
  bool causesValidation_ = true;
  Control* container_ = nullptr;
  int page_ = 0;
};

/// The control as its own kind; null for null and for a control of another kind.
template <class Kind>
Kind* As(Control* control) {
  return control && control->Kind() == Kind::kKind ? static_cast<Kind*>(control) : nullptr;
}
template <class Kind>
const Kind* As(const Control* control) {
  return control && control->Kind() == Kind::kKind ? static_cast<const Kind*>(control) : nullptr;
}

}  // namespace controls
