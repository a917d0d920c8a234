// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

#include "cardwright/platform/Font.h"

class QWidget;

namespace cardwright::qt {

/// Lets a user choose a font, from the present one on; none where it was cancelled or the dialog ended with
/// its window. A present family that is not installed keeps its name unless another one is chosen, and a size
/// that the dialog rounds stays as it is unless another one is chosen.
std::optional<FontValues> ChooseFont(QWidget& owner, const QString& title, const FontValues& present);

}  // namespace cardwright::qt
