#include "cardwright/qt/widgets/QtTextBox.h"

#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/FieldKind.h"
#include "cardwright/qt/widgets/LineEditText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kTextBox = MakeFieldKind(u"TextBox", MouseUse::All, ClickSource::MouseRelease);

}  // namespace

QtTextBox::QtTextBox(WidgetPlace place) : QtWidget(kTextBox, place), m_Edit(new QLineEdit(place.parent)) {
  Adopt(*m_Edit);
  QObject::connect(m_Edit, &QLineEdit::textChanged, this, [this] { OnTextChanged(); });
}

void QtTextBox::OnTextChanged() {
  if (m_MaxLength != 0 && m_Edit->maxLength() > m_MaxLength) SetLimit(*m_Edit, m_MaxLength);
  NotifyChange();
}

QLineEdit& QtTextBox::Edit() const {
  if (const auto waiting = std::exchange(m_Waiting, std::nullopt)) {
    // The caret goes to the start, so that a text too long for the box shows its beginning.
    const QSignalBlocker silence(m_Edit);
    m_Edit->setText(ToQString(*waiting));
    m_Edit->setCursorPosition(0);
  }
  return *m_Edit;
}

void QtTextBox::Settle() {
  if (Native()) Edit();
}

// Only a text that the toolkit's widget would hold unchanged, as the answer to a question has to be the same.
bool QtTextBox::CanWait(const Text& text) const {
  const std::u16string_view view = text;
  return !m_Edit->isVisible() && static_cast<int>(view.size()) <= m_Edit->maxLength() &&
         std::all_of(view.begin(), view.end(), [](char16_t c) { return c >= u' '; });
}

Text QtTextBox::DisplayText() const {
  RequireAlive();
  return m_Waiting ? *m_Waiting : FromQString(m_Edit->text());
}

void QtTextBox::SetDisplayText(const Text& text) {
  RequireAlive();
  if (DisplayText() == text) return;
  if (!m_Waiting) SettleSoon();
  m_Waiting = text;
  if (!CanWait(text)) Edit();
  NotifyChange();
}

bool QtTextBox::IsLocked() const {
  RequireAlive();
  return m_Edit->isReadOnly();
}

void QtTextBox::SetLocked(bool locked) {
  RequireAlive();
  m_Edit->setReadOnly(locked);
}

int QtTextBox::MaxLength() const {
  RequireAlive();
  return m_MaxLength;
}

void QtTextBox::SetMaxLength(int length) {
  RequireAlive();
  if (length == m_MaxLength) return;
  SetLimit(Edit(), length);
  m_MaxLength = length;
}

int QtTextBox::SelStart() const {
  RequireAlive();
  return SelectionStart(Edit());
}

void QtTextBox::SetSelStart(int start) {
  RequireAlive();
  SetSelectionStart(Edit(), start);
}

int QtTextBox::SelLength() const {
  RequireAlive();
  return static_cast<int>(Edit().selectedText().size());
}

void QtTextBox::SetSelLength(int length) {
  RequireAlive();
  SetSelectionLength(Edit(), length);
}

Text QtTextBox::SelText() const {
  RequireAlive();
  return FromQString(Edit().selectedText());
}

void QtTextBox::SetSelText(const Text& text) {
  RequireAlive();
  Edit().insert(ToQString(text));
}

}  // namespace cardwright::qt
