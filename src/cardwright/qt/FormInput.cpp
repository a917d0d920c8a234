// SPDX-License-Identifier: MIT
#include "cardwright/qt/FormInput.h"

#include <QApplication>
#include <QKeyEvent>

#include "cardwright/qt/AccessibleNames.h"
#include "cardwright/qt/surface/QtSurface.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

FormInput::FormInput(QWidget* parent)
    : VisualControl(parent),
      m_Surface(std::make_unique<QtSurface>(*this)),
      m_Input(cardwright::FormInput::Create(*m_Surface)) {
  m_Surface->SetControl(m_Input.get());
  m_Connection = m_Input->Connect([this](std::u16string_view event, Args args) { Forward(event, args); });
  QAccessible::installActivationObserver(this);
  // What scripts have changed since is known by then.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (now && isAncestorOf(now)) NameControls(now);
  });
}

// The control may live on in the hands of a script, or in the middle of a step that closed the window.
FormInput::~FormInput() {
  QAccessible::removeActivationObserver(this);
  disconnect(qApp, nullptr, this, nullptr);
  m_Input->Disconnect(m_Connection);
  m_Input->DetachSurface();
}

void FormInput::Forward(std::u16string_view event, Args args) {
  if (event == u"NeedResize") {
    NameControls();
    NotifyNeedResize(ToSingle(args[0]), ToSingle(args[1]));
  } else if (event == u"OkClick") {
    Q_EMIT OkClick();
  } else if (event == u"CancelClick") {
    Q_EMIT CancelClick();
  } else if (event == u"SetParentCaption") {
    Q_EMIT SetParentCaption(ToQString(ToText(args[0])));
  } else if (event == u"ControlNameChanged") {
    const IControl* control = AsControl(args[1]);
    Q_EMIT ControlNameChanged(ToQString(ToText(args[0])),
                              control ? ToQString(control->UserName()) : QString());
  }
}

bool FormInput::ProjectRead(const QString& fileName) { return m_Input->ProjectRead(FromQString(fileName)); }
bool FormInput::ProjectSave(const QString& fileName, bool isTemporary) {
  return m_Input->ProjectSave(FromQString(fileName), isTemporary);
}
QString FormInput::FeatureID() const { return ToQString(m_Input->FeatureID()); }
void FormInput::SetFeatureID(const QString& id) { m_Input->SetFeatureID(FromQString(id)); }
bool FormInput::NewFeature() const { return m_Input->NewFeature(); }
void FormInput::SetNewFeature(bool isNew) { m_Input->SetNewFeature(isNew); }
bool FormInput::DebugMode() const { return m_Input->DebugMode(); }
void FormInput::SetDebugMode(bool debug) { m_Input->SetDebugMode(debug); }
bool FormInput::StoresAttributes() const { return m_Input->StoresAttributes(); }
void FormInput::SetStoresAttributes(bool enabled) {
  m_Input->SetStoresAttributes(enabled);
  Q_EMIT SetAttributesEnabledChanged(enabled);
}

void FormInput::accessibilityActiveChanged(bool active) {
  m_HasReader = active;
  NameControls();
}

void FormInput::NameControls(const QWidget* only) {
  if (m_HasReader) SetAccessibleNames(ControlsOf(m_Input->Controls()), only);
}

QPushButton* FormInput::FixedButton(std::u16string_view name) const {
  const Ref<Widget> widget = m_Surface->Find(name);
  const auto* core = dynamic_cast<WidgetCore*>(widget.get());
  return core ? qobject_cast<QPushButton*>(core->Native()) : nullptr;
}

// What the field with the focus did not use: Enter and Esc press the fixed buttons, as in any dialog.
void FormInput::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  QPushButton* button = nullptr;
  if (modifiers == Qt::NoModifier && enter) button = FixedButton(u"cmdOK");
  if (modifiers == Qt::NoModifier && event->key() == Qt::Key_Escape) button = FixedButton(u"cmdCancel");
  if (!button) return VisualControl::keyPressEvent(event);
  event->accept();
  button->click();
}

// The fixed buttons are the oldest children and so first in the focus chain; a user begins in the first
// field.
void FormInput::showEvent(QShowEvent* event) {
  VisualControl::showEvent(event);
  NameControls();
  if (focusWidget()) return;
  const QWidget* ok = FixedButton(u"cmdOK");
  const QWidget* cancel = FixedButton(u"cmdCancel");
  for (QWidget* next = nextInFocusChain(); next && next != this; next = next->nextInFocusChain()) {
    const bool takesFocus =
        (next->focusPolicy() & Qt::TabFocus) && isAncestorOf(next) && next->isVisibleTo(this);
    if (!takesFocus || !next->isEnabled() || next == ok || next == cancel) continue;
    return next->setFocus(Qt::OtherFocusReason);
  }
}

void FormInput::resizeEvent(QResizeEvent* event) {
  VisualControl::resizeEvent(event);
  if (DesignMode()) m_Input->PlaceButtonsForDesign();
}

}  // namespace cardwright::qt
