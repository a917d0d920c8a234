// SPDX-License-Identifier: MIT
#include "workbench/panes/ScriptPane.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "cardwright/editor/EditorSurface.h"
#include "cardwright/editor/LanguageTables.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "workbench/panes/ScriptLines.h"
#include "workbench/project/ModuleScope.h"
#include "workbench/project/TextChange.h"

namespace cardwright::workbench {
namespace {

constexpr std::u16string_view kInitialize = u"Initialize";
constexpr QChar kWrittenMark = u'*';  // of an event whose procedure is written

// Projects may come with other line ends, but forms find procedures by carriage return and line feed.
Text WithLineEnds(const Text& content) {
  QString text = qt::ToQString(content);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  return qt::FromQString(text.replace(u'\n', QLatin1String("\r\n")));
}

QComboBox& NativeCombo(const Ref<ComboWidget>& combo) {
  return *qobject_cast<QComboBox*>(dynamic_cast<const qt::WidgetCore&>(*combo).Native());
}

// As a user chooses it: an entry that is chosen already is chosen again.
void Choose(QComboBox& combo, int index) {
  if (index < 0) return;
  combo.setCurrentIndex(index);
  Q_EMIT combo.activated(index);
}

Text DefaultEvent(const IControl& control) {
  const std::vector<Text> events = control.Events();
  if (std::ranges::find(events, Text(kInitialize)) != events.end()) return kInitialize;
  return events.empty() ? Text() : events.front();
}

// Of the pane, although the window has others for them. Slash needs Shift on some keyboards.
bool IsPaneKey(const QKeyEvent& key) {
  const Qt::KeyboardModifiers with = key.modifiers() & ~Qt::KeypadModifier;
  if (key.key() == Qt::Key_Slash) return (with & ~Qt::ShiftModifier) == Qt::ControlModifier;
  return with == Qt::ControlModifier && (key.key() == Qt::Key_Y || key.key() == Qt::Key_G);
}

}  // namespace

/// Keeps the keyboard focus where the user works: the editor moves it to the text whenever its lists change,
/// which would end the editing of a cell. A disabled widget takes no focus.
class ScriptPane::FocusGuard {
 public:
  explicit FocusGuard(ScriptPane& pane)
      : m_Pane(pane), m_IsElsewhere(!pane.isAncestorOf(pane.window()->focusWidget())) {
    if (m_IsElsewhere) m_Pane.setEnabled(false);
  }
  ~FocusGuard() {
    if (m_IsElsewhere) m_Pane.setEnabled(true);
  }
  FocusGuard(const FocusGuard&) = delete;
  FocusGuard& operator=(const FocusGuard&) = delete;

 private:
  ScriptPane& m_Pane;
  const bool m_IsElsewhere;
};

ScriptPane::ScriptPane(QWidget* parent) : QWidget(parent), m_Controls(MakeRef<Collection>()) {
  const FocusGuard guard(*this);
  m_Editor = new qt::OrvEditor(this);
  m_Editor->SetSaveButtonVisible(false);  // the script is saved with its project
  m_Pad = m_Editor->Object()->GetSurface()->Pad();
  m_Edit = m_Editor->findChild<qt::CodeEdit*>();
  m_Edit->setAccessibleName(tr("Script of the form"));
  m_Edit->setPlaceholderText(tr("Procedures that the form's events run, such as Sub Form_Initialize()"));
  m_Edit->installEventFilter(this);
  m_FaultMark = new ScriptFaultMark(*m_Edit);
  MakeLanguageChoice();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_Editor);
  // An act of the user is reported once: a line that is left takes another spelling, which belongs to the
  // act.
  connect(m_Edit, &qt::CodeEdit::InputBegins, this, [this] { ++m_InputDepth; });
  connect(m_Edit, &qt::CodeEdit::InputEnds, this, [this] {
    if (--m_InputDepth == 0) OnEdit();
  });
  connect(m_Editor, &qt::OrvEditor::Change, this, [this] {
    if (m_InputDepth == 0) OnEdit();
  });
}

void ScriptPane::MakeLanguageChoice() {
  m_Language = new QComboBox(this);
  m_Language->addItems({qt::ToQString(kVbscriptName), qt::ToQString(kJscriptName)});
  m_Language->setAccessibleName(tr("Language of the script"));
  m_Language->setToolTip(m_Language->accessibleName());
  auto* const bar = m_Editor->findChild<QToolBar*>();
  bar->insertWidget(bar->actions().constFirst(), m_Language);  // seen in a narrow pane too
  connect(m_Language, &QComboBox::activated, this, &ScriptPane::ChooseLanguage);
}

QComboBox& ScriptPane::Controls() const {
  return NativeCombo(m_Editor->Object()->GetSurface()->ControlsCombo());
}

QComboBox& ScriptPane::Events() const { return NativeCombo(m_Editor->Object()->GetSurface()->EventsCombo()); }

void ScriptPane::Begin(const Script& script, const std::vector<Ref<IControl>>& controls) {
  m_ControlNames.clear();
  ShowControls(controls);
  Load(script);
}

// The editor takes controls, script and language together, and those two from the thread. It writes a first
// line into an empty script, which is the author's to write here.
void ScriptPane::Load(const Script& script) {
  const FocusGuard guard(*this);
  const QScopedValueRollback showing(m_IsShowing, true);
  const Text content = WithLineEnds(script.content);
  const Text language = IsKnownLanguage(script.language) ? script.language : Text(kVbscriptName);
  {
    const ModuleScope scope({language, content}, Module().formScaleMode);
    m_Editor->Object()->ReadControls(m_Controls);
  }
  if (m_Pad->Contents() != content) m_Pad->SetContents(content);
  ShowLanguage(script.language);
  m_Shown = script;
  m_FaultMark->CheckSoon(m_Shown, m_ControlNames);
}

void ScriptPane::Show(const Script& script) {
  if (script == m_Shown) return;
  if (script.language != m_Shown.language) return Load(script);
  const FocusGuard guard(*this);
  const QScopedValueRollback showing(m_IsShowing, true);
  Replace(WithLineEnds(script.content));
  m_Shown = script;
  m_FaultMark->CheckSoon(m_Shown, m_ControlNames);
}

// Replaces only what differs, as an edit: caret, scroll position and undo steps stay. The lines keep their
// spelling, although the user leaves them.
void ScriptPane::Replace(const Text& content) {
  const TextChange change = ChangeBetween(m_Pad->Contents(), content);
  const auto begin = static_cast<std::int32_t>(change.begin);
  const auto end = static_cast<std::int32_t>(change.endBefore);
  const auto size = static_cast<std::int32_t>(change.endAfter) - begin;
  const auto moved = [&](std::int32_t place) {
    return place <= begin ? place : place >= end ? place + begin + size - end : begin;
  };
  const std::int32_t selectionEnd = moved(m_Pad->SelStart() + m_Pad->SelLength());
  const std::int32_t selectionStart = moved(m_Pad->SelStart());
  const int scrolled = m_Edit->verticalScrollBar()->value();
  m_Edit->SetTracksEdits(false);
  {
    const PadUpdate update(*m_Pad);
    m_Pad->SetSelStart(begin);
    m_Pad->SetSelLength(end - begin);
    m_Pad->SetSelText(content.View().substr(change.begin, static_cast<std::size_t>(size)));
    m_Pad->SetSelStart(selectionStart);
    m_Pad->SetSelLength(selectionEnd - selectionStart);
  }
  m_Edit->SetTracksEdits(true);
  m_Edit->verticalScrollBar()->setValue(scrolled);
  if (m_Pad->Contents() != content) m_Pad->SetContents(content);
}

// Languages are compared without case; an unknown one is added to the list.
void ScriptPane::ShowLanguage(const Text& language) {
  const QString name = qt::ToQString(language);
  int at = m_Language->findText(name, Qt::MatchFixedString);
  if (at < 0) {
    m_Language->addItem(name);
    at = m_Language->count() - 1;
  }
  m_Language->setCurrentIndex(at);
}

void ScriptPane::ChooseLanguage() {
  Script edited = m_Shown;
  edited.language = qt::FromQString(m_Language->currentText());
  if (EqualsNoCase(edited.language, m_Shown.language)) return;
  const std::int32_t caret = m_Pad->SelStart();
  Load(edited);
  m_Pad->SetSelStart(caret);
  Q_EMIT Edited(edited);
}

void ScriptPane::OnEdit() {
  if (m_IsShowing) return;
  const Text content = m_Pad->Contents();
  if (content == WithLineEnds(m_Shown.content)) return;
  m_Shown.content = content;
  m_FaultMark->CheckSoon(m_Shown, m_ControlNames);
  Q_EMIT Edited(m_Shown);
}

void ScriptPane::ShowControls(const std::vector<Ref<IControl>>& controls) {
  std::vector<Text> names;
  m_Controls->Clear();
  for (const Ref<IControl>& control : controls) {
    m_Controls->Add(Variant(control));
    names.push_back(control->UserName());
  }
  if (std::exchange(m_ControlNames, names) == names) return;
  const FocusGuard guard(*this);
  m_Editor->Object()->RefreshControlsList();
  m_FaultMark->CheckSoon(m_Shown, m_ControlNames);
}

void ScriptPane::OpenDefaultEvent(const IControl& control) {
  Choose(Controls(), Controls().findText(qt::ToQString(control.UserName()), Qt::MatchFixedString));
  const QString event = qt::ToQString(DefaultEvent(control));
  const int plain = Events().findText(event, Qt::MatchFixedString);
  Choose(Events(), plain >= 0 ? plain : Events().findText(event + kWrittenMark, Qt::MatchFixedString));
}

void ScriptPane::CheckWith(ScriptLanguages languages) {
  m_FaultMark->SetLanguages(std::move(languages));
  m_FaultMark->CheckSoon(m_Shown, m_ControlNames);
}

// The toolkit's editor has only one of the two shortcuts of Redo; the other would redo a step of the form.
void ScriptPane::RunKey(int key) {
  if (key == Qt::Key_Y) m_Editor->Object()->DoRedo();
  if (key == Qt::Key_G) AskForLine(*m_Edit);
  if (key == Qt::Key_Slash)
    ToggleComment(*m_Edit, IsVbscript(m_Shown.language) ? QStringLiteral("'") : QStringLiteral("//"));
}

bool ScriptPane::eventFilter(QObject* object, QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  if (!isPress && event->type() != QEvent::ShortcutOverride) return QWidget::eventFilter(object, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (!IsPaneKey(key)) return QWidget::eventFilter(object, event);
  event->accept();
  if (isPress) RunKey(key.key());
  return true;
}

}  // namespace cardwright::workbench
