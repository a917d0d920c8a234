#include "workbench/ScriptPane.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextBlock>
#include <QVBoxLayout>

#include "qt/QtText.h"

namespace cardwright::workbench {
namespace {

// The editor knows line feeds only; projects have both characters at the end of a line.
QString WithLineFeeds(const Text& content) {
  return qt::ToQString(content).replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}
Text WithBoth(QString text) { return qt::FromQString(text.replace(u'\n', QLatin1String("\r\n"))); }

}  // namespace

ScriptPane::ScriptPane(QWidget* parent)
    : QWidget(parent),
      m_Language(new QComboBox(this)),
      m_Place(new QLabel(this)),
      m_Editor(new QPlainTextEdit(this)) {
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

void ScriptPane::Show(const Script& script) {
  if (script == m_Shown) return;
  m_IsShowing = true;
  const bool sameText = script.content == m_Shown.content;
  m_Shown = script;
  // A language of any case is the same; an unknown one stays in the list as it is.
  const QString language = qt::ToQString(script.language);
  int at = m_Language->findText(language, Qt::MatchFixedString);
  if (at < 0) {
    m_Language->addItem(language);
    at = m_Language->count() - 1;
  }
  m_Language->setCurrentIndex(at);
  if (!sameText) m_Editor->setPlainText(WithLineFeeds(script.content));
  m_IsShowing = false;
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
