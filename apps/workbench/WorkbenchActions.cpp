// SPDX-License-Identifier: MIT
// The menus, shortcuts and tool bar of the workbench.

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

#include "workbench/Workbench.h"
#include "workbench/grid/PropertyGrid.h"
#include "workbench/panes/ControlList.h"
#include "workbench/panes/FocusKeeper.h"
#include "workbench/panes/Icons.h"
#include "workbench/panes/PaneFrame.h"
#include "workbench/panes/ToolBox.h"
#include "workbench/project/KindName.h"

namespace cardwright::workbench {
namespace {

/// In the order of their shortcuts.
constexpr const char* kPanes[] = {"paneTools",  "paneControls", "paneProperties",
                                  "paneScript", "paneData",     "paneOutput"};

}  // namespace

QAction* Workbench::AddAction(QMenu& menu, const char* name, const QString& text, const QIcon& icon,
                              const QKeySequence& keys, const std::function<void()>& run) {
  auto* action = menu.addAction(icon, text);
  action->setObjectName(QLatin1String(name));
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, [run] { run(); });
  return action;
}

QMenu& Workbench::AddMenu(const QString& title) {
  QMenu* menu = menuBar()->addMenu(title);
  m_Work.push_back(menu);
  return *menu;
}

void Workbench::MakeActions() {
  MakeFileActions();
  MakeEditActions();
  MakeFormatActions();
  MakeDataActions();
  MakeViewActions();
  MakeToolBar();
}

void Workbench::MakeFileActions() {
  QMenu& menu = AddMenu(tr("&File"));
  AddAction(menu, "mnuNew", tr("&New"), IconOf(Sign::New), QKeySequence::New, [this] { NewProject(); });
  AddAction(menu, "mnuOpen", tr("&Open…"), IconOf(Sign::Open), QKeySequence::Open,
            [this] { ChooseProject(); });
  QMenu* recent = menu.addMenu(tr("Open &Recent"));
  recent->setObjectName(QStringLiteral("mnuRecent"));
  connect(recent, &QMenu::aboutToShow, this, [this, recent] { FillRecentMenu(*recent); });
  FillRecentMenu(*recent);
  menu.addSeparator();
  AddAction(menu, "mnuSave", tr("&Save"), IconOf(Sign::Save), QKeySequence::Save, [this] { Save(); });
  AddAction(menu, "mnuSaveAs", tr("Save &As…"), {}, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
            [this] { SaveAs(); });
  menu.addSeparator();
  // Also while the menu is disabled.
  addAction(
      AddAction(menu, "mnuQuit", tr("&Quit"), {}, QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); }));
}

void Workbench::RunOnControl(void (cardwright::FormDesigner::*command)()) {
  {
    const Ref<cardwright::FormDesigner> designer(&m_Document->Designer());
    (designer.get()->*command)();
  }
  m_Document->RecordSoon();
  m_ListSoon.start(0);
}

void Workbench::MakeEditActions() {
  using D = cardwright::FormDesigner;
  QMenu& menu = AddMenu(tr("&Edit"));
  AddAction(menu, "mnuUndo", tr("&Undo"), IconOf(Sign::Undo), QKeySequence::Undo, [this] {
    const FocusKeeper keeper;
    m_Document->Undo();
  });
  AddAction(menu, "mnuRedo", tr("&Redo"), IconOf(Sign::Redo), {}, [this] {
    const FocusKeeper keeper;
    m_Document->Redo();
  })->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
  menu.addSeparator();
  AddAction(menu, "mnuCut", tr("Cu&t"), IconOf(Sign::Cut), QKeySequence::Cut,
            [this] { RunOnControl(&D::Cut); });
  AddAction(menu, "mnuCopy", tr("&Copy"), IconOf(Sign::Copy), QKeySequence::Copy,
            [this] { RunOnControl(&D::Copy); });
  AddAction(menu, "mnuPaste", tr("&Paste"), IconOf(Sign::Paste), QKeySequence::Paste, [this] {
    RunOnControl(&D::Paste);
  })->setEnabled(false);
  AddAction(menu, "mnuDelete", tr("&Delete"), IconOf(Sign::Delete), QKeySequence::Delete,
            [this] { RunOnControl(&D::Delete); });
  // Elsewhere these keys belong to a table cell or a text.
  for (const char* name : {"mnuCut", "mnuCopy", "mnuPaste", "mnuDelete"}) {
    QAction* action = Action(QLatin1String(name));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_Stage->addAction(action);
    m_List->addAction(action);
  }
  menu.addSeparator();
  QMenu* insert = menu.addMenu(tr("&Insert Control"));
  for (const ClassTable* kind : ControlClasses()) {
    QAction* action = insert->addAction(IconOf(kind->type), KindName(kind->type));
    connect(action, &QAction::triggered, this, [this, type = kind->type] { m_Document->Insert(type); });
  }
}

void Workbench::MakeFormatActions() {
  using D = cardwright::FormDesigner;
  QMenu& menu = AddMenu(tr("F&ormat"));
  AddAction(menu, "mnuForeground", tr("Bring to &Front"), IconOf(Sign::Front),
            QKeySequence(Qt::CTRL | Qt::Key_J), [this] { RunOnControl(&D::SetForeground); });
  AddAction(menu, "mnuBackground", tr("Send to &Back"), IconOf(Sign::Back),
            QKeySequence(Qt::CTRL | Qt::Key_K), [this] { RunOnControl(&D::SetBackground); });
  menu.addSeparator();
  AddAction(menu, "mnuCenterAcross", tr("Centre &Across"), IconOf(Sign::CenterAcross),
            QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_H), [this] { RunOnControl(&D::CenterLeft); });
  AddAction(menu, "mnuCenterDown", tr("Centre &Down"), IconOf(Sign::CenterDown),
            QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_V), [this] { RunOnControl(&D::CenterTop); });
  menu.addSeparator();
  // The designer decides what is checked: it has no lock for a form without controls.
  QAction* lock = AddAction(menu, "mnuLock", tr("&Lock Controls"), IconOf(Sign::Lock),
                            QKeySequence(Qt::CTRL | Qt::Key_L), [this] {
                              QAction* action = Action(QStringLiteral("mnuLock"));
                              action->setChecked(!action->isChecked());
                              m_Document->Designer().LockUnlock();
                            });
  lock->setCheckable(true);
  menu.addSeparator();
  QAction* snap = AddAction(menu, "mnuSnap", tr("&Snap to Grid"), {}, {}, [this] {
    m_Document->Designer().SetGridAlignment(Action(QStringLiteral("mnuSnap"))->isChecked());
  });
  snap->setCheckable(true);
  connect(&menu, &QMenu::aboutToShow, snap,
          [this, snap] { snap->setChecked(m_Document->Designer().GridAlignment()); });
  snap->setChecked(true);
  QAction* grid = AddAction(menu, "mnuGrid", tr("Show &Grid"), IconOf(Sign::Grid),
                            QKeySequence(Qt::CTRL | Qt::Key_G), [this] {
                              m_IsGridShown = Action(QStringLiteral("mnuGrid"))->isChecked();
                              UpdateGrid();
                            });
  grid->setCheckable(true);
  grid->setChecked(true);
  AddAction(menu, "mnuGridStep", tr("Grid St&ep…"), {}, {}, [this] { ChooseGridStep(); });
}

void Workbench::ChooseGridStep() {
  bool isChosen = false;
  const int step = QInputDialog::getInt(this, tr("Grid"), tr("Pixels from point to point:"), m_GridPixels, 2,
                                        64, 1, &isChosen);
  if (!isChosen) return;
  m_GridPixels = step;
  UpdateGrid();
}

void Workbench::MakeDataActions() {
  QMenu& menu = AddMenu(tr("&Data"));
  AddAction(menu, "mnuOpenData", tr("&Open Data Source…"), IconOf(Sign::Data),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O), [this] { ChooseData(); });
  AddAction(menu, "mnuOpenFolder", tr("Open Fo&lder…"), {}, {}, [this] { ChooseDataFolder(); });
  AddAction(menu, "mnuConnect", tr("&Connect…"), {}, {}, [this] { ConnectData(); });
  QMenu* recent = menu.addMenu(tr("Open &Recent"));
  recent->setObjectName(QStringLiteral("mnuRecentData"));
  connect(recent, &QMenu::aboutToShow, this, [this, recent] { FillRecentDataMenu(*recent); });
  FillRecentDataMenu(*recent);
  menu.addSeparator();
  QMenu* themes = menu.addMenu(tr("&Theme of the Form"));
  themes->setObjectName(QStringLiteral("mnuThemes"));
  connect(themes, &QMenu::aboutToShow, this, [this, themes] { FillThemeMenu(*themes); });
  FillThemeMenu(*themes);
  menu.addSeparator();
  AddAction(menu, "mnuFill", tr("&Fill In"), IconOf(Sign::Fill), QKeySequence(Qt::CTRL | Qt::Key_R), [this] {
    Fill(RunKind::Fill);
  })->setToolTip(tr("Fill in the form for the chosen feature"));
  AddAction(menu, "mnuFillNew", tr("Fill In as &New"), {}, {}, [this] {
    Fill(RunKind::FillNew);
  })->setToolTip(tr("Fill in the form as for a feature just made: its values are not loaded"));
  AddAction(menu, "mnuDebug", tr("&Debug Run"), IconOf(Sign::Debug),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R), [this] { Fill(RunKind::Debug); })
      ->setToolTip(tr("Fill in the form; what would be stored is only shown"));
}

void Workbench::MakeViewActions() {
  QMenu& menu = *menuBar()->addMenu(tr("&View"));
  int number = 1;
  for (const char* name : kPanes) {
    QDockWidget* dock = m_Panes[QLatin1String(name)];
    QAction* show = menu.addAction(tr("&%1 %2").arg(number).arg(dock->windowTitle()));
    show->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + number)));
    connect(show, &QAction::triggered, dock, [dock] {
      dock->show();
      dock->raise();
      static_cast<const PaneFrame*>(dock->widget())->Pane().setFocus(Qt::ShortcutFocusReason);
    });
    ++number;
  }
  AddAction(menu, "mnuForm", tr("&Form"), {}, QKeySequence(Qt::ALT | Qt::Key_0),
            [this] { m_Stage->Designer().setFocus(Qt::ShortcutFocusReason); });
  menu.addSeparator();
  for (const char* name : kPanes) {
    const QDockWidget* dock = m_Panes[QLatin1String(name)];
    QAction* toggle = dock->toggleViewAction();
    toggle->setText(tr("Show %1").arg(dock->windowTitle()));
    menu.addAction(toggle);
  }
  menu.addSeparator();
  AddAction(menu, "mnuProps", tr("Pr&operties of the Selected Control"), {}, QKeySequence(Qt::Key_F4),
            [this] { m_Grid->EditRow(QString()); });
}

void Workbench::MakeToolBar() {
  m_Bar = addToolBar(tr("Commands"));
  m_Bar->setObjectName(QStringLiteral("barCommands"));
  m_Bar->setMovable(false);
  m_Bar->setIconSize(IconSize(fontMetrics()));
  m_Work.push_back(m_Bar);
  for (const char* name : {"mnuNew",
                           "mnuOpen",
                           "mnuSave",
                           "",
                           "mnuUndo",
                           "mnuRedo",
                           "",
                           "mnuCut",
                           "mnuCopy",
                           "mnuPaste",
                           "mnuDelete",
                           "",
                           "mnuForeground",
                           "mnuBackground",
                           "mnuCenterAcross",
                           "mnuCenterDown",
                           "mnuLock",
                           "mnuGrid",
                           "",
                           "mnuOpenData",
                           "mnuFill",
                           "mnuDebug"}) {
    if (*name == '\0') {
      m_Bar->addSeparator();
    } else {
      m_Bar->addAction(Action(QLatin1String(name)));
    }
  }
}

}  // namespace cardwright::workbench
