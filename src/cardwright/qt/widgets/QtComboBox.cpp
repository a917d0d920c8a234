// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/QtComboBox.h"

#include <QComboBox>
#include <QLineEdit>

#include "cardwright/qt/widgets/FieldCombo.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kComboBox = MakeFieldKind(u"ComboBox", MouseUse::LeftButton, ClickSource::Widget);
constexpr int kTextIsReadOnly = 383;

}  // namespace

QtComboBox::QtComboBox(WidgetPlace place)
    : QtLineEntry(kComboBox, place), m_Combo(new FieldCombo(place.parent)) {
  m_Combo->setInsertPolicy(QComboBox::NoInsert);
  Adopt(*m_Combo);
  QObject::connect(m_Combo, &QComboBox::activated, this, [this](int index) { OnActivated(index); });
}

void QtComboBox::OnActivated(int index) {
  const HandlerScope scope(*this);
  SetChosen(index);
  if (Native()) NotifyClick();
}

/// Those that follow the choice know of it before the listener does.
void QtComboBox::SetChosen(int index) {
  if (index == m_ListIndex) return;
  m_ListIndex = index;
  Q_EMIT m_Choice.Changed();
}

Text QtComboBox::DisplayText() const {
  const bool isPlain = !IsEditable() && m_ListIndex < 0;
  return FromQString(isPlain ? m_Combo->placeholderText() : m_Combo->currentText());
}

void QtComboBox::SetDisplayText(const Text& text) {
  const QString wanted = ToQString(text);
  if (wanted == Live(m_Combo)->currentText()) return;
  if (!m_Combo->isEditable()) {
    const int index = m_Combo->findText(wanted, Qt::MatchFixedString);
    // A box that is only drawn shows any text, as authors are used to.
    if (index < 0 && m_Place.state->isDesigned) return m_Combo->setPlaceholderText(wanted);
    if (index < 0) Raise(kTextIsReadOnly);
    SetListIndex(index);
    return;
  }
  const Ref<Widget> keepAlive(&Self());
  SetChosen(-1);
  Live(m_Combo)->lineEdit()->setText(wanted);
  m_Combo->lineEdit()->setCursorPosition(0);
  NotifyChange();
}

void QtComboBox::ApplyLocked() {
  if (QLineEdit* edit = m_Combo->lineEdit()) edit->setReadOnly(m_IsLocked);
}

void QtComboBox::ApplyMaxLength(int length) {
  if (QLineEdit* edit = m_Combo->lineEdit()) SetLimit(*edit, length);
}

QLineEdit& QtComboBox::Editor() const {
  if (!IsEditable()) Raise(ErrorNumber::InvalidCall);
  return *m_Combo->lineEdit();
}

bool QtComboBox::IsEditable() const { return Live(m_Combo)->isEditable(); }

void QtComboBox::SetEditable(bool editable) {
  if (editable == IsEditable()) return;
  const QString plain = m_Combo->placeholderText();
  m_Combo->setEditable(editable);
  if (editable) SetUpEditor();
  Select(m_ListIndex);
  if (editable && m_ListIndex < 0) m_Combo->lineEdit()->setText(plain);
}

void QtComboBox::SetUpEditor() {
  QLineEdit& edit = *m_Combo->lineEdit();
  // What is typed stays as it is: no completion, and no selection of the entry that happens to equal it.
  m_Combo->setCompleter(nullptr);
  QObject::disconnect(&edit, &QLineEdit::editingFinished, m_Combo, nullptr);
  edit.setReadOnly(m_IsLocked);
  SetLimit(edit, m_MaxLength);
  WatchPart(edit);
  // By hand or by SelText; a text that is set as a whole does not count as edited.
  QObject::connect(&edit, &QLineEdit::textEdited, this, [this] {
    const HandlerScope scope(*this);
    SetChosen(-1);
    if (Native()) NotifyChange();
  });
}

void QtComboBox::RequireIndex(int index) const {
  if (index < 0 || index >= ListCount()) Raise(ErrorNumber::InvalidCall);
}

int QtComboBox::ListCount() const { return Live(m_Combo)->count(); }

Text QtComboBox::ListText(int index) const {
  RequireIndex(index);
  return FromQString(m_Combo->itemText(index));
}

void QtComboBox::SetListText(int index, const Text& text) {
  RequireIndex(index);
  m_Combo->setItemText(index, ToQString(text));
}

std::int32_t QtComboBox::ItemData(int index) const {
  RequireIndex(index);
  return m_Combo->itemData(index).toInt();
}

void QtComboBox::SetItemData(int index, std::int32_t data) {
  RequireIndex(index);
  m_Combo->setItemData(index, data);
}

int QtComboBox::ListIndex() const { return Live(m_ListIndex); }

void QtComboBox::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) Raise(ErrorNumber::InvalidPropertyValue);
  if (index == m_ListIndex) return;
  const Ref<Widget> keepAlive(&Self());
  Select(index);
  if (Native()) NotifyClick();
}

void QtComboBox::Select(int index) {
  if (index >= 0) m_Combo->setPlaceholderText({});
  m_Combo->setCurrentIndex(index);
  if (QLineEdit* edit = m_Combo->lineEdit()) edit->setText(m_Combo->itemText(index));
  SetChosen(index);
}

/// The toolkit selects the first entry of a list that was empty and the neighbour of an entry that goes; here
/// a selection changes only where somebody selects, and a typed text stays.
template <class Change>
void QtComboBox::ChangeList(Change&& change, int indexAfter) {
  const QString text = m_Combo->currentText();
  const bool isTyped = m_ListIndex < 0;
  change();
  Select(indexAfter);
  if (isTyped && Native() && m_Combo->isEditable()) m_Combo->lineEdit()->setText(text);
}

void QtComboBox::AddItem(const Text& text, std::optional<int> index) {
  const int at = index.value_or(ListCount());
  if (at < 0 || at > ListCount()) Raise(ErrorNumber::InvalidCall);
  const int after = m_ListIndex >= at ? m_ListIndex + 1 : m_ListIndex;
  ChangeList([&] { m_Combo->insertItem(at, ToQString(text)); }, after);
}

void QtComboBox::RemoveItem(int index) {
  RequireIndex(index);
  const int after = m_ListIndex == index ? -1 : m_ListIndex > index ? m_ListIndex - 1 : m_ListIndex;
  ChangeList([&] { m_Combo->removeItem(index); }, after);
}

void QtComboBox::Clear() {
  Live(m_Combo)->clear();
  m_Combo->setPlaceholderText({});
  Select(-1);
}

float QtComboBox::HeightFor(float /*height*/) const {
  return PixelsToScale(static_cast<float>(m_Combo->sizeHint().height()), Scale());
}

void QtComboBox::OnFontApplied() {
  m_State.height = HeightFor(0);
  ApplyGeometry();
}

bool QtComboBox::TakesWheel() const { return !m_IsLocked && m_Combo->hasFocus(); }

}  // namespace cardwright::qt
