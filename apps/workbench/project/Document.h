// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include "workbench/project/FormStage.h"
#include "workbench/project/History.h"
#include "workbench/project/Typing.h"

namespace cardwright::workbench {

/// The open project: its designer, its script, its file, and its states since it was opened.
class Document final : public QObject {
  Q_OBJECT
 public:
  explicit Document(FormStage& stage, QObject* parent = nullptr);

  cardwright::FormDesigner& Designer() const noexcept { return *m_Designer; }

  void New();
  /// Opens a project. Returns why it could not be read, or "". After a failure the former project stays open.
  QString Open(const QString& path);
  /// Opens the file `work` as unsaved changes of the project `path` ("" for one without a file).
  QString OpenUnsaved(const QString& work, const QString& path);
  /// Saves the project. Returns why it could not be saved, or "".
  QString Save(const QString& path);
  /// Absolute path of the project's file; "" if it has none.
  const QString& Path() const noexcept { return m_Path; }
  /// A warning about the project just opened, or "".
  const QString& Notice() const noexcept { return m_Notice; }

  bool IsModified() const noexcept { return !m_History.IsSaved(); }
  bool IsEmpty() const;
  bool CanUndo() const noexcept { return m_History.CanUndo(); }
  bool CanRedo() const noexcept { return m_History.CanRedo(); }
  void Undo();
  void Redo();

  const Script& GetScript() const noexcept { return m_Script; }
  void SetScript(const Script& script);

  /// The project as its file would be now; empty for a form without controls.
  QByteArray Bytes() const;
  /// A file with the current project, for a run: its own file if it is saved.
  QString RunFile() const;
  /// Adds the current state to the history if it differs from the last one.
  void RecordNow();
  /// The same after a short pause, so that the changes of one action become one step.
  void RecordSoon();
  /// Sets script and scale of the thread again, after another form has used them.
  void RestoreModuleState();

  /// Adds a control without drawing, in the selected frame or on the form.
  void Insert(ControlTypeEnum type);

 Q_SIGNALS:
  /// The stage has another designer.
  void Replaced();
  /// Another project was opened.
  void ProjectOpened();
  /// The project has changed, or whether it is saved, or what can be undone.
  void Changed();
  void Selected(cardwright::IControl* control);
  /// A property of the selected control has a new value.
  void RowChanged(int row);
  /// The designer has returned to the selection tool.
  void DrawingEnded();
  void MenuChanged(const QString& name, bool enabled);
  void Locked(bool locked);
  void PropertiesRequested();
  /// A control, or the form, was double-clicked.
  void EventRequested(cardwright::IControl* control);
  /// The surface was resized.
  void Resized();

 private:
  void UseNewDesigner();
  void Connect();
  void OnDesignerEvent(std::u16string_view event, Args args);
  void OnChangeEvent(std::u16string_view event, Args args);
  QString Read(const QString& path);
  bool WriteTo(const QString& path, const Script& script) const;
  QByteArray BytesWith(const Script& script) const;
  ProjectState StateNow() const;
  void OnQuiet();
  void RecordForm();
  void RecordTyping();
  void Restore(const ProjectState& state);
  bool Load(const QString& path);
  void RestoreForm(const ProjectState& state);
  void SelectByName(const Text& name);
  void Step(const ProjectState& (History::*step)());
  void GoTo(const ProjectState& state);
  void Begin(bool isSaved);
  Ref<IControl> Form() const;
  void OnDoubleClick();
  void OnRightPress();
  bool eventFilter(QObject* object, QEvent* event) override;

  FormStage& m_Stage;
  Ref<cardwright::FormDesigner> m_Designer;
  QTemporaryDir m_Folder;
  QTimer m_RecordTimer;
  History m_History;
  Typing m_Typing;
  Script m_Script;
  QString m_Path;
  QString m_Notice;
  bool m_IsLoading = false;
  bool m_HasUnrecordedChange = false;  // of the form
  bool m_IsTyping = false;             // an unrecorded change of the script alone
  bool m_IsLocked = false;
};

}  // namespace cardwright::workbench
