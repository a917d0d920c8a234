#pragma once

#include "cardwright/designer/FormDesigner.h"

namespace cardwright::workbench {

/// Does for an author what reading a project leaves out in the designer: controls are linked, so that their
/// lists have entries, and a combo box shows its text, be it an entry or not, so that the next saving does
/// not lose it. Returns how many controls of the project could not be read.
int CompleteReading(cardwright::FormDesigner& designer, const Text& path);

}  // namespace cardwright::workbench
