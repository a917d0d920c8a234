// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// Names of the procedures of a script, as its engine reports them. The script's own statements run for it,
/// for a moment at most, with nothing of the form and no boxes. Fails as the engine does where the script
/// does not compile.
std::vector<Text> ProceduresOfScript(std::u16string_view language, std::u16string_view script);

}  // namespace cardwright
