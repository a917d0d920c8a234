// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <vector>

#include "cardwright/automation/Collection.h"
#include "cardwright/editor/Lexipad.h"
#include "cardwright/model/IControl.h"
#include "cardwright/qt/OrvEditor.h"
#include "cardwright/qt/editor/CodeEdit.h"
#include "workbench/panes/ScriptFaultMark.h"
#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// The form's script in the script editor, and a choice of its language.
class ScriptPane final : public QWidget {
  Q_OBJECT
 public:
  explicit ScriptPane(QWidget* parent);

  /// Shows the script of another project and the controls of its form.
  void Begin(const Script& script, const std::vector<Ref<IControl>>& controls);
  /// Shows the changed script; if it is the same, the caret and the editor's undo steps stay.
  void Show(const Script& script);
  /// Offers the controls of the form after some were added, deleted or renamed.
  void ShowControls(const std::vector<Ref<IControl>>& controls);
  /// Goes to the procedure of the event that the class of the control has first, the form's "Initialize" for
  /// a form. Writes an empty one if there is none.
  void OpenDefaultEvent(const IControl& control);

  /// Has errors of scripts in these languages underlined.
  void CheckWith(ScriptLanguages languages);
  const ScriptFaultMark& FaultMark() const noexcept { return *m_FaultMark; }

  /// The text of the script.
  QPlainTextEdit& Editor() noexcept { return *m_Edit; }
  QComboBox& Language() noexcept { return *m_Language; }
  QComboBox& Controls() const;
  QComboBox& Events() const;

 Q_SIGNALS:
  /// The user has changed it.
  void Edited(const cardwright::workbench::Script& script);

 private:
  class FocusGuard;

  void MakeLanguageChoice();
  void Load(const Script& script);
  void Replace(const Text& content);
  void ShowLanguage(const Text& language);
  void ChooseLanguage();
  void OnEdit();
  void RunKey(int key);
  bool eventFilter(QObject* object, QEvent* event) override;

  QComboBox* m_Language = nullptr;
  qt::OrvEditor* m_Editor = nullptr;
  Ref<Lexipad> m_Pad;
  qt::CodeEdit* m_Edit = nullptr;  // which the pad works on
  ScriptFaultMark* m_FaultMark = nullptr;
  const Ref<Collection> m_Controls;  // what the editor offers
  std::vector<Text> m_ControlNames;  // as it offers them
  Script m_Shown;
  bool m_IsShowing = false;
  int m_InputDepth = 0;  // events of the user that are being handled
};

}  // namespace cardwright::workbench
