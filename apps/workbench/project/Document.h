#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include "workbench/project/FormStage.h"
#include "workbench/project/History.h"
#include "workbench/project/Typing.h"

namespace cardwright::workbench {

/// The project on the stage: its file, its script, and all states it went through since it was opened.
class Document final : public QObject {
  Q_OBJECT
 public:
  explicit Document(FormStage& stage, QObject* parent = nullptr);

  cardwright::FormDesigner& Designer() const noexcept { return *m_Designer; }

  void New();
  /// Shows a project; why it could not be read, or "". What was shown stays then.
  QString Open(const QString& path);
  /// Shows what the file `work` holds as unsaved work on the project `path` ("" for one without a file).
  QString OpenWork(const QString& work, const QString& path);
  /// Saves; why it could not be done, or "".
  QString Save(const QString& path);
  /// Complete path of the project's file; "" while it has none.
  const QString& Path() const noexcept { return m_Path; }
  /// What a person should know about the project just opened; "" where there is nothing.
  const QString& Remark() const noexcept { return m_Remark; }

  bool IsModified() const noexcept { return !m_History.IsSaved(); }
  bool IsEmpty() const;
  bool CanUndo() const noexcept { return m_History.CanUndo(); }
  bool CanRedo() const noexcept { return m_History.CanRedo(); }
  void Undo();
  void Redo();

  const Script& GetScript() const noexcept { return m_Script; }
  void SetScript(const Script& script);

  /// The project as it stands, as it is saved; empty for a form without controls.
  QByteArray Bytes() const;
  /// A file with the project as it stands, for a run: its own where it is saved.
  QString RunFile() const;
  /// Takes the state of now into the history if it differs from the last one.
  void NoteNow();
  /// The same soon, once the present step is done.
  void NoteSoon();
  /// Makes script and scale those of the thread again, after another form had it.
  void Reclaim();

  /// Adds a control of a kind where a person has not drawn one: in the selected frame or on the form.
  void Insert(ControlTypeEnum kind);

 Q_SIGNALS:
  /// Another designer stands on the stage.
  void Replaced();
  /// What is on the stage is another project than before.
  void Begun();
  /// What the project holds has changed, or whether it is saved, or what can be undone.
  void Changed();
  void Selected(cardwright::IControl* control);
  /// A row of the selected control has a new value.
  void RowChanged(int row);
  /// The kind to draw is none any more.
  void DrawingEnded();
  void MenuChanged(const QString& name, bool enabled);
  void Locked(bool locked);
  void PropertiesWanted();
  /// The surface has another size.
  void Resized();

 private:
  void Adopt();
  void Connect();
  void OnDesignerEvent(std::u16string_view event, Args args);
  void OnChangeEvent(std::u16string_view event, Args args);
  QString Read(const QString& path);
  bool WriteTo(const QString& path, const Script& script) const;
  QByteArray BytesWith(const Script& script) const;
  ProjectState StateNow() const;
  void OnQuiet();
  void TakeForm();
  void TakeTyped();
  void Restore(const ProjectState& state);
  bool Load(const QString& path);
  void RestoreForm(const ProjectState& state);
  void SelectByName(const Text& name);
  void Go(const ProjectState& (History::*step)());
  void GoTo(const ProjectState& state);
  void Begin(bool isSaved);
  Ref<IControl> Form() const;
  bool eventFilter(QObject* object, QEvent* event) override;

  FormStage& m_Stage;
  Ref<cardwright::FormDesigner> m_Designer;
  QTemporaryDir m_Folder;
  QTimer m_Soon;
  History m_History;
  Typing m_Typing;
  Script m_Script;
  QString m_Path;
  QString m_Remark;
  bool m_IsLoading = false;
  bool m_IsChanging = false;  // a change is under way that the history does not have yet
  bool m_IsTyping = false;    // the same of the script, while the form is as the history has it
  bool m_IsLocked = false;
};

}  // namespace cardwright::workbench
