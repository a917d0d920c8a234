// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "cardwright/model/IControl.h"

class QWidget;

namespace cardwright::qt {

/// Gives the controls of a form that is filled in the names that screen readers read out: all controls, or
/// the one that is, or contains, the widget `only`.
///
/// A control with a caption is known by it. Another one has its name from a label in the same container: the
/// one whose text ends to the left of it in its row, with nothing in between, or else the one whose text ends
/// above it, by no more than a line. Without either it has the name that its author gave it. A part that
/// names its value, such as a colour, gets the control's name as its description.
void SetAccessibleNames(std::span<const Ref<IControl>> controls, const QWidget* only = nullptr);

}  // namespace cardwright::qt
