// The data source of the workbench, and forms that are filled in for its features.

#include <QAction>
#include <QActionGroup>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

#include "automation/Errors.h"
#include "qt/KindSigns.h"
#include "qt/QtText.h"
#include "runtime/AttributeBinding.h"
#include "runtime/HostLists.h"
#include "shared/ModuleState.h"
#include "workbench/FeaturePane.h"
#include "workbench/FocusKeeper.h"
#include "workbench/OutputPane.h"
#include "workbench/PropertyGrid.h"
#include "workbench/Workbench.h"

namespace cardwright::workbench {

bool Workbench::OpenData(const QString& source) {
  try {
    m_Data.Open(source);
    m_Data.Log().onLine = [output = QPointer<OutputPane>(m_Output)](std::u16string_view line) {
      if (output) output->AddCommand(qt::ToQString(line));
    };
    m_Features->Open(source);
  } catch (const Error& error) {
    QMessageBox::warning(this, tr("Open a data source"), qt::ToQString(error.Description()));
    return false;
  }
  m_Features->ShowTheme(qt::ToQString(m_Document->Designer().GetThemeName()));
  m_Panes[QStringLiteral("paneData")]->show();
  m_Panes[QStringLiteral("paneData")]->raise();
  Tell(tr("Opened %1").arg(source));
  return true;
}

void Workbench::ChooseData() {
  const QString start = m_Data.IsOpen() ? QFileInfo(m_Data.Name()).absolutePath() : Folder();
  const QString path = QFileDialog::getOpenFileName(
      this, tr("Open a data source"), start,
      tr("GeoPackages (*.gpkg);;Other sources (*.shp *.geojson *.json *.csv *.sqlite *.fgb);;All files (*)"));
  if (!path.isEmpty()) OpenData(path);
}

void Workbench::FillThemeMenu(QMenu& menu) {
  menu.clear();
  const QString present = qt::ToQString(m_Document->Designer().GetThemeName());
  auto* group = new QActionGroup(&menu);
  for (const ListedTheme& theme : ListThemes(m_Data.Handle())) {
    const QString name = qt::ToQString(theme.name);
    const QIcon sign = qt::KindSign(static_cast<int>(theme.featureType),
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
  for (const ListedTheme& listed : ListThemes(m_Data.Handle())) {
    if (listed.name != qt::FromQString(theme)) continue;
    designer.SetThemeName(listed.name);
    designer.SetFeatureType(listed.featureType);
  }
  m_Features->ShowTheme(theme);
  m_Document->NoteNow();
}

void Workbench::Fill(bool debug) {
  if (m_Run) return m_Run->raise();
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
  m_Document->NoteNow();
  StartRun(theme, id, debug);
}

bool Workbench::StartRun(const QString& theme, const QString& id, bool debug) {
  const QString file = m_Document->RunFile();
  m_Run = new desktop::FormWindow(m_Data);
  m_Run->setAttribute(Qt::WA_DeleteOnClose);
  m_Run->setWindowModality(Qt::ApplicationModal);
  connect(m_Run, &QObject::destroyed, this, &Workbench::EndRun);
  qt::FormInput& form = m_Run->Form();
  if (debug) {
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
  if (!m_Data.HasFeature(PlaceOf(*form.Object()), qt::FromQString(id))) {
    delete m_Run.data();
    QMessageBox::warning(this, tr("Fill in"),
                         tr("The theme %1 has no feature %2 of the form's feature type.").arg(theme, id));
    return false;
  }
  form.SetFeatureID(id);
  m_Run->show();
  return true;
}

void Workbench::EndRun() {
  m_Run = nullptr;
  m_Document->Reclaim();
  const FocusKeeper keeper;
  m_Features->Reload();
}

}  // namespace cardwright::workbench
