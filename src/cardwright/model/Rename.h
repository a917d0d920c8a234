// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/automation/Collection.h"
#include "cardwright/model/IControl.h"

namespace cardwright {

/// Moves the control to the end of the collection under its new name; one that is not in the collection, as
/// while it is being pasted, stays out. The control itself keeps its name.
void RenameInCollection(Collection& controls, IControl& control, const Text& newName);

/// Renames a control of a form, calls `renamed`, and updates the links of other controls to it. False,
/// without any change, where the object is no control, the name is blank or another control has it in any
/// case.
bool RenameControl(Collection& controls, const Ref<Object>& object, const Text& newName,
                   const std::function<void(const Text& oldName, IControl& control)>& renamed);

}  // namespace cardwright
