// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "cardwright/automation/Text.h"

namespace cardwright::qt {

/// @name Texts across the border to the toolkit. Both sides are UTF-16, so nothing is lost either way.
/// @{
inline QString ToQString(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}
inline std::u16string_view ViewOf(QStringView text) noexcept {
  return {text.utf16(), static_cast<std::size_t>(text.size())};
}
inline Text FromQString(QStringView text) { return Text(ViewOf(text)); }
/// @}

}  // namespace cardwright::qt
