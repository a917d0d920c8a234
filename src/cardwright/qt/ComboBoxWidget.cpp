#include "cardwright/qt/ComboBoxWidget.h"

#include <QComboBox>
#include <QLineEdit>

#include "cardwright/qt/FieldCombo.h"
#include "cardwright/qt/FieldKind.h"
#include "cardwright/qt/LineEditText.h"
#include "cardwright/qt/QtText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kComboBox = MakeFieldKind(u"ComboBox", MouseUse::LeftButton, ClickSource::Widget);
constexpr int kTextIsReadOnly = 383;

}  // namespace

ComboBoxWidget::ComboBoxWidget(WidgetPlace place)
    : QtWidget(kComboBox, place), m_Combo(new FieldCombo(place.parent)) {
  m_Combo->setInsertPolicy(QComboBox::NoInsert);
  Adopt(*m_Combo);
  QObject::connect(m_Combo, &QComboBox::activated, this, [this](int index) { OnActivated(index); });
}

void ComboBoxWidget::OnActivated(int index) {
  const Ref<Widget> keepAlive(&Self());
  const SurfaceState::Handling handling(*m_Place.state);
  SetChosen(index);
  if (Native()) NotifyClick();
}

/// Those that follow the choice know of it before the listener does.
void ComboBoxWidget::SetChosen(int index) {
  if (index == m_ListIndex) return;
  m_ListIndex = index;
  Q_EMIT m_Choice.Changed();
}

Text ComboBoxWidget::DisplayText() const {
  RequireAlive();
  const bool isPlain = !m_Combo->isEditable() && m_ListIndex < 0;
  return FromQString(isPlain ? m_Combo->placeholderText() : m_Combo->currentText());
}

void ComboBoxWidget::SetDisplayText(const Text& text) {
  RequireAlive();
  const QString wanted = ToQString(text);
  if (wanted == m_Combo->currentText()) return;
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
  RequireAlive();
  m_Combo->lineEdit()->setText(wanted);
  m_Combo->lineEdit()->setCursorPosition(0);
  NotifyChange();
}

bool ComboBoxWidget::IsLocked() const {
  RequireAlive();
  return m_IsLocked;
}

void ComboBoxWidget::SetLocked(bool locked) {
  RequireAlive();
  m_IsLocked = locked;
  if (QLineEdit* edit = m_Combo->lineEdit()) edit->setReadOnly(locked);
}

int ComboBoxWidget::MaxLength() const {
  RequireAlive();
  return m_MaxLength;
}

void ComboBoxWidget::SetMaxLength(int length) {
  RequireAlive();
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  m_MaxLength = length;
  if (QLineEdit* edit = m_Combo->lineEdit()) SetLimit(*edit, length);
}

QLineEdit& ComboBoxWidget::Editor() const {
  RequireAlive();
  if (!m_Combo->isEditable()) Raise(ErrorNumber::InvalidCall);
  return *m_Combo->lineEdit();
}

int ComboBoxWidget::SelStart() const { return SelectionStart(Editor()); }
void ComboBoxWidget::SetSelStart(int start) { SetSelectionStart(Editor(), start); }
int ComboBoxWidget::SelLength() const { return static_cast<int>(Editor().selectedText().size()); }
void ComboBoxWidget::SetSelLength(int length) { SetSelectionLength(Editor(), length); }
Text ComboBoxWidget::SelText() const { return FromQString(Editor().selectedText()); }

void ComboBoxWidget::SetSelText(const Text& text) { Editor().insert(ToQString(text)); }

bool ComboBoxWidget::IsEditable() const {
  RequireAlive();
  return m_Combo->isEditable();
}

void ComboBoxWidget::SetEditable(bool editable) {
  RequireAlive();
  if (editable == m_Combo->isEditable()) return;
  const QString plain = m_Combo->placeholderText();
  m_Combo->setEditable(editable);
  if (editable) SetUpEditor();
  Select(m_ListIndex);
  if (editable && m_ListIndex < 0) m_Combo->lineEdit()->setText(plain);
}

void ComboBoxWidget::SetUpEditor() {
  QLineEdit& edit = *m_Combo->lineEdit();
  // What is typed stays as it is: no completion, and no selection of the entry that happens to equal it.
  m_Combo->setCompleter(nullptr);
  QObject::disconnect(&edit, &QLineEdit::editingFinished, m_Combo, nullptr);
  edit.setReadOnly(m_IsLocked);
  SetLimit(edit, m_MaxLength);
  WatchPart(edit);
  // By hand or by SelText; a text that is set as a whole does not count as edited.
  QObject::connect(&edit, &QLineEdit::textEdited, this, [this] {
    const Ref<Widget> keepAlive(&Self());
    const SurfaceState::Handling handling(*m_Place.state);
    SetChosen(-1);
    if (Native()) NotifyChange();
  });
}

void ComboBoxWidget::RequireIndex(int index) const {
  if (index < 0 || index >= ListCount()) Raise(ErrorNumber::InvalidCall);
}

int ComboBoxWidget::ListCount() const {
  RequireAlive();
  return m_Combo->count();
}

Text ComboBoxWidget::ListText(int index) const {
  RequireIndex(index);
  return FromQString(m_Combo->itemText(index));
}

/// Nothing gives an entry a number, so each has the platform's initial one.
std::int32_t ComboBoxWidget::ItemData(int index) const {
  RequireIndex(index);
  return 0;
}

int ComboBoxWidget::ListIndex() const {
  RequireAlive();
  return m_ListIndex;
}

void ComboBoxWidget::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) Raise(ErrorNumber::InvalidPropertyValue);
  if (index == m_ListIndex) return;
  const Ref<Widget> keepAlive(&Self());
  Select(index);
  if (Native()) NotifyClick();
}

void ComboBoxWidget::Select(int index) {
  if (index >= 0) m_Combo->setPlaceholderText({});
  m_Combo->setCurrentIndex(index);
  if (QLineEdit* edit = m_Combo->lineEdit()) edit->setText(m_Combo->itemText(index));
  SetChosen(index);
}

/// The toolkit selects the first entry of a list that was empty and the neighbour of an entry that goes; here
/// a selection changes only where somebody selects, and a typed text stays.
template <class Change>
void ComboBoxWidget::ChangeList(Change&& change, int indexAfter) {
  const QString text = m_Combo->currentText();
  const bool isTyped = m_ListIndex < 0;
  change();
  Select(indexAfter);
  if (isTyped && Native() && m_Combo->isEditable()) m_Combo->lineEdit()->setText(text);
}

void ComboBoxWidget::AddItem(const Text& text, std::optional<int> index) {
  const int at = index.value_or(ListCount());
  if (at < 0 || at > ListCount()) Raise(ErrorNumber::InvalidCall);
  const int after = m_ListIndex >= at ? m_ListIndex + 1 : m_ListIndex;
  ChangeList([&] { m_Combo->insertItem(at, ToQString(text)); }, after);
}

void ComboBoxWidget::RemoveItem(int index) {
  RequireIndex(index);
  const int after = m_ListIndex == index ? -1 : m_ListIndex > index ? m_ListIndex - 1 : m_ListIndex;
  ChangeList([&] { m_Combo->removeItem(index); }, after);
}

void ComboBoxWidget::Clear() {
  RequireAlive();
  m_Combo->clear();
  m_Combo->setPlaceholderText({});
  Select(-1);
}

float ComboBoxWidget::HeightFor(float /*height*/) const {
  return PixelsToScale(static_cast<float>(m_Combo->sizeHint().height()), Scale());
}

void ComboBoxWidget::OnFontApplied() {
  m_State.height = HeightFor(0);
  ApplyGeometry();
}

bool ComboBoxWidget::TakesWheel() const { return !m_IsLocked && m_Combo->hasFocus(); }

}  // namespace cardwright::qt
