// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>
#include <QString>
#include <optional>
#include <span>

#include "cardwright/platform/Color.h"

namespace cardwright::workbench {

/// A colour of the user's desktop theme.
struct NamedColor {
  OleColor color;
  const char* name;
};
std::span<const NamedColor> SystemColors() noexcept;

/// "Window text" for a system colour, "#FF8000" for any other.
QString ColorName(OleColor color);
/// Accepts a result of ColorName, an English colour name, or a number as in projects; none for anything else.
std::optional<OleColor> ColorOf(const QString& name);
/// A small sample of the colour.
QIcon ColorSample(OleColor color);

}  // namespace cardwright::workbench
