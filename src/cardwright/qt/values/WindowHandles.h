// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <cstdint>
#include <unordered_map>

class QWidget;

namespace cardwright::qt {

/// 32-bit numbers for this process's widgets, as the platform numbers its windows. A native window identifier
/// would not fit, and asking for it would make a native window. A number is never used twice.
class WindowHandles {
 public:
  static WindowHandles& Instance();

  std::int32_t HandleOf(QWidget& widget);
  /// Null for a number that is no widget, or one that is gone.
  QWidget* Find(std::int32_t handle) const;

 private:
  std::unordered_map<std::int32_t, QPointer<QWidget>> m_Widgets;
  std::int32_t m_LastHandle = 0x10000;  // clear of the numbers of host connections
};

}  // namespace cardwright::qt
