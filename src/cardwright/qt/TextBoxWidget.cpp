#include "cardwright/qt/TextBoxWidget.h"

#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "cardwright/qt/FieldKind.h"
#include "cardwright/qt/LineEditText.h"
#include "cardwright/qt/QtText.h"

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

QLineEdit& TextBoxWidget::Edit() const {
  if (const auto waiting = std::exchange(m_Waiting, std::nullopt)) {
    // The caret goes to the start, so that a text too long for the box shows its beginning.
    const QSignalBlocker silence(m_Edit);
    m_Edit->setText(ToQString(*waiting));
    m_Edit->setCursorPosition(0);
  }
  return *m_Edit;
}

void TextBoxWidget::Settle() {
  if (Native()) Edit();
}

// Only a text that the toolkit's widget would hold unchanged, as the answer to a question has to be the same.
bool TextBoxWidget::CanWait(const Text& text) const {
  const std::u16string_view view = text;
  return !m_Edit->isVisible() && static_cast<int>(view.size()) <= m_Edit->maxLength() &&
         std::all_of(view.begin(), view.end(), [](char16_t c) { return c >= u' '; });
}

Text TextBoxWidget::DisplayText() const {
  RequireAlive();
  return m_Waiting ? *m_Waiting : FromQString(m_Edit->text());
}

void TextBoxWidget::SetDisplayText(const Text& text) {
  RequireAlive();
  if (DisplayText() == text) return;
  if (!m_Waiting) SettleSoon();
  m_Waiting = text;
  if (!CanWait(text)) Edit();
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
  if (length == m_MaxLength) return;
  SetLimit(Edit(), length);
  m_MaxLength = length;
}

int TextBoxWidget::SelStart() const {
  RequireAlive();
  return SelectionStart(Edit());
}

void TextBoxWidget::SetSelStart(int start) {
  RequireAlive();
  SetSelectionStart(Edit(), start);
}

int TextBoxWidget::SelLength() const {
  RequireAlive();
  return static_cast<int>(Edit().selectedText().size());
}

void TextBoxWidget::SetSelLength(int length) {
  RequireAlive();
  SetSelectionLength(Edit(), length);
}

Text TextBoxWidget::SelText() const {
  RequireAlive();
  return FromQString(Edit().selectedText());
}

void TextBoxWidget::SetSelText(const Text& text) {
  RequireAlive();
  Edit().insert(ToQString(text));
}

}  // namespace cardwright::qt
