#pragma once

#include <QObject>

namespace cardwright::qt {

/// While it lives, nothing that a person does reaches any widget: keys, clicks and the closing of windows are
/// passed over, and timers wait. It only notes whether Break was pressed: the key Cancel, or Ctrl+Pause.
/// Windows still paint themselves.
class BreakWatch final : public QObject {
 public:
  BreakWatch();
  bool WasPressed() const noexcept { return m_WasPressed; }

 private:
  bool eventFilter(QObject* target, QEvent* event) override;

  bool m_WasPressed = false;
};

}  // namespace cardwright::qt
