#pragma once

#include <vector>

#include "designer/FormDesigner.h"

namespace cardwright::workbench {

/// The controls of a form, the front one first. What the designer keeps is the order in which they were
/// brought to the front or sent to the back.
std::vector<Ref<IControl>> FrontToBack(const cardwright::FormDesigner& designer);
/// The widget that holds a control; null for the form's surface.
const Widget* ContainerOf(const IControl& control);

}  // namespace cardwright::workbench
