// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/VisualControl.h"
#include "cardwright/scripting/Dictionary.h"

namespace cardwright::robot {

/// The persistent properties of a visual control, as it writes them to its container's property bag.
Ref<scripting::Dictionary> WriteProperties(qt::VisualControl& control);
/// Restores a control's persistent properties. A missing name means the default value.
void ReadProperties(qt::VisualControl& control, scripting::Dictionary& values);

}  // namespace cardwright::robot
