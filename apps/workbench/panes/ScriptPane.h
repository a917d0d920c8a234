#pragma once

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>

#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// The form's script as plain text, and its language.
class ScriptPane final : public QWidget {
  Q_OBJECT
 public:
  explicit ScriptPane(QWidget* parent);

  /// Shows the script of another project.
  void Begin(const Script& script);
  /// Shows the changed script; if it is the same, the cursor and the editor's undo steps stay.
  void Show(const Script& script);
  QPlainTextEdit& Editor() noexcept { return *m_Editor; }
  QComboBox& Language() noexcept { return *m_Language; }

 Q_SIGNALS:
  /// The user has changed it.
  void Edited(const cardwright::workbench::Script& script);

 private:
  void ShowLanguage(const Text& language);
  void OnEdit();
  void ShowPlace();

  QComboBox* m_Language;
  QLabel* m_Place;
  QPlainTextEdit* m_Editor;
  Script m_Shown;
  bool m_IsShowing = false;
};

}  // namespace cardwright::workbench
