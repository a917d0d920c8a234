// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/designer/FormDesigner.h"

namespace cardwright::workbench {

/// Does what reading a project in the designer leaves out: links the controls, so that their lists have
/// entries, and shows the text of each combo box even if it is not an entry, so that the next save does not
/// lose it. Returns the number of controls of the project that could not be read.
int CompleteReading(cardwright::FormDesigner& designer, const Text& path);

}  // namespace cardwright::workbench
