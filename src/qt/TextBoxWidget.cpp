#include "qt/TextBoxWidget.h"

#include <QLineEdit>

#include "qt/FieldKind.h"
#include "qt/LineEditText.h"
#include "qt/QtText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kTextBox = MakeFieldKind(u"TextBox", MouseUse::All, ClickSource::MouseRelease);

}  // namespace

TextBoxWidget::TextBoxWidget(WidgetPlace place)
    : QtWidget(kTextBox, place), m_Edit(new QLineEdit(place.parent)) {
  Adopt(*m_Edit);
  QObject::connect(m_Edit, &QLineEdit::textChanged, this, [this] { OnTextChanged(); });
}

void TextBoxWidget::OnTextChanged() {
  if (m_MaxLength != 0 && m_Edit->maxLength() > m_MaxLength) SetLimit(*m_Edit, m_MaxLength);
  NotifyChange();
}

Text TextBoxWidget::DisplayText() const {
  RequireAlive();
  return FromQString(m_Edit->text());
}

void TextBoxWidget::SetDisplayText(const Text& text) {
  RequireAlive();
  const QString wanted = ToQString(text);
  if (m_Edit->text() == wanted) return;
  // The caret goes to the start, so that a text too long for the box shows its beginning. It has to stand
  // there before the listener hears of the change, as that may set it.
  const QSignalBlocker silence(m_Edit);
  m_Edit->setText(wanted);
  m_Edit->setCursorPosition(0);
  NotifyChange();
}

bool TextBoxWidget::IsLocked() const {
  RequireAlive();
  return m_Edit->isReadOnly();
}

void TextBoxWidget::SetLocked(bool locked) {
  RequireAlive();
  m_Edit->setReadOnly(locked);
}

int TextBoxWidget::MaxLength() const {
  RequireAlive();
  return m_MaxLength;
}

void TextBoxWidget::SetMaxLength(int length) {
  RequireAlive();
  SetLimit(*m_Edit, length);
  m_MaxLength = length;
}

int TextBoxWidget::SelStart() const {
  RequireAlive();
  return SelectionStart(*m_Edit);
}

void TextBoxWidget::SetSelStart(int start) {
  RequireAlive();
  SetSelectionStart(*m_Edit, start);
}

int TextBoxWidget::SelLength() const {
  RequireAlive();
  return static_cast<int>(m_Edit->selectedText().size());
}

void TextBoxWidget::SetSelLength(int length) {
  RequireAlive();
  SetSelectionLength(*m_Edit, length);
}

Text TextBoxWidget::SelText() const {
  RequireAlive();
  return FromQString(m_Edit->selectedText());
}

void TextBoxWidget::SetSelText(const Text& text) {
  RequireAlive();
  m_Edit->insert(ToQString(text));
}

}  // namespace cardwright::qt
