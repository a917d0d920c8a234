// SPDX-License-Identifier: MIT
#include "workbench/project/Document.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include "cardwright/model/FormOwner.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/project/CompleteReading.h"
#include "workbench/project/KindName.h"
#include "workbench/project/ModuleScope.h"

namespace cardwright::workbench {
namespace {

constexpr int kQuietTime = 150;  // milliseconds without events before a change becomes a step

// Steps are written and read for each change, in memory if the system has such a folder.
QString StepFolder() {
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString base = QFileInfo(runtime).isWritable() ? runtime : QDir::tempPath();
  return base + QStringLiteral("/cardwright-workbench-XXXXXX");
}

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

Document::Document(FormStage& stage, QObject* parent)
    : QObject(parent), m_Stage(stage), m_Folder(StepFolder()) {
  m_RecordTimer.setSingleShot(true);
  m_RecordTimer.setInterval(kQuietTime);
  connect(&m_RecordTimer, &QTimer::timeout, this, &Document::OnQuiet);
  qApp->installEventFilter(this);
  New();
}

void Document::UseNewDesigner() {
  if (m_Designer) {
    const Ref<cardwright::FormDesigner> before = m_Designer;
    qt::FormDesigner& stage = m_Stage.ReplaceDesigner();
    m_Designer = stage.Object();
    m_Designer->TakeClipboard(*before);
    m_Designer->SetGridStep(before->GridStep());
    m_Designer->SetGridAlignment(before->GridAlignment());
  } else {
    m_Designer = m_Stage.Designer().Object();
  }
  m_Designer->SetTracesMouse(true);
  Connect();
}

void Document::Connect() {
  // Not by the widget's signals: the order of the events matters here.
  m_Designer->Connect([this, designer = m_Designer.get()](std::u16string_view event, Args args) {
    if (designer == m_Designer.get()) OnDesignerEvent(event, args);
  });
}

void Document::New() {
  m_IsLoading = true;
  UseNewDesigner();
  m_Path.clear();
  m_Notice.clear();
  m_Script = {u"VBScript", {}};
  m_Stage.SetCaption(tr("Form"));
  RestoreModuleState();
  m_IsLoading = false;
  Begin(true);
}

QString Document::Open(const QString& path) {
  const QString failure = Read(path);
  if (!failure.isEmpty()) return failure;
  m_Path = QFileInfo(path).absoluteFilePath();
  Begin(true);
  return {};
}

QString Document::OpenUnsaved(const QString& work, const QString& path) {
  const QString failure = Read(work);
  if (!failure.isEmpty()) return failure;
  // Saving a project adds a line break to its script.
  QString content = qt::ToQString(m_Script.content);
  if (content.endsWith(QLatin1String("\r\n"))) content.chop(2);
  m_Script.content = qt::FromQString(content);
  m_Path = path;
  RestoreModuleState();
  Begin(false);
  return {};
}

// If the project cannot be read, the former one is restored: saving a half-read or empty form would destroy
// the file.
QString Document::Read(const QString& path) {
  const QFileInfo info(path);
  if (!info.isFile()) return tr("There is no file %1.").arg(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return tr("%1 could not be read: %2.").arg(path, file.errorString());
  const QByteArray bytes = file.readAll();
  if (!bytes.isEmpty() && !bytes.toLower().contains("[form]"))
    return tr("%1 holds no form project.").arg(path);
  RecordNow();
  m_IsLoading = true;
  UseNewDesigner();
  const bool isRead = Load(info.absoluteFilePath());
  m_IsLoading = false;
  if (!isRead) {
    GoTo(m_History.Current());
    return tr("%1 could not be read. What was shown before stays.").arg(path);
  }
  return {};
}

bool Document::Load(const QString& path) {
  const bool isRead = m_Designer->ProjectRead(qt::FromQString(path));
  m_Script = {Module().scriptLanguage, Module().scriptContent};
  const int missing = CompleteReading(*m_Designer, qt::FromQString(path));
  m_Notice = missing > 0 ? tr("%n control(s) of this project could not be read. Saving leaves them out.",
                              nullptr, missing)
                         : QString();
  m_Designer->SetCtrl(Form());
  return isRead;
}

void Document::Begin(bool isSaved) {
  m_HasUnrecordedChange = false;
  m_IsTyping = false;
  m_IsLocked = false;
  m_RecordTimer.stop();
  m_History.Begin(StateNow(), isSaved);
  Q_EMIT Replaced();
  Q_EMIT ProjectOpened();
  Q_EMIT Selected(m_Designer->CurrentControl().get());
  Q_EMIT Changed();
}

Ref<IControl> Document::Form() const {
  return Ref<IControl>(AsControl(m_Designer->Controls().Item(Variant(1))));
}

bool Document::IsEmpty() const { return m_Designer->Controls().Count() <= 1; }

void Document::RestoreModuleState() { ModuleScope::Set(m_Script, m_Designer->GetSurface()->Scale()); }

bool Document::WriteTo(const QString& path, const Script& script) const {
  if (IsEmpty()) return false;
  const ModuleScope scope(script, m_Designer->GetSurface()->Scale());
  return m_Designer->ProjectSave(qt::FromQString(path), true);
}

QByteArray Document::Bytes() const { return BytesWith(m_Script); }

QByteArray Document::BytesWith(const Script& script) const {
  const QString step = m_Folder.filePath(QStringLiteral("step.cwf"));
  return WriteTo(step, script) ? ReadAll(step) : QByteArray();
}

QString Document::RunFile() const {
  if (!IsModified() && QFileInfo(m_Path).isFile()) return m_Path;
  const QString run = m_Folder.filePath(QStringLiteral("run.cwf"));
  WriteTo(run, m_Script);
  return run;
}

QString Document::Save(const QString& path) {
  if (IsEmpty()) return tr("A form without controls has no file. Draw a control first, then save.");
  RecordNow();
  const QFileInfo info(path);
  if (!QFileInfo(info.absolutePath()).isDir()) return tr("There is no folder %1.").arg(info.absolutePath());
  const QByteArray wanted = Bytes();
  {
    const ModuleScope scope(m_Script, m_Designer->GetSurface()->Scale());
    m_Designer->ProjectSave(qt::FromQString(info.absoluteFilePath()));
  }
  // Saving ignores what it cannot write, so the file itself is compared.
  if (wanted.isEmpty() || ReadAll(info.absoluteFilePath()) != wanted)
    return tr("%1 could not be written.").arg(path);
  m_Path = info.absoluteFilePath();
  m_History.MarkSaved();
  Q_EMIT Changed();
  return {};
}

void Document::Insert(ControlTypeEnum type) {
  const Ref<IControl> current = m_Designer->CurrentControl();
  const bool intoFrame = current && ClassOf(*current).design.isContainer;
  const ClassTable* const known = FindControlClass(type);
  if (!known) return;
  const ScaleMode scale = m_Designer->GetSurface()->Scale();
  const auto pixels = [&](float count) { return PixelsToScale(count, scale); };
  const float width = pixels(static_cast<float>(known->design.defaultWidth));
  const float height = pixels(static_cast<float>(known->design.defaultHeight));
  m_Designer->Place({.type = type,
                     .rectangle = {0, 0, width, height},
                     .container = intoFrame ? BoundWidget(*current) : nullptr,
                     .source = nullptr});
  const Ref<IControl> made = m_Designer->CurrentControl();
  if (!made || made == current) return;
  // Below the selected control, so that several in succession form a column.
  const bool beside = current && !intoFrame && ClassOf(*current).type != ControlTypeEnum::ctDefault;
  const float below = beside ? current->Top() + current->Height() + pixels(8) : 0;
  const bool hasRoom = beside && below + height <= m_Designer->GetSurface()->Height();
  made->SetLeft(hasRoom ? current->Left() : pixels(16));
  made->SetTop(hasRoom ? below : pixels(intoFrame ? 24 : 16));
  made->SetWidth(width);
  made->SetHeight(height);
  m_Designer->SetCtrl(made);
}

}  // namespace cardwright::workbench
