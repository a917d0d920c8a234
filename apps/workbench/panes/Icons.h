#pragma once

#include <QFontMetrics>
#include <QIcon>

#include "cardwright/model/Enums.h"

namespace cardwright::workbench {

/// What a picture of the workbench stands for, beside the kinds of control.
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

/// @name Pictures drawn in lines at whatever size is asked for, in the colours of the text beside them, so
/// that they are readable at any scale and on dark ground.
/// @{
QIcon IconOf(Sign sign);
QIcon IconOf(ControlTypeEnum kind);
/// As large as the text beside them needs.
inline QSize IconSize(const QFontMetrics& text) {
  const int side = qMax(20, text.height() + 4);
  return {side, side};
}
/// @}

}  // namespace cardwright::workbench
