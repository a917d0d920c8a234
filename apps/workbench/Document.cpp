#include "workbench/Document.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMouseEvent>

#include "model/FormOwner.h"
#include "qt/QtText.h"
#include "shared/HostExecutor.h"
#include "storage/CIni.h"
#include "workbench/Kinds.h"
#include "workbench/ModuleScope.h"

namespace cardwright::workbench {
namespace {

constexpr int kSettling = 150;  // milliseconds of quiet before a change becomes a step

// Steps are written and read for each change: in memory, where the machine has such a folder.
QString StepFolder() {
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString base = QFileInfo(runtime).isWritable() ? runtime : QDir::tempPath();
  return base + QStringLiteral("/cardwright-workbench-XXXXXX");
}

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int ControlCount(const QString& path) {
  CIni ini;
  ini.SetFileName(qt::FromQString(path));
  const double count = Val(ini.GetText(u"FORM", u"ControlsNumber", u"0"));
  return count > 0 && count <= 32767 ? static_cast<int>(count) : 0;
}

}  // namespace

Document::Document(FormStage& stage, QObject* parent)
    : QObject(parent), m_Stage(stage), m_Folder(StepFolder()) {
  m_Soon.setSingleShot(true);
  m_Soon.setInterval(kSettling);
  connect(&m_Soon, &QTimer::timeout, this, &Document::NoteNow);
  qApp->installEventFilter(this);
  New();
}

void Document::Adopt() {
  if (m_Designer) {
    const Ref<cardwright::FormDesigner> before = m_Designer;
    qt::FormDesigner& stage = m_Stage.Renew();
    m_Designer = stage.Object();
    m_Designer->TakeClipboard(*before);
    m_Designer->SetGridStep(before->GridStep());
    m_Designer->SetGridAlignment(before->GridAlignment());
  } else {
    m_Designer = m_Stage.Designer().Object();
  }
  Connect();
}

void Document::Connect() {
  // The toolkit's signals lack nothing, but an event's order among the others counts here.
  m_Designer->Connect([this, designer = m_Designer.get()](std::u16string_view event, Args args) {
    if (designer == m_Designer.get()) OnDesignerEvent(event, args);
  });
}

void Document::New() {
  m_IsLoading = true;
  Adopt();
  m_Path.clear();
  m_Remark.clear();
  m_Script = {u"VBScript", {}};
  m_Stage.SetCaption(tr("Form"));
  Reclaim();
  m_IsLoading = false;
  Begin(true);
}

QString Document::Open(const QString& path) {
  const QFileInfo info(path);
  if (!info.isFile()) return tr("There is no file %1.").arg(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return tr("%1 could not be read: %2.").arg(path, file.errorString());
  const QByteArray bytes = file.readAll();
  if (!bytes.isEmpty() && !bytes.toLower().contains("[form]"))
    return tr("%1 holds no form project.").arg(path);
  m_IsLoading = true;
  Adopt();
  const bool isRead = Load(info.absoluteFilePath());
  m_IsLoading = false;
  m_Path = info.absoluteFilePath();
  const int missing = ControlCount(m_Path) - (m_Designer->Controls().Count() - 1);
  m_Remark = missing > 0 ? tr("%n control(s) of this project could not be read. Saving leaves them out.",
                              nullptr, missing)
                         : QString();
  Begin(true);
  return isRead ? QString() : tr("%1 could not be read.").arg(path);
}

QString Document::OpenWork(const QString& work, const QString& path) {
  const QString failure = Open(work);
  if (!failure.isEmpty()) return failure;
  // The work was saved by the rules of projects, which add a line break to the script.
  QString content = qt::ToQString(m_Script.content);
  if (content.endsWith(QLatin1String("\r\n"))) content.chop(2);
  m_Script.content = qt::FromQString(content);
  m_Path = path;
  Reclaim();
  Begin(false);
  return {};
}

bool Document::Load(const QString& path) {
  const bool isRead = m_Designer->ProjectRead(qt::FromQString(path));
  m_Script = {Module().scriptLanguage, Module().scriptContent};
  m_Designer->SetCtrl(Form());
  return isRead;
}

void Document::Begin(bool isSaved) {
  m_IsChanging = false;
  m_Soon.stop();
  m_History.Begin(StateNow(), isSaved);
  Q_EMIT Replaced();
  Q_EMIT Selected(m_Designer->CurrentControl().get());
  Q_EMIT Changed();
}

Ref<IControl> Document::Form() const {
  return Ref<IControl>(AsControl(m_Designer->Controls().Item(Variant(1))));
}

bool Document::IsEmpty() const { return m_Designer->Controls().Count() <= 1; }

void Document::Reclaim() { ModuleScope::Put(m_Script, m_Designer->GetSurface()->Scale()); }

bool Document::WriteTo(const QString& path) const {
  if (IsEmpty()) return false;
  const ModuleScope scope(m_Script, m_Designer->GetSurface()->Scale());
  return m_Designer->ProjectSave(qt::FromQString(path), true);
}

QByteArray Document::Bytes() const {
  const QString step = m_Folder.filePath(QStringLiteral("step.cwf"));
  return WriteTo(step) ? ReadAll(step) : QByteArray();
}

QString Document::RunFile() const {
  if (!IsModified() && QFileInfo(m_Path).isFile()) return m_Path;
  const QString run = m_Folder.filePath(QStringLiteral("run.cwf"));
  WriteTo(run);
  return run;
}

QString Document::Save(const QString& path) {
  if (IsEmpty()) return tr("A form without controls has no file. Draw a control first, then save.");
  NoteNow();
  const QFileInfo info(path);
  if (!QFileInfo(info.absolutePath()).isDir()) return tr("There is no folder %1.").arg(info.absolutePath());
  const QByteArray wanted = Bytes();
  {
    const ModuleScope scope(m_Script, m_Designer->GetSurface()->Scale());
    m_Designer->ProjectSave(qt::FromQString(info.absoluteFilePath()));
  }
  // Saving passes over what it cannot write, so what counts is what stands in the file.
  if (wanted.isEmpty() || ReadAll(info.absoluteFilePath()) != wanted)
    return tr("%1 could not be written.").arg(path);
  m_Path = info.absoluteFilePath();
  m_History.MarkSaved();
  Q_EMIT Changed();
  return {};
}

void Document::SetScript(const Script& script) {
  if (m_Script == script) return;
  m_Script = script;
  Reclaim();
  NoteSoon();
}

ProjectState Document::StateNow() const {
  ProjectState state;
  state.script = m_Script;
  state.scale = m_Designer->GetSurface()->Scale();
  const Ref<IControl> current = m_Designer->CurrentControl();
  if (current) state.selected = current->UserName();
  const QByteArray bytes = Bytes();
  if (!bytes.isEmpty()) {
    state.file = qCompress(bytes, 1);
    return state;
  }
  const Ref<IControl> form = Form();
  if (!form) return state;
  for (std::int32_t row = 0; row < form->PropertyCount(); ++row) {
    // The font is an object of the designer's, which another one has in its place after a step.
    const bool isFont = form->PropertyType(Variant(row)) == PropertyTypeEnum::ptFont;
    state.formRows.push_back(
        isFont ? Variant() : AttemptOr(Variant(), [&] { return form->PropertyValue(Variant(row)); }));
  }
  if (const Ref<Font> font = form->GetFont()) state.formFont = font->Values();
  return state;
}

void Document::NoteSoon() {
  if (m_IsLoading) return;
  m_IsChanging = true;
  m_Soon.start();
}

void Document::NoteNow() {
  m_Soon.stop();
  if (m_IsLoading || m_History.IsEmpty()) return;
  if (m_Designer->IsTracking() || Module().designDragging) return m_Soon.start();
  m_IsChanging = false;
  ProjectState now = StateNow();
  if (m_History.Current().IsSameProject(now)) {
    m_History.Select(now.selected);
  } else {
    m_History.Add(std::move(now));
  }
  Q_EMIT Changed();
}

void Document::Undo() {
  if (m_Designer->IsTracking()) return;
  NoteNow();
  if (m_History.CanUndo()) GoTo(m_History.Undo());
}

void Document::Redo() {
  if (m_Designer->IsTracking()) return;
  NoteNow();
  if (m_History.CanRedo()) GoTo(m_History.Redo());
}

void Document::GoTo(const ProjectState& state) {
  const ProjectState kept = state;
  m_IsLoading = true;
  Restore(kept);
  m_IsLoading = false;
  m_IsChanging = false;
  m_Soon.stop();
  Q_EMIT Replaced();
  SelectByName(kept.selected);
  Q_EMIT Selected(m_Designer->CurrentControl().get());
  Q_EMIT Changed();
}

// Without the host, which would have another theme put in the place of one that it does not know.
void Document::Restore(const ProjectState& state) {
  const std::int32_t handle = SharedHost().Handle();
  SharedHost().SetHandle(0);
  const QWidget* focus = QApplication::focusWidget();
  const bool hadFocus = focus && m_Stage.isAncestorOf(focus);
  Adopt();
  if (state.file.isEmpty()) {
    RestoreForm(state);
  } else {
    const QString step = m_Folder.filePath(QStringLiteral("step.cwf"));
    QFile file(step);
    if (file.open(QIODevice::WriteOnly)) file.write(qUncompress(state.file));
    file.close();
    m_Designer->ProjectRead(qt::FromQString(step));
  }
  SharedHost().SetHandle(handle);
  m_Script = state.script;
  Reclaim();
  if (hadFocus) m_Stage.Designer().setFocus();
}

void Document::RestoreForm(const ProjectState& state) {
  Module().formScaleMode = state.scale;
  m_Designer->ApplyScaleAndGrid();
  const Ref<IControl> form = Form();
  for (std::size_t row = 0; row < state.formRows.size(); ++row) {
    const Variant index(static_cast<std::int32_t>(row));
    if (form->PropertyType(index) != PropertyTypeEnum::ptFont)
      Attempt([&] { form->SetPropertyValue(index, state.formRows[row]); });
  }
  if (const Ref<Font> font = form->GetFont()) font->Assign(state.formFont);
}

void Document::SelectByName(const Text& name) {
  IControl* control = FindControl(m_Designer->Controls(), name);
  m_Designer->SetCtrl(control ? Ref<IControl>(control) : Form());
}

void Document::OnDesignerEvent(std::u16string_view event, Args args) {
  if (event == u"CurrObjectChanged") {
    IControl* control = AsControl(args[0].Deref());
    if (!m_IsLoading && !m_IsChanging && control) m_History.Select(control->UserName());
    if (!m_IsLoading) Q_EMIT Selected(control);
  } else if (event == u"MenuStateChanged") {
    Q_EMIT MenuChanged(qt::ToQString(ToText(args[0])), ToBoolean(args[1]));
  } else if (event == u"ControlsLocked") {
    Q_EMIT Locked(ToBoolean(args[0]));
  } else if (event == u"PropertyMenuClick") {
    Q_EMIT PropertiesWanted();
  } else {
    OnChangeEvent(event, args);
  }
}

void Document::OnChangeEvent(std::u16string_view event, Args args) {
  if (event == u"AttribsList") return;
  if (!m_IsLoading && event == u"PropertyChanged") Q_EMIT RowChanged(ToLong(args[0]));
  if (event == u"Resize" || event == u"RefreshPropertyList") Q_EMIT Resized();
  if (!m_IsLoading && event == u"StateChanged") {
    // A pasted control that differs in nothing is selected without a word.
    Q_EMIT Selected(m_Designer->CurrentControl().get());
    Q_EMIT DrawingEnded();
  }
  NoteSoon();
}

// The designer's popup menu restacks without a word, so what a right click leads to is looked at.
bool Document::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent*>(event)->button() == Qt::RightButton && object->isWidgetType() &&
      m_Stage.isAncestorOf(static_cast<QWidget*>(object)) && !m_IsLoading)
    m_Soon.start();
  return QObject::eventFilter(object, event);
}

void Document::Insert(ControlTypeEnum type) {
  const Ref<IControl> current = m_Designer->CurrentControl();
  const bool intoFrame = current && KindOf(*current) == ControlTypeEnum::ctFrame;
  QSize size;
  for (const Kind& kind : Kinds())
    if (kind.type == type) size = kind.size;
  if (size.isEmpty()) return;
  const ScaleMode scale = m_Designer->GetSurface()->Scale();
  m_Designer->SetIntoFrame(intoFrame);
  m_Designer->SetControlTypeToAdd(type);
  m_Designer->SurfaceMouseUp(MouseButton::Left, 0, PixelsToScale(static_cast<float>(size.width()), scale),
                             PixelsToScale(static_cast<float>(size.height()), scale));
  m_Designer->SetIntoFrame(false);
  const Ref<IControl> made = m_Designer->CurrentControl();
  if (!made || made == current) return;
  // Below the control that was selected, so that one after the other forms a column.
  const auto pixels = [&](float count) { return PixelsToScale(count, scale); };
  const bool beside = current && !intoFrame && KindOf(*current) != ControlTypeEnum::ctDefault;
  const float height = pixels(static_cast<float>(size.height()));
  const float below = beside ? current->Top() + current->Height() + pixels(8) : 0;
  const bool hasRoom = beside && below + height <= m_Designer->GetSurface()->Height();
  made->SetLeft(hasRoom ? current->Left() : pixels(16));
  made->SetTop(hasRoom ? below : pixels(intoFrame ? 24 : 16));
  made->SetWidth(pixels(static_cast<float>(size.width())));
  made->SetHeight(height);
  m_Designer->SetCtrl(made);
}

}  // namespace cardwright::workbench
