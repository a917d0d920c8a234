// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/HostConnection.h"

namespace cardwright {

/// @name What a debugging run prints to the debug output instead of storing values
/// @{
void PrintDebugOpening();
void PrintDebugClosing();
/// A connection that prints each command and answers nothing.
Ref<HostConnection> DebugConnection();
/// @}

}  // namespace cardwright
