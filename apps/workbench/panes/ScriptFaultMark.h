// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <vector>

#include "cardwright/platform/ScriptLanguages.h"
#include "cardwright/qt/editor/CodeEdit.h"
#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// Underlines the first error of a script shortly after the last key, with the engine's message as a tooltip.
/// The script is compiled as a form runs it, but not run.
class ScriptFaultMark final : public QObject {
  Q_OBJECT
 public:
  explicit ScriptFaultMark(qt::CodeEdit& edit);

  /// The languages whose scripts are checked, none at first.
  void SetLanguages(ScriptLanguages languages) { m_Languages = std::move(languages); }
  /// Checks a script, in which each of the form's controls is a variable of its name.
  void CheckSoon(const Script& script, const std::vector<Text>& controlNames);
  /// The message of the error that is underlined, or "".
  const QString& Message() const noexcept { return m_Message; }

 private:
  void Check();
  void Show(int line, int column, const QString& message);
  bool eventFilter(QObject* object, QEvent* event) override;

  qt::CodeEdit& m_Edit;
  ScriptLanguages m_Languages{};
  Script m_Script;
  std::vector<Text> m_ControlNames;
  QTimer m_Timer;
  QTextCursor m_Marked;
  QString m_Message;
};

}  // namespace cardwright::workbench
