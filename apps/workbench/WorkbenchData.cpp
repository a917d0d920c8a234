// SPDX-License-Identifier: MIT
// The data source of the workbench, and runs of the form for its features.

#include <QAction>
#include <QActionGroup>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/FeatureTypeIcon.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/runtime/AttributeBinding.h"
#include "cardwright/shared/ModuleState.h"
#include "workbench/Recent.h"
#include "workbench/Workbench.h"
#include "workbench/grid/PropertyGrid.h"
#include "workbench/panes/FeaturePane.h"
#include "workbench/panes/FocusKeeper.h"
#include "workbench/panes/OutputPane.h"

namespace cardwright::workbench {
namespace {

const Recent kRecentSources(QStringLiteral("RecentData"));

/// The absolute path of a file or folder; a connection string unchanged.
QString Complete(const QString& source) {
  return QFileInfo::exists(source) ? QFileInfo(source).absoluteFilePath() : source;
}

/// The source as it may be shown, without a password.
QString Shown(QString source) {
  static const QRegularExpression password(QStringLiteral("((?:password|pwd)\\s*=\\s*)('[^']*'|[^\\s;]+)"),
                                           QRegularExpression::CaseInsensitiveOption);
  return source.replace(password, QStringLiteral("\\1…"));
}

}  // namespace

bool Workbench::OpenData(const QString& source) {
  try {
    m_Data.Open(source);
    m_Data.Log().onLine = [output = QPointer<OutputPane>(m_Output)](std::u16string_view line) {
      if (output) output->AddCommand(qt::ToQString(line));
    };
    m_Features->Open(source);
  } catch (const Error& error) {
    if (QFileInfo(source).isAbsolute() && !QFileInfo::exists(source)) kRecentSources.Remove(source);
    QMessageBox::warning(this, tr("Open a data source"), Shown(qt::ToQString(error.Description())));
    return false;
  }
  m_Features->ShowTheme(qt::ToQString(m_Document->Designer().GetThemeName()));
  m_Panes[QStringLiteral("paneData")]->show();
  m_Panes[QStringLiteral("paneData")]->raise();
  if (Shown(source) == source) kRecentSources.Add(Complete(source));
  ShowMessage(tr("Opened %1").arg(Shown(source)));
  return true;
}

QString Workbench::DataFolder() const {
  return QFileInfo::exists(m_Data.Name()) ? QFileInfo(m_Data.Name()).absolutePath() : Folder();
}

void Workbench::ChooseData() {
  const QString path = QFileDialog::getOpenFileName(
      this, tr("Open a data source"), DataFolder(),
      tr("GeoPackages (*.gpkg);;Other sources (*.shp *.geojson *.json *.csv *.sqlite *.fgb);;All files (*)"));
  if (!path.isEmpty()) OpenData(path);
}

void Workbench::ChooseDataFolder() {
  const QString path =
      QFileDialog::getExistingDirectory(this, tr("Open a folder of shape files or tables"), DataFolder());
  if (!path.isEmpty()) OpenData(path);
}

void Workbench::ConnectData() {
  const QString start = QFileInfo::exists(m_Data.Name()) ? QString() : m_Data.Name();
  const QString text = QInputDialog::getText(this, tr("Connect to a data source"),
                                             tr("Connection text, such as PG:dbname=survey or ODBC:survey:"),
                                             QLineEdit::Normal, start);
  if (!text.trimmed().isEmpty()) OpenData(text.trimmed());
}

void Workbench::FillRecentDataMenu(QMenu& menu) {
  kRecentSources.Fill(menu, [this](const QString& source) { OpenData(source); });
}

void Workbench::FillThemeMenu(QMenu& menu) {
  menu.clear();
  const QString present = qt::ToQString(m_Document->Designer().GetThemeName());
  auto* group = new QActionGroup(&menu);
  for (const ListedTheme& theme : m_Data.Client().ListThemes()) {
    const QString name = qt::ToQString(theme.name);
    const QIcon sign = qt::FeatureTypeIcon(static_cast<int>(theme.featureType),
                                           palette().color(QPalette::WindowText), devicePixelRatioF());
    QAction* action = menu.addAction(sign, QString(name).replace(u'&', QLatin1String("&&")));
    action->setCheckable(true);
    action->setChecked(name == present);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, name] { BindTo(name); });
  }
  if (menu.isEmpty()) menu.addAction(tr("(no data source is open)"))->setEnabled(false);
}

void Workbench::BindTo(const QString& theme) {
  cardwright::FormDesigner& designer = m_Document->Designer();
  for (const ListedTheme& listed : m_Data.Client().ListThemes()) {
    if (listed.name != qt::FromQString(theme)) continue;
    designer.SetThemeName(listed.name);
    designer.SetFeatureType(listed.featureType);
  }
  m_Features->ShowTheme(theme);
  m_Document->RecordNow();
}

void Workbench::Fill(RunKind kind) {
  if (m_Run) return m_Run->activateWindow();
  m_Grid->FinishEditing();
  if (!m_Data.IsOpen()) {
    ChooseData();
    if (!m_Data.IsOpen()) return;
  }
  const QString theme = m_Features->Theme();
  const QString id = m_Features->Feature();
  if (id.isEmpty()) {
    QMessageBox::information(this, tr("Fill in"),
                             tr("Choose a feature in the table of the pane Data first."));
    return;
  }
  if (m_Document->IsEmpty()) {
    QMessageBox::information(this, tr("Fill in"), tr("The form has no controls yet."));
    return;
  }
  m_Document->RecordNow();
  StartRun(theme, id, kind);
}

bool Workbench::StartRun(const QString& theme, const QString& id, RunKind kind) {
  const QString file = m_Document->RunFile();
  m_Run = new desktop::FormWindow(m_Data);
  m_Run->setParent(this,
                   Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);  // stays above
  m_Run->setAttribute(Qt::WA_DeleteOnClose);
  connect(m_Run, &QObject::destroyed, this, &Workbench::EndRun);
  AllowWork(false);
  qt::FormInput& form = m_Run->Form();
  if (kind == RunKind::Debug) {
    Module().debugOutput = m_Output->Debug();
    m_Panes[QStringLiteral("paneOutput")]->show();
    m_Panes[QStringLiteral("paneOutput")]->raise();
    m_Output->ShowDebug();
    form.SetDebugMode(true);
  }
  if (!form.ProjectRead(file)) {
    delete m_Run.data();
    QMessageBox::warning(this, tr("Fill in"), tr("The form could not be read for filling in."));
    return false;
  }
  if (IControl* root = FindControl(form.Object()->Controls(), u"Form"))
    root->SetPropertyValue(u"ThemeName", qt::FromQString(theme));
  if (!m_Data.HasFeature(form.Object()->GetFeatureClass(), qt::FromQString(id))) {
    delete m_Run.data();
    QMessageBox::warning(this, tr("Fill in"),
                         tr("The theme %1 has no feature %2 of the form's feature type.").arg(theme, id));
    return false;
  }
  form.SetNewFeature(kind == RunKind::FillNew);
  form.SetFeatureID(id);
  ShowRun();
  return true;
}

// Over the stage, so that the output stays visible.
void Workbench::ShowRun() {
  const QRect room = screen()->availableGeometry();
  const QSize free = room.size() - m_Run->size();
  const QPoint corner = m_Stage->mapToGlobal(m_Stage->rect().center()) - m_Run->rect().center();
  const QPoint inside = corner - room.topLeft();
  m_Run->move(room.topLeft() + QPoint(qBound(0, inside.x(), qMax(0, free.width())),
                                      qBound(0, inside.y(), qMax(0, free.height()))));
  m_Run->show();
  m_Run->activateWindow();
}

void Workbench::EndRun() {
  m_Run = nullptr;
  m_Document->RestoreModuleState();
  AllowWork(true);
  const FocusKeeper keeper;
  m_Features->Reload();
}

void Workbench::LeaveRun() {
  const auto answer = QMessageBox::question(
      m_Run, tr("Quit"), tr("A form is being filled in. Close it without storing what was typed?"),
      QMessageBox::Close | QMessageBox::Cancel, QMessageBox::Cancel);
  if (answer != QMessageBox::Close || !m_Run) return;
  const auto leave = connect(m_Run, &QObject::destroyed, this, &QWidget::close, Qt::QueuedConnection);
  m_Run->close();
  if (m_Run && m_Run->isVisible()) disconnect(leave);  // its script prevents the closing
}

// Only what would disturb a run is disabled, so that its output can be read, copied and cleared meanwhile.
void Workbench::AllowWork(bool allow) {
  if (!allow) m_FocusBefore = focusWidget();
  for (QWidget* widget : m_Work) widget->setEnabled(allow);
  if (allow && !focusWidget() && m_FocusBefore) m_FocusBefore->setFocus(Qt::OtherFocusReason);
}

}  // namespace cardwright::workbench
