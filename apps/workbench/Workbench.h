// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <map>
#include <vector>

#include "desktop/DataSource.h"
#include "desktop/FormWindow.h"
#include "workbench/Recovery.h"
#include "workbench/grid/Choices.h"
#include "workbench/project/Document.h"

class QActionGroup;
class QToolBar;

namespace cardwright::workbench {

class ControlList;
class FeaturePane;
class OutputPane;
class PropertyGrid;
class ScriptPane;
class ToolBox;

/// The window in which an author draws forms: the form in the middle, and around it tool box, list of
/// controls, property grid, script, data and output.
class Workbench final : public QMainWindow, private Choices {
  Q_OBJECT
 public:
  explicit Workbench(desktop::DataSource& source);
  ~Workbench() override;

  /// Opens a project, and offers unsaved changes of it after a crash. Returns false, after a message, if it
  /// cannot be read.
  bool OpenProject(const QString& path);
  /// Opens a data source. Returns false, after a message, if it cannot be opened.
  bool OpenData(const QString& source);
  /// Offers unsaved changes after a crash; true if the user has taken them.
  bool OfferLeftWork();

  Document& Project() noexcept { return *m_Document; }
  FormStage& Stage() noexcept { return *m_Stage; }
  ToolBox& Tools() noexcept { return *m_Tools; }
  PropertyGrid& Grid() noexcept { return *m_Grid; }
  ControlList& List() noexcept { return *m_List; }
  ScriptPane& Script() noexcept { return *m_Script; }
  FeaturePane& Features() noexcept { return *m_Features; }
  OutputPane& Output() noexcept { return *m_Output; }
  /// The window of the form that is being filled in; null if there is none.
  desktop::FormWindow* Run() const noexcept { return m_Run; }
  /// An action by its object name.
  QAction* Action(const QString& name) const { return findChild<QAction*>(name); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// @name Set-up
  /// @{
  void MakePanes();
  void MakeActions();
  void MakeFileActions();
  void MakeEditActions();
  void MakeFormatActions();
  void MakeDataActions();
  void MakeViewActions();
  void MakeToolBar();
  void ConnectDocument();
  void ConnectPanes();
  QAction* AddAction(QMenu& menu, const char* name, const QString& text, const QIcon& icon,
                     const QKeySequence& keys, const std::function<void()>& run);
  QMenu& AddMenu(const QString& title);
  QDockWidget* AddPane(const char* name, const QString& title, QWidget* pane, Qt::DockWidgetArea area);
  void ProposeLayout();
  void RestoreLayout();
  void SaveLayout() const;
  /// @}

  /// @name Projects
  /// @{
  void NewProject();
  void ChooseProject();
  bool Save();
  bool SaveAs();
  bool SaveTo(const QString& path);
  /// Saves or discards unsaved changes, as the user says; false if the user cancels.
  bool MayLeave();
  /// Remembers the project just opened, and shows the messages about it.
  void NoteOpened();
  void FillRecentMenu(QMenu& menu);
  bool Offer(const LeftWork& work);
  void KeepWork();
  /// @}

  /// @name What the panes show
  /// @{
  void ShowState();
  void ShowTitle();
  void ShowList();
  void ShowSelection(const Ref<IControl>& control);
  void ShowCommands();
  void UpdateGrid();
  void ShowMessage(const QString& text);
  /// @}

  /// @name Commands
  /// @{
  void Select(IControl* control);
  void RunOnControl(void (cardwright::FormDesigner::*command)());
  void ChooseGridStep();
  /// The folder in which dialogs for data start.
  QString DataFolder() const;
  void ChooseData();
  void ChooseDataFolder();
  void ConnectData();
  void FillRecentDataMenu(QMenu& menu);
  void FillThemeMenu(QMenu& menu);
  void BindTo(const QString& theme);
  enum class RunKind { Fill, FillNew, Debug };
  void Fill(RunKind kind);
  bool StartRun(const QString& theme, const QString& id, RunKind kind);
  void ShowRun();
  void EndRun();
  /// Closes the form that is being filled in if the user agrees; the workbench closes after it.
  void LeaveRun();
  /// Disables everything except the output while a form is being filled in.
  void AllowWork(bool allow);
  /// @}

  QStringList Themes() const override;
  QStringList Attributes() const override;
  QString Folder() const override;

  desktop::DataSource& m_Data;
  FormStage* m_Stage;
  Document* m_Document;
  ToolBox* m_Tools = nullptr;
  ControlList* m_List = nullptr;
  PropertyGrid* m_Grid = nullptr;
  ScriptPane* m_Script = nullptr;
  FeaturePane* m_Features = nullptr;
  OutputPane* m_Output = nullptr;
  QToolBar* m_Bar = nullptr;
  std::map<QString, QDockWidget*> m_Panes;
  std::vector<QWidget*> m_Work;  // disabled while a form is being filled in
  QTimer m_ListSoon;
  QTimer m_KeepSoon;
  Recovery m_Recovery;
  QPointer<desktop::FormWindow> m_Run;
  QPointer<QWidget> m_FocusBefore;       // the run
  std::map<QString, bool> m_MenuStates;  // the state of the designer's menu
  bool m_IsGridShown = true;
  int m_GridPixels = 8;
};

}  // namespace cardwright::workbench
