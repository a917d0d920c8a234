// SPDX-License-Identifier: MIT
#include "cardwright/model/StateControl.h"

#include "cardwright/model/CommonFields.h"

namespace cardwright {

StateWidget& StateControl::Box() const {
  if (!Bound()) Raise(ErrorNumber::ObjectNotSet);
  return static_cast<StateWidget&>(*Bound());
}

Text StateControl::ReadSelected() const {
  m_Selected = Box().State() != 0 ? u"True" : u"False";
  return m_Selected;
}

// A text that is no boolean is stored, but does not change the widget.
void StateControl::ApplySelected(const Text& selected) {
  m_Selected = Trim(selected).empty() ? Text(u"False") : selected;
  BestEffort([&] { Box().SetState(ToBoolean(Variant(m_Selected)) ? 1 : 0); });
}

Variant StateControl::GetSelected(const TableControl& control) {
  return As<StateControl>(control).ReadSelected();
}

void StateControl::LetSelected(TableControl& control, const Variant& value) {
  As<StateControl>(control).ApplySelected(ToText(value));
}

void StateControl::FinishRead(const SectionReader&) { ApplySelected(m_Selected); }

}  // namespace cardwright
