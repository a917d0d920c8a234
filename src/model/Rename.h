#pragma once

#include "automation/Collection.h"
#include "model/IControl.h"

namespace cardwright {

/// Moves the control to the end of the collection under its new name; one that is not in the collection, as
/// while it is being pasted, stays out. The control itself keeps its name.
void RenameInCollection(Collection& controls, IControl& control, const Text& newName);

}  // namespace cardwright
