// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace cardwright::workbench {

/// Restores the keyboard focus: selecting a control moves it to the surface, which would disturb a user who
/// works in a list or in the grid.
class FocusKeeper {
 public:
  FocusKeeper() : m_Focus(QApplication::focusWidget()) {}
  ~FocusKeeper() {
    if (m_Focus && m_Focus->isVisible() && m_Focus != QApplication::focusWidget())
      m_Focus->setFocus(Qt::OtherFocusReason);
  }
  FocusKeeper(const FocusKeeper&) = delete;
  FocusKeeper& operator=(const FocusKeeper&) = delete;

 private:
  QPointer<QWidget> m_Focus;
};

}  // namespace cardwright::workbench
