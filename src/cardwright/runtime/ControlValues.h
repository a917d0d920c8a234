#pragma once

#include "cardwright/model/Control.h"
#include "cardwright/runtime/CAttrib.h"

namespace cardwright {

/// @name How the value of a feature attribute meets each class of control.
/// @{
/// Holds what can be typed to the attribute's length and kind, in controls that take typed text.
void LimitInput(Control& control, const CAttrib& attrib);
/// Shows the host's reply in the control; of option buttons, in the one of its group that stands for the
/// reply.
void ShowReply(const Collection& controls, Control& control, const CAttrib& attrib, const Text& reply);
/// Whether the choices of a control depend on what others of the form show.
bool FollowsOthers(const Control& control);
/// Puts the text for the attribute into `value`; false where the control writes nothing. A list box without a
/// selection leaves `value` as it is.
bool TakeValue(Control& control, Text& value);
/// @}

/// What the check of required fields looks at; a control of a kind that it does not know leaves `value` as it
/// is.
void TakeRequiredValue(Control& control, Text& value);

}  // namespace cardwright
