// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/designer/FormDesigner.h"

namespace cardwright::workbench {

/// The controls of a form, the front one first. The designer itself only keeps the order in which they were
/// brought to the front or sent to the back.
std::vector<Ref<IControl>> FrontToBack(const cardwright::FormDesigner& designer);
/// The container of a control; null for the form's surface.
const Widget* ContainerOf(const IControl& control);
/// Moves the contents of a frame after it in the collection, in their order. A renamed control goes to the
/// end there, and a project in which a frame comes after its contents loses them when it is read.
void MoveContentsAfter(Collection& controls, const IControl& frame);

}  // namespace cardwright::workbench
