// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/QtTextBox.h"

#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kTextBox = MakeFieldKind(u"TextBox", MouseUse::All, ClickSource::MouseRelease);

}  // namespace

QtTextBox::QtTextBox(WidgetPlace place) : QtLineEntry(kTextBox, place), m_Edit(new QLineEdit(place.parent)) {
  Adopt(*m_Edit);
  QObject::connect(m_Edit, &QLineEdit::textChanged, this, [this] { OnTextChanged(); });
}

void QtTextBox::OnTextChanged() {
  if (m_MaxLength != 0 && m_Edit->maxLength() > m_MaxLength) SetLimit(*m_Edit, m_MaxLength);
  NotifyChange();
}

QLineEdit& QtTextBox::Editor() const {
  RequireAlive();
  if (const auto pending = std::exchange(m_Pending, std::nullopt)) {
    // The caret goes to the start, so that a text too long for the box shows its beginning.
    const QSignalBlocker silence(m_Edit);
    m_Edit->setText(ToQString(*pending));
    m_Edit->setCursorPosition(0);
  }
  return *m_Edit;
}

void QtTextBox::Flush() {
  if (Native()) Editor();
}

// Only a text that the toolkit's widget would hold unchanged, since reading it has to give the same answer.
bool QtTextBox::CanPutOff(const Text& text) const {
  const std::u16string_view view = text;
  return !m_Edit->isVisible() && static_cast<int>(view.size()) <= m_Edit->maxLength() &&
         std::all_of(view.begin(), view.end(), [](char16_t c) { return c >= u' '; });
}

Text QtTextBox::DisplayText() const { return Live(m_Pending) ? *m_Pending : FromQString(m_Edit->text()); }

void QtTextBox::SetDisplayText(const Text& text) {
  if (DisplayText() == text) return;
  if (!m_Pending) FlushLater();
  m_Pending = text;
  if (!CanPutOff(text)) Editor();
  NotifyChange();
}

void QtTextBox::ApplyLocked() { m_Edit->setReadOnly(m_IsLocked); }

void QtTextBox::ApplyMaxLength(int length) {
  if (length != m_MaxLength) SetLimit(Editor(), length);
}

}  // namespace cardwright::qt
