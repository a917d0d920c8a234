// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTabWidget>

#include "desktop/DebugPane.h"

namespace cardwright::workbench {

/// The output of runs: that of debugging runs, and the commands sent to the host.
class OutputPane final : public QWidget {
  Q_OBJECT
 public:
  explicit OutputPane(QWidget* parent);

  /// The object that a debugging run writes to.
  const Ref<desktop::DebugPane>& Debug() const noexcept { return m_Debug; }
  QPlainTextEdit& Commands() noexcept { return *m_Commands; }
  void AddCommand(const QString& line) { m_Commands->appendPlainText(line); }
  void ShowDebug() { m_Tabs->setCurrentIndex(0); }

 private:
  void OpenMenu(QPlainTextEdit& pane, const QPoint& place);
  void Clear();

  QTabWidget* m_Tabs;
  Ref<desktop::DebugPane> m_Debug;
  QPlainTextEdit* m_Commands;
};

}  // namespace cardwright::workbench
