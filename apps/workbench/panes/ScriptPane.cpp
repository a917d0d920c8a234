#include "workbench/panes/ScriptPane.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTextBlock>
#include <QVBoxLayout>

#include "cardwright/qt/values/QtText.h"
#include "workbench/project/TextChange.h"

namespace cardwright::workbench {
namespace {

// The editor uses line feeds; projects have carriage return and line feed.
QString WithLineFeeds(const Text& content) {
  return qt::ToQString(content).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}
Text WithBoth(QString text) { return qt::FromQString(text.replace(u'\n', QLatin1String("\r\n"))); }

// Replaces only what differs, as an edit: cursors, scroll position and undo steps stay.
void Replace(QTextDocument& document, const QString& text) {
  const QString before = document.toPlainText();
  const TextChange change = ChangeBetween(qt::ViewOf(before), qt::ViewOf(text));
  QTextCursor cursor(&document);
  cursor.setPosition(static_cast<int>(change.begin));
  cursor.setPosition(static_cast<int>(change.endBefore), QTextCursor::KeepAnchor);
  cursor.insertText(text.sliced(static_cast<qsizetype>(change.begin),
                                static_cast<qsizetype>(change.endAfter - change.begin)));
}

/// Handles both shortcuts of Redo. The toolkit's editor has only one; the other would redo a step of the
/// form.
class ScriptEditor final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  bool event(QEvent* event) override {
    const bool isOurs = event->type() == QEvent::ShortcutOverride && IsRedo(static_cast<QKeyEvent&>(*event));
    if (isOurs) event->accept();
    return isOurs || QPlainTextEdit::event(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!IsRedo(*event)) return QPlainTextEdit::keyPressEvent(event);
    redo();
    event->accept();
  }

 private:
  static bool IsRedo(const QKeyEvent& key) {
    return key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier;
  }
};

}  // namespace

ScriptPane::ScriptPane(QWidget* parent)
    : QWidget(parent),
      m_Language(new QComboBox(this)),
      m_Place(new QLabel(this)),
      m_Editor(new ScriptEditor(this)) {
  m_Language->addItems({QStringLiteral("VBScript"), QStringLiteral("JScript")});
  m_Language->setAccessibleName(tr("Language of the script"));
  auto* label = new QLabel(tr("&Language:"), this);
  label->setBuddy(m_Language);
  m_Editor->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_Editor->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_Editor->setTabChangesFocus(true);
  m_Editor->setTabStopDistance(m_Editor->fontMetrics().horizontalAdvance(u' ') * 4);
  m_Editor->setAccessibleName(tr("Script of the form"));
  m_Editor->setPlaceholderText(tr("Procedures that the form's events run, such as Sub Form_Initialize()"));

  auto* head = new QHBoxLayout;
  head->setContentsMargins(4, 4, 4, 0);
  head->addWidget(label);
  head->addWidget(m_Language);
  head->addStretch();
  head->addWidget(m_Place);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(m_Editor, 1);

  connect(m_Editor, &QPlainTextEdit::textChanged, this, &ScriptPane::OnEdit);
  connect(m_Editor, &QPlainTextEdit::cursorPositionChanged, this, &ScriptPane::ShowPlace);
  connect(m_Language, &QComboBox::activated, this, &ScriptPane::OnEdit);
  ShowPlace();
}

void ScriptPane::Begin(const Script& script) {
  m_IsShowing = true;
  m_Shown = script;
  ShowLanguage(script.language);
  m_Editor->setPlainText(WithLineFeeds(script.content));
  m_IsShowing = false;
}

void ScriptPane::Show(const Script& script) {
  if (script == m_Shown) return;
  m_IsShowing = true;
  ShowLanguage(script.language);
  if (script.content != m_Shown.content) Replace(*m_Editor->document(), WithLineFeeds(script.content));
  m_Shown = script;
  m_IsShowing = false;
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

void ScriptPane::OnEdit() {
  if (m_IsShowing) return;
  Script edited = m_Shown;
  const QString text = m_Editor->toPlainText();
  if (text != WithLineFeeds(m_Shown.content)) edited.content = WithBoth(text);
  const QString language = m_Language->currentText();
  if (language.compare(qt::ToQString(m_Shown.language), Qt::CaseInsensitive) != 0)
    edited.language = qt::FromQString(language);
  if (edited == m_Shown) return;
  m_Shown = edited;
  Q_EMIT Edited(edited);
}

void ScriptPane::ShowPlace() {
  const QTextCursor cursor = m_Editor->textCursor();
  m_Place->setText(tr("Line %1, column %2").arg(cursor.blockNumber() + 1).arg(cursor.positionInBlock() + 1));
}

}  // namespace cardwright::workbench
