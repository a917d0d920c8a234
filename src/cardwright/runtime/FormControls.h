// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

class FormInput;

/// What a form's script calls "FrmCtrls", its members global: the form's controls, and the answer of an event
/// procedure to the program.
class FormControls final : public TableObject {
 public:
  Text TypeName() const override { return u"FormControls"; }

  /// The form that the script serves from now on.
  void SetForm(Ref<Object> form) { m_Form = std::move(form); }

  /// Object of the form by its user name, error 5 where there is none; without a name the whole collection.
  Variant Controls(std::optional<Variant> name) const;
  /// False once an event procedure has refused the step that follows.
  bool Response() const noexcept { return m_Response; }
  void SetResponse(bool response) noexcept { m_Response = response; }
  /// Colour number of its parts, each 0 to 255; a part outside counts as its nearest bound.
  std::int32_t CreateColor(std::int32_t red, std::int32_t green, std::int32_t blue) const;
  /// Ends the form without checks and without writing.
  void UserCloseForm();
  /// The same as a click on the button.
  void Ok();
  void Cancel();
  /// Opens the menu that a control has of its own, as the menu key does when the control has the focus: cut,
  /// copy and paste of a text box. Returns at once, true where the control has one.
  bool ControlMenu(Ref<Object> control);
  /// Names of the constants that this object gives to scripts, a blank before each.
  Text ConstantNames() const;

 protected:
  const MemberTable& Members() const override;

 private:
  FormInput& Form() const;

  Ref<Object> m_Form;
  bool m_Response = true;
};

}  // namespace cardwright
