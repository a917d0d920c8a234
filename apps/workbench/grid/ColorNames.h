#pragma once

#include <QColor>
#include <QIcon>
#include <QString>
#include <optional>
#include <span>

#include "cardwright/platform/Color.h"

namespace cardwright::workbench {

/// A colour that follows the user's desktop.
struct NamedColor {
  OleColor color;
  const char* name;
};
std::span<const NamedColor> SystemColors() noexcept;

/// "Window text" for a system colour, "#FF8000" for any other.
QString ColorName(OleColor color);
/// What ColorName gives, a colour's English name, or a number as projects hold it; none for anything else.
std::optional<OleColor> ColorOf(const QString& name);
/// A small sample.
QIcon ColorSample(OleColor color);

}  // namespace cardwright::workbench
