// SPDX-License-Identifier: MIT
// The undo steps of a project: recording them, undo and redo.

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMouseEvent>

#include "cardwright/model/FormOwner.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/project/CompleteReading.h"
#include "workbench/project/Document.h"
#include "workbench/project/ModuleScope.h"
#include "workbench/project/Stacking.h"

namespace cardwright::workbench {

ProjectState Document::StateNow() const {
  ProjectState state;
  state.script = m_Script;
  state.theme = m_Designer->GetThemeName();
  state.scale = m_Designer->GetSurface()->Scale();
  const Ref<IControl> current = m_Designer->CurrentControl();
  if (current) state.selected = current->UserName();
  const QByteArray bytes = BytesWith({});
  if (!bytes.isEmpty()) {
    state.file = qCompress(bytes, 1);
    return state;
  }
  const Ref<IControl> form = Form();
  if (!form) return state;
  for (std::int32_t row = 0; row < form->PropertyCount(); ++row) {
    // The font is an object of the designer, and an undo step gets another designer.
    const bool isFont = form->PropertyType(Variant(row)) == PropertyTypeEnum::ptFont;
    state.formRows.push_back(
        isFont ? Variant() : BestEffortOr(Variant(), [&] { return form->PropertyValue(Variant(row)); }));
  }
  if (const Ref<Font> font = form->GetFont()) state.formFont = font->Values();
  return state;
}

void Document::RecordSoon() {
  if (m_IsLoading) return;
  RecordTyping();
  m_HasUnrecordedChange = true;
  m_RecordTimer.start();
}

void Document::RecordNow() {
  if (m_IsLoading || m_History.IsEmpty()) return m_RecordTimer.stop();
  if (m_Designer->IsBusy() || Module().designDragging) return m_RecordTimer.start();
  RecordTyping();
  RecordForm();
  Q_EMIT Changed();
}

void Document::OnQuiet() {
  if (!m_IsTyping) return RecordNow();
  RecordTyping();
  Q_EMIT Changed();
}

// Steps that are recorded here are not signalled: the editor would show the former script.
void Document::SetScript(const Script& script) {
  if (m_Script == script) return;
  if (m_RecordTimer.isActive() && !m_IsTyping) RecordForm();
  if (!m_Typing.Continues(m_Script, script)) {
    RecordTyping();
    m_History.EndTyping();
  }
  m_Script = script;
  RestoreModuleState();
  m_IsTyping = true;
  m_RecordTimer.start();
}

void Document::RecordForm() {
  m_RecordTimer.stop();
  m_HasUnrecordedChange = false;
  ProjectState now = StateNow();
  if (m_History.Current().IsSameProject(now)) {
    m_History.Select(now.selected);
  } else {
    m_History.Add(std::move(now));
  }
}

// The form is unchanged, so it is not written again to be compared.
void Document::RecordTyping() {
  if (!m_IsTyping) return;
  m_RecordTimer.stop();
  m_IsTyping = false;
  ProjectState now = m_History.Current();
  now.script = m_Script;
  m_History.AddTyped(std::move(now));
}

void Document::Undo() {
  if (m_Designer->IsBusy()) return;
  RecordNow();
  if (m_History.CanUndo()) Step(&History::Undo);
}

void Document::Redo() {
  if (m_Designer->IsBusy()) return;
  RecordNow();
  if (m_History.CanRedo()) Step(&History::Redo);
}

void Document::Step(const ProjectState& (History::*step)()) {
  const ProjectState before = m_History.Current();
  const ProjectState& state = (m_History.*step)();
  if (!state.HasSameForm(before)) return GoTo(state);
  m_Script = state.script;
  RestoreModuleState();
  if (state.selected != before.selected) SelectByName(Text(state.selected));
  Q_EMIT Changed();
}

void Document::GoTo(const ProjectState& state) {
  const ProjectState kept = state;
  m_IsLoading = true;
  Restore(kept);
  m_IsLoading = false;
  ProjectState now = StateNow();  // equal to the state, but it may be written differently
  now.selected = kept.selected;
  m_History.ReplaceCurrent(std::move(now));
  m_HasUnrecordedChange = false;
  m_IsTyping = false;
  m_RecordTimer.stop();
  Q_EMIT Replaced();
  SelectByName(kept.selected);
  if (m_IsLocked && !IsEmpty()) m_Designer->LockUnlock();  // not part of a state
  Q_EMIT Selected(m_Designer->CurrentControl().get());
  Q_EMIT Changed();
}

void Document::Restore(const ProjectState& state) {
  const QWidget* focus = QApplication::focusWidget();
  const bool hadFocus = focus && m_Stage.isAncestorOf(focus);
  UseNewDesigner();
  if (state.file.isEmpty()) {
    RestoreForm(state);
  } else {
    const QString step = m_Folder.filePath(QStringLiteral("step.cwf"));
    QFile file(step);
    if (file.open(QIODevice::WriteOnly)) file.write(qUncompress(state.file));
    file.close();
    m_Designer->ProjectRead(qt::FromQString(step));
    CompleteReading(*m_Designer, qt::FromQString(step));
    // Reading replaces a theme that the data does not have.
    if (m_Designer->GetThemeName() != state.theme) m_Designer->SetThemeName(state.theme);
  }
  m_Script = state.script;
  RestoreModuleState();
  if (hadFocus) m_Stage.Designer().setFocus();
}

void Document::RestoreForm(const ProjectState& state) {
  Module().formScaleMode = state.scale;
  m_Designer->ApplyScaleAndGrid();
  const Ref<IControl> form = Form();
  for (std::size_t row = 0; row < state.formRows.size(); ++row) {
    const Variant index(static_cast<std::int32_t>(row));
    if (form->PropertyType(index) != PropertyTypeEnum::ptFont)
      BestEffort([&] { form->SetPropertyValue(index, state.formRows[row]); });
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
    if (!m_IsLoading && !m_HasUnrecordedChange && control) m_History.Select(control->UserName());
    if (!m_IsLoading) Q_EMIT Selected(control);
  } else if (event == u"MenuStateChanged") {
    Q_EMIT MenuChanged(qt::ToQString(ToText(args[0])), ToBoolean(args[1]));
  } else if (event == u"ControlsLocked") {
    m_IsLocked = ToBoolean(args[0]);
    Q_EMIT Locked(m_IsLocked);
  } else if (event == u"PropertyMenuClick") {
    Q_EMIT PropertiesRequested();
  } else {
    OnChangeEvent(event, args);
  }
}

void Document::OnChangeEvent(std::u16string_view event, Args args) {
  if (event == u"AttribsList") return;
  if (event == u"ControlNameChanged")
    if (const IControl* renamed = AsControl(args[1].Deref()))
      MoveContentsAfter(m_Designer->Controls(), *renamed);
  if (!m_IsLoading && event == u"PropertyChanged") Q_EMIT RowChanged(ToLong(args[0]));
  if (event == u"Resize" || event == u"RefreshPropertyList") Q_EMIT Resized();
  if (!m_IsLoading && event == u"StateChanged") {
    // A pasted control may be selected without an event.
    Q_EMIT Selected(m_Designer->CurrentControl().get());
    Q_EMIT DrawingEnded();
  }
  RecordSoon();
}

// The designer has no event for a double click, whose first press has selected what is meant.
void Document::OnDoubleClick() {
  if (m_Designer->ControlTypeToAdd() != ControlTypeEnum::ctDefault) return;
  QTimer::singleShot(0, this, [this] {
    if (const Ref<IControl> control = m_Designer->CurrentControl()) Q_EMIT EventRequested(control.get());
  });
}

// The designer's popup menu restacks without an event, so a right click checks for changes.
void Document::OnRightPress() {
  RecordTyping();
  m_RecordTimer.start();
}

bool Document::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
  if (isPress && !m_IsLoading && object->isWidgetType()) {
    const auto* const widget = static_cast<const QWidget*>(object);
    const QWidget& form = m_Stage.Designer();
    const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
    if (type == QEvent::MouseButtonPress && button == Qt::RightButton && m_Stage.isAncestorOf(widget))
      OnRightPress();
    if (type == QEvent::MouseButtonDblClick && button == Qt::LeftButton &&
        (widget == &form || form.isAncestorOf(widget)))
      OnDoubleClick();
  }
  return QObject::eventFilter(object, event);
}

}  // namespace cardwright::workbench
