// The late-bound face of a form: its classic members, its controls and published fields by name.

#include "base/controls/control_members.h"
#include "base/controls/form.h"
#include "base/vb/text.h"

namespace controls {

namespace {

std::shared_ptr<Form> Shared(Form& form) {
  return std::static_pointer_cast<Form>(form.shared_from_this());
}

/// The Controls collection: counts from 0, finds by index or name.
class FormControls : public late::TableObject<FormControls> {
 public:
  explicit FormControls(std::shared_ptr<Form> form) : form_(std::move(form)) {}
  std::string TypeName() const override { return "Controls"; }

  static const late::MemberTable<FormControls>& Members() {
    static const auto item = [](FormControls& self, late::Arguments& arguments) { return self.Item(arguments[0]); };
    static const late::MemberTable<FormControls> table = {
        {"Count",
         [](FormControls& self, late::Arguments&) {
           return late::Value(static_cast<std::int32_t>(self.form_->Controls().size()));
         },
         {}},
        {"Item", item, {}, 1, 1},
        {"", item, {}, 1, 1},
    };
    return table;
  }

 private:
  late::Value Item(const late::Value& which) const {
    if (which.IsText()) {
      if (Control* control = form_->FindControl(which.ToText())) return control->AsObject();
      vb::Raise(730, "Control '" + which.ToText() + "' not found");
    }
    const std::int32_t index = which.ToInt32();
    if (index < 0 || static_cast<std::size_t>(index) >= form_->Controls().size()) vb::Raise(vb::kInvalidPropertyIndex);
    return form_->Controls()[static_cast<std::size_t>(index)]->AsObject();
  }

  std::shared_ptr<Form> form_;
};

late::Value ActiveControlOf(Form& self, late::Arguments&) {
  return self.ActiveControl() ? self.ActiveControl()->AsObject() : late::ObjectPtr();
}

const late::MemberTable<Form>& FormMembers() {
  using members::Property;
  using members::ReadOnly;
  static const auto zero = [](Form&, late::Arguments&) { return late::Value(std::int32_t{0}); };
  static const late::MemberTable<Form> table = {
      ReadOnly<Form>("Name", &Form::Name),
      Property<Form>("Caption", &Form::Caption, &Form::SetCaption),
      Property<Form>("", &Form::Caption, &Form::SetCaption),
      late::Collection<Form>("Controls", [](Form& self) { return std::make_shared<FormControls>(Shared(self)); }),
      {"Count", [](Form& self, late::Arguments&) { return late::Value(static_cast<std::int32_t>(self.Controls().size())); }, {}},
      {"ActiveControl", ActiveControlOf, {}},
      Property<Form>("BackColor", &Form::BackColor, &Form::SetBackColor),
      Property<Form>("Tag", &Form::Tag, &Form::SetTag),
      Property<Form>("MousePointer", &Form::MousePointer, &Form::SetMousePointer),
      {"Width", [](Form& self, late::Arguments&) { return members::Out(self.Width()); },
       [](Form& self, late::Arguments& arguments) { self.SetSize(arguments[0].ToInt32(), self.Height()); }},
      {"Height", [](Form& self, late::Arguments&) { return members::Out(self.Height()); },
       [](Form& self, late::Arguments& arguments) { self.SetSize(self.Width(), arguments[0].ToInt32()); }},
      // The desktop places modal forms.
      {"Left", zero, {}},
      {"Top", zero, {}},
      {"hWnd", zero, {}},
      ReadOnly<Form>("Visible", &Form::IsShown),
      {"Enabled", [](Form&, late::Arguments&) { return late::Value(true); }, {}},
      Property<Form>("KeyPreview", &Form::KeyPreview, &Form::SetKeyPreview),
      {"Refresh", [](Form&, late::Arguments&) { return late::Value(); }, {}},
  };
  return table;
}

}  // namespace

late::Value Form::Invoke(std::string_view member, late::Access access, std::span<late::Value> arguments) {
  if (const auto* found = FormMembers().Find(member)) return FormMembers().Invoke(*this, name_, *found, access, arguments);
  const bool put = access == late::Access::Put || access == late::Access::PutRef;
  if (Control* control = FindControl(member)) {
    // form.control is the control; with a value or an index it is the control's default property.
    if (put || !arguments.empty()) return control->Invoke("", access, arguments);
    return control->AsObject();
  }
  for (const auto& [name, read] : fields_) {
    if (!put && arguments.empty() && vb::EqualNoCase(name, member)) return read();
  }
  late::detail::RaiseUnknownMember(name_, member);
}

bool Form::Has(std::string_view member) const {
  if (FormMembers().Find(member) || FindControl(member)) return true;
  for (const auto& field : fields_) {
    if (vb::EqualNoCase(field.first, member)) return true;
  }
  return false;
}

}  // namespace controls
