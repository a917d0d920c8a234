// SPDX-License-Identifier: MIT
#include "workbench/Workbench.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "workbench/Preferences.h"
#include "workbench/grid/PropertyGrid.h"
#include "workbench/panes/ControlList.h"
#include "workbench/panes/FeaturePane.h"
#include "workbench/panes/FocusKeeper.h"
#include "workbench/panes/Icons.h"
#include "workbench/panes/OutputPane.h"
#include "workbench/panes/PaneFrame.h"
#include "workbench/panes/ScriptPane.h"
#include "workbench/panes/ToolBox.h"
#include "workbench/project/KindName.h"

namespace cardwright::workbench {
namespace {

constexpr int kMessageTime = 8000;  // milliseconds for a message in the status bar
constexpr int kKeepAfter = 3000;    // milliseconds until unsaved changes are kept
constexpr int kLayoutVersion = 1;

QWidget* NativeOf(const IControl& control) {
  const Ref<Object> bound = control.BoundObject();
  const auto* core = dynamic_cast<const qt::WidgetCore*>(bound.get());
  return core ? core->Native() : nullptr;
}

}  // namespace

Workbench::Workbench(desktop::DataSource& source)
    : m_Data(source), m_Stage(new FormStage(this)), m_Document(new Document(*m_Stage, this)) {
  setWindowIcon(IconOf(Sign::Form));
  setAcceptDrops(true);
  setDockNestingEnabled(true);
  auto* stage = new PaneFrame(*m_Stage, m_Stage->Title(), this);
  setCentralWidget(stage);
  m_Work.push_back(stage);
  m_ListSoon.setSingleShot(true);
  m_KeepSoon.setSingleShot(true);
  m_KeepSoon.setInterval(kKeepAfter);
  connect(&m_ListSoon, &QTimer::timeout, this, &Workbench::ShowList);
  connect(&m_KeepSoon, &QTimer::timeout, this, &Workbench::KeepWork);
  MakePanes();
  MakeActions();
  ConnectDocument();
  ConnectPanes();
  const Preferences preferences;
  m_GridPixels = qBound(2, preferences.value(QStringLiteral("GridStep"), 8).toInt(), 64);
  m_Document->Designer().SetGridAlignment(preferences.value(QStringLiteral("SnapToGrid"), true).toBool());
  constexpr QSize kFrame(16, 48);  // the window frame of the desktop
  resize(QSize(1280, 860).boundedTo(screen()->availableSize() - kFrame));
  ProposeLayout();
  RestoreLayout();
  statusBar()->setSizeGripEnabled(false);
  ShowSelection(m_Document->Designer().CurrentControl());
  m_Script->Begin(m_Document->GetScript(), ControlsOf(m_Document->Designer().Controls()));
  UpdateGrid();
  ShowList();
  ShowState();
}

Workbench::~Workbench() {
  // A run refers to the data source and the panes.
  delete m_Run.data();
  if (m_Data.IsOpen()) m_Data.Log().onLine = nullptr;
  // The panes are destroyed later, and an open editor still emits signals then.
  for (QObject* part : findChildren<QObject*>()) part->disconnect(this);
}

QDockWidget* Workbench::AddPane(const char* name, const QString& title, QWidget* pane,
                                Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(title, this);
  dock->setObjectName(QLatin1String(name));
  dock->setWidget(new PaneFrame(*pane, *pane, dock));
  addDockWidget(area, dock);
  m_Panes[QLatin1String(name)] = dock;
  return dock;
}

void Workbench::MakePanes() {
  setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
  m_Tools = new ToolBox(this);
  m_List = new ControlList(this);
  m_Grid = new PropertyGrid(*this, this);
  m_Script = new ScriptPane(this);
  m_Features = new FeaturePane(this);
  m_Output = new OutputPane(this);
  m_Grid->setFocusProxy(&m_Grid->View());
  m_Script->setFocusProxy(&m_Script->Editor());
  QDockWidget* tools = AddPane("paneTools", tr("Tool Box"), m_Tools, Qt::LeftDockWidgetArea);
  QDockWidget* list = AddPane("paneControls", tr("Controls"), m_List, Qt::RightDockWidgetArea);
  QDockWidget* grid = AddPane("paneProperties", tr("Properties"), m_Grid, Qt::RightDockWidgetArea);
  QDockWidget* script = AddPane("paneScript", tr("Script"), m_Script, Qt::BottomDockWidgetArea);
  QDockWidget* features = AddPane("paneData", tr("Data"), m_Features, Qt::BottomDockWidgetArea);
  QDockWidget* output = AddPane("paneOutput", tr("Output"), m_Output, Qt::BottomDockWidgetArea);
  tabifyDockWidget(script, features);
  tabifyDockWidget(features, output);
  script->raise();
  setTabPosition(Qt::BottomDockWidgetArea, QTabWidget::North);
  for (QDockWidget* dock : {tools, list, grid, script, features}) m_Work.push_back(dock->widget());
}

// Most of the space is for the form, even on a small screen.
void Workbench::ProposeLayout() {
  const auto pane = [this](const char* name) { return m_Panes[QLatin1String(name)]; };
  const int right = qMin(330, width() * 3 / 10);
  resizeDocks({pane("paneControls"), pane("paneProperties")}, {height() / 4, height() / 2}, Qt::Vertical);
  resizeDocks({pane("paneTools"), pane("paneProperties")}, {qMin(180, width() / 6), right}, Qt::Horizontal);
  resizeDocks({pane("paneScript")}, {qMin(230, height() * 3 / 10)}, Qt::Vertical);
}

void Workbench::RestoreLayout() {
  const Preferences preferences;
  restoreGeometry(preferences.value(QStringLiteral("Geometry")).toByteArray());
  restoreState(preferences.value(QStringLiteral("Layout")).toByteArray(), kLayoutVersion);
}

void Workbench::SaveLayout() const {
  Preferences preferences;
  preferences.setValue(QStringLiteral("Geometry"), saveGeometry());
  preferences.setValue(QStringLiteral("Layout"), saveState(kLayoutVersion));
  preferences.setValue(QStringLiteral("GridStep"), m_GridPixels);
  preferences.setValue(QStringLiteral("SnapToGrid"), m_Document->Designer().GridAlignment());
}

void Workbench::ConnectDocument() {
  connect(m_Document, &Document::Selected, this, [this](IControl* control) {
    ShowSelection(Ref<IControl>(control));
    // Selecting the form ends the drawing without an event, after the selection's event.
    QTimer::singleShot(0, m_Tools, [this] {
      if (m_Document->Designer().ControlTypeToAdd() == ControlTypeEnum::ctDefault) m_Tools->Reset();
    });
  });
  connect(m_Document, &Document::RowChanged, m_Grid, [this](int row) { m_Grid->Model().Refresh(row); });
  connect(m_Document, &Document::DrawingEnded, m_Tools, &ToolBox::Reset);
  connect(m_Document, &Document::Resized, this, &Workbench::UpdateGrid);
  connect(m_Document, &Document::EventRequested, this, [this](IControl* control) {
    QDockWidget* script = m_Panes[QStringLiteral("paneScript")];
    script->show();
    script->raise();
    m_Script->OpenDefaultEvent(*control);
    m_Script->setFocus();
  });
  connect(m_Document, &Document::PropertiesRequested, this, [this] {
    m_Panes[QStringLiteral("paneProperties")]->show();
    m_Grid->View().setFocus();
  });
  connect(m_Document, &Document::Locked, this,
          [this](bool locked) { Action(QStringLiteral("mnuLock"))->setChecked(locked); });
  connect(m_Document, &Document::MenuChanged, this, [this](const QString& name, bool enabled) {
    m_MenuStates[name] = enabled;
    ShowCommands();
  });
  connect(m_Document, &Document::Replaced, this, [this] {
    m_Tools->Reset();
    m_Script->Show(m_Document->GetScript());
    UpdateGrid();
    Action(QStringLiteral("mnuLock"))->setChecked(false);
    for (const char* name : {"mnuForeground", "mnuBackground"}) m_MenuStates.erase(QLatin1String(name));
    m_ListSoon.start(0);
  });
  connect(m_Document, &Document::ProjectOpened, this, [this] {
    m_List->Forget();
    m_Script->Begin(m_Document->GetScript(), ControlsOf(m_Document->Designer().Controls()));
  });
  connect(m_Document, &Document::Changed, this, [this] {
    m_ListSoon.start(0);
    m_Script->Show(m_Document->GetScript());
    m_Grid->Model().RefreshAll();
    ShowState();
    if (m_Document->IsModified()) {
      if (!m_KeepSoon.isActive()) m_KeepSoon.start();
    } else {
      m_KeepSoon.stop();
      m_Recovery.Drop();
    }
  });
}

void Workbench::ConnectPanes() {
  connect(m_Tools, &ToolBox::KindChosen, this,
          [this](ControlTypeEnum kind) { m_Document->Designer().SetControlTypeToAdd(kind); });
  connect(m_Tools, &ToolBox::InsertWanted, this, [this](ControlTypeEnum kind) {
    const FocusKeeper keeper;
    m_Document->Insert(kind);
    m_Tools->Reset();
  });
  connect(m_List, &ControlList::Chosen, this, &Workbench::Select);
  connect(m_List, &QTreeWidget::itemActivated, this, [this] { m_Grid->EditRow(QStringLiteral("Text")); });
  // In the status bar, because the grid may soon show another control.
  connect(&m_Grid->Model(), &PropertyModel::Refused, this, &Workbench::ShowMessage);
  connect(&m_Grid->Model(), &PropertyModel::Assigned, this, [this] {
    m_Document->Designer().ShowHandles(
        true);  // the handles do not follow the height that a font gives a list
    UpdateGrid();
    m_Document->RecordSoon();
  });
  connect(m_Script, &ScriptPane::Edited, m_Document, &Document::SetScript);
  connect(m_Features, &FeaturePane::OpenWanted, this, &Workbench::ChooseData);
  connect(m_Features, &FeaturePane::FillWanted, this, [this] { Fill(RunKind::Fill); });
}

void Workbench::ShowSelection(const Ref<IControl>& control) {
  m_Grid->Show(control);
  m_List->Mark(control.get());
  ShowCommands();
  if (!control) return;
  if (const QWidget* native = NativeOf(*control)) {
    const QPoint at = native->mapTo(&m_Stage->Designer(), QPoint());
    m_Stage->Reveal(QRect(at, native->size()));
  }
}

// Commands that act on a control need one; the designer may disable others.
void Workbench::ShowCommands() {
  const Ref<IControl>& control = m_Grid->Model().Control();
  const bool isForm = !control || ClassOf(*control).type == ControlTypeEnum::ctDefault;
  for (const char* name : {"mnuCut", "mnuCopy", "mnuDelete", "mnuForeground", "mnuBackground",
                           "mnuCenterAcross", "mnuCenterDown"}) {
    const auto state = m_MenuStates.find(QLatin1String(name));
    const bool isAllowed = state == m_MenuStates.end() || state->second;
    Action(QLatin1String(name))->setEnabled(!isForm && isAllowed);
  }
  const auto paste = m_MenuStates.find(QStringLiteral("mnuPaste"));
  Action(QStringLiteral("mnuPaste"))->setEnabled(paste != m_MenuStates.end() && paste->second);
}

// Also the names for screen readers.
void Workbench::ShowList() {
  cardwright::FormDesigner& designer = m_Document->Designer();
  m_List->Show(designer);
  const std::vector<Ref<IControl>> controls = ControlsOf(designer.Controls());
  m_Script->ShowControls(controls);
  for (const Ref<IControl>& control : controls)
    if (QWidget* native = NativeOf(*control)) {
      native->setAccessibleName(qt::ToQString(control->UserName()));
      native->setAccessibleDescription(KindName(ClassOf(*control).type));
    }
}

void Workbench::ShowState() {
  Action(QStringLiteral("mnuUndo"))->setEnabled(m_Document->CanUndo());
  Action(QStringLiteral("mnuRedo"))->setEnabled(m_Document->CanRedo());
  ShowTitle();
}

void Workbench::ShowTitle() {
  const QString& path = m_Document->Path();
  const QString name = path.isEmpty() ? tr("New form") : QFileInfo(path).fileName();
  setWindowFilePath(path);
  setWindowTitle(tr("%1[*] – Cardwright").arg(name));
  setWindowModified(m_Document->IsModified());
}

// The designer paints its grid in pixels but snaps to the same number in the form's unit; in a form in twips
// that would be a fifteenth of the visible step.
void Workbench::UpdateGrid() {
  cardwright::FormDesigner& designer = m_Document->Designer();
  const ScaleMode scale = designer.GetSurface()->Scale();
  const float step = PixelsToScale(static_cast<float>(m_GridPixels), scale);
  designer.SetGridStep(static_cast<std::int16_t>(step));
  designer.SetGrid(m_IsGridShown ? static_cast<std::int16_t>(m_GridPixels) : std::int16_t{0}, true);
}

void Workbench::ShowMessage(const QString& text) { statusBar()->showMessage(text, kMessageTime); }

void Workbench::Select(IControl* control) {
  const FocusKeeper keeper;
  m_Document->Designer().SetCtrl(Ref<IControl>(control));
}

QStringList Workbench::Themes() const {
  QStringList names;
  for (const ListedTheme& theme : m_Data.Client().ListThemes()) names += qt::ToQString(theme.name);
  return names;
}

QStringList Workbench::Attributes() const {
  const cardwright::FormDesigner& designer = m_Document->Designer();
  QStringList names;
  for (const ListedAttribute& attribute :
       m_Data.Client().ListAttributes({designer.GetThemeName(), designer.GetFeatureType()}))
    names += qt::ToQString(attribute.name);
  return names;
}

QString Workbench::Folder() const { return QFileInfo(m_Document->Path()).absolutePath(); }

void Workbench::closeEvent(QCloseEvent* event) {
  if (m_Run && m_Run->isVisible()) LeaveRun();
  if (m_Run || !MayLeave()) return event->ignore();
  m_KeepSoon.stop();
  m_Recovery.Drop();
  SaveLayout();
  event->accept();
}

void Workbench::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls() && !m_Run) event->acceptProposedAction();
}

void Workbench::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (m_Run || urls.isEmpty() || !urls.first().isLocalFile()) return;
  const QString path = urls.first().toLocalFile();
  if (path.endsWith(QLatin1String(".cwf"), Qt::CaseInsensitive)) {
    if (MayLeave()) OpenProject(path);
  } else {
    OpenData(path);
  }
}

void Workbench::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_Grid) m_Grid->Model().RefreshAll();
  if (event->type() == QEvent::FontChange && m_Bar) m_Bar->setIconSize(IconSize(fontMetrics()));
}

}  // namespace cardwright::workbench
