// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Text.h"

namespace cardwright {

class FormInput;

/// Composes the form's program, gives it to the thread's script engine and runs `Main`. False where there is
/// nothing to run, no connection or no engine; a failure on the way is shown to the user and does not change
/// the answer.
bool RunScript(FormInput& form, const Text& script, const Text& language, bool debug);

/// Runs an event procedure of the script that the thread read last. False without a connection and where the
/// procedure refused the step that follows; true where there is no such procedure, and where it failed, which
/// is shown to the user.
bool RunEvent(const Text& procedure);

}  // namespace cardwright
