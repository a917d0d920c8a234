// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QIcon>

#include "cardwright/model/Enums.h"

namespace cardwright::workbench {

/// The icons of commands; the kinds of control have icons of their own.
enum class Sign {
  Pointer,
  New,
  Open,
  Save,
  Undo,
  Redo,
  Cut,
  Copy,
  Paste,
  Delete,
  Front,
  Back,
  Lock,
  CenterAcross,
  CenterDown,
  Grid,
  Data,
  Fill,
  Debug,
  Form,
};

/// @name Line icons for any size, in the colours of the text next to them, so that they are readable at any
/// scale and on dark backgrounds.
/// @{
QIcon IconOf(Sign sign);
QIcon IconOf(ControlTypeEnum kind);
/// A size that fits the text next to them.
inline QSize IconSize(const QFontMetrics& text) {
  const int side = qMax(20, text.height() + 4);
  return {side, side};
}
/// @}

}  // namespace cardwright::workbench
