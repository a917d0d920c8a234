#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace cardwright::workbench {

/// Gives the keyboard focus back to who had it, if it is still there: selecting a control puts it on the
/// surface, and a person who works in a list or in the grid by keyboard would lose the place.
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
