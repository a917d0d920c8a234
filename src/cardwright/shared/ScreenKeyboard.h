// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright {

/// Starts the on-screen keyboard where the host has enabled it (EnableScreenKeyboard); a program that is not
/// there is ignored. Callers check that the widget takes typed text and that its form is being filled in.
/// The command line is the setting "Command" in section "ScreenKeyboard" of the application "Cardwright".
void ShowScreenKeyboard();

}  // namespace cardwright
