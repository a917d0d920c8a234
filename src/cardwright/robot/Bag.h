#pragma once

#include "cardwright/qt/VisualControl.h"
#include "cardwright/scripting/Dictionary.h"

namespace cardwright::robot {

/// What the container of a visual control would keep for it, by name.
Ref<scripting::Dictionary> WriteBag(qt::VisualControl& control);
/// Gives a control what its container kept. A name that the bag does not have stands for the value that a new
/// control has.
void ReadBag(qt::VisualControl& control, scripting::Dictionary& bag);

}  // namespace cardwright::robot
