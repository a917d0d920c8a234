// SPDX-License-Identifier: MIT
#include "cardwright/qt/FormDesigner.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

#include "cardwright/automation/Array.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

namespace {

QStringList ToQStrings(const Variant& list) {
  QStringList texts;
  const Variant& value = list.Deref();
  if (!value.IsArray()) return texts;
  for (const Variant& text : value.ArrayPtr()->Values()) texts.push_back(ToQString(ToText(text)));
  return texts;
}

}  // namespace

FormDesigner::FormDesigner(QWidget* parent)
    : VisualControl(parent),
      m_Surface(std::make_unique<QtDesignSurface>(*this)),
      m_Designer(cardwright::FormDesigner::Create(*m_Surface)) {
  m_Surface->SetControl(m_Designer.get());
  m_Connection = m_Designer->Connect([this](std::u16string_view event, Args args) { Forward(event, args); });
  connect(m_Surface.get(), &QtDesignSurface::KeptPropertyChanged, this,
          [this] { Q_EMIT EnableKeyDeleteChanged(EnableKeyDelete()); });
  connect(m_Surface.get(), &QtDesignSurface::MenuKeyPressed, this, &FormDesigner::OpenMenuByKey);
}

// The control may live on in the hands of a script, or in the middle of a drag that closed the window.
FormDesigner::~FormDesigner() {
  m_Designer->Disconnect(m_Connection);
  m_Designer->DetachSurface();
}

void FormDesigner::Forward(std::u16string_view event, Args args) {
  if (event == u"Resize") {
    Q_EMIT Resize();
  } else if (event == u"StateChanged") {
    Q_EMIT StateChanged(ToQString(ToText(args[0])));
  } else if (event == u"MenuStateChanged") {
    Q_EMIT MenuStateChanged(ToQString(ToText(args[0])), ToBoolean(args[1]));
  } else if (event == u"PropertyMenuClick") {
    Q_EMIT PropertyMenuClick();
  } else if (event == u"RefreshPropertyList") {
    Q_EMIT RefreshPropertyList();
  } else if (event == u"AttribsList") {
    Q_EMIT AttribsList(ToQStrings(args[0]));
  } else if (event == u"NeedResize") {
    NotifyNeedResize(ToSingle(args[0]), ToSingle(args[1]));
  } else if (event == u"ControlsLocked") {
    Q_EMIT ControlsLocked(ToBoolean(args[0]));
  } else {
    ForwardControl(event, args);
  }
}

void FormDesigner::ForwardControl(std::u16string_view event, Args args) {
  if (event == u"CurrObjectChanged") {
    Q_EMIT CurrObjectChanged(AsControl(args[0].Deref()));
  } else if (event == u"PropertyChanged") {
    Q_EMIT PropertyChanged(ToLong(args[0]), args[1].Deref());
  } else if (event == u"ObjectRemoved") {
    Q_EMIT ObjectRemoved(ToQString(ToText(args[0])));
  } else if (event == u"ControlNameChanged") {
    const IControl* control = AsControl(args[1].Deref());
    Q_EMIT ControlNameChanged(ToQString(ToText(args[0])),
                              control ? ToQString(control->UserName()) : QString());
  }
}

bool FormDesigner::ProjectRead(const QString& fileName) {
  return m_Designer->ProjectRead(FromQString(fileName));
}
bool FormDesigner::ProjectSave(const QString& fileName, bool isTemporary) {
  return m_Designer->ProjectSave(FromQString(fileName), isTemporary);
}
bool FormDesigner::EnableKeyDelete() const { return m_Designer->EnableKeyDelete(); }
void FormDesigner::SetEnableKeyDelete(bool enable) { m_Designer->SetEnableKeyDelete(enable); }

QWidget* FormDesigner::CurrentWidget() const {
  const Ref<IControl> control = m_Designer->CurrentControl();
  const Ref<cardwright::Object> bound = control ? control->BoundObject() : nullptr;
  const auto* core = dynamic_cast<const WidgetCore*>(bound.get());
  return core ? core->Native() : nullptr;
}

// As the right button would in the middle of what is selected: of a control, or of the bare surface.
void FormDesigner::OpenMenuByKey() {
  QWidget* const current = CurrentWidget();
  const QPointer<QWidget> pressed = current ? current : this;
  const QPoint at = current ? current->rect().center() : visibleRegion().boundingRect().center();
  const auto send = [&](QEvent::Type type, Qt::MouseButtons held) {
    QMouseEvent event(type, at, pressed->mapToGlobal(at), Qt::RightButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(pressed, &event);
  };
  send(QEvent::MouseButtonPress, Qt::RightButton);
  if (pressed) send(QEvent::MouseButtonRelease, Qt::NoButton);
}

// The focus is parked while a control is selected: Tab goes on from the control and not from there, and past
// the last one it leaves the designer.
bool FormDesigner::focusNextPrevChild(bool next) {
  QWidget* const current = CurrentWidget();
  if (!current) return VisualControl::focusNextPrevChild(next);
  const auto step = [next](QWidget* at) {
    return next ? at->nextInFocusChain() : at->previousInFocusChain();
  };
  for (QWidget* at = step(current); at != current; at = step(at)) {
    const WidgetCore* core = at->isVisible() && isAncestorOf(at) ? WidgetCore::Of(*at) : nullptr;
    const bool isControl = core && core->Native() == at && at->focusPolicy() & Qt::TabFocus;
    if (isControl && m_Surface->Find(ViewOf(at->objectName()))) {
      at->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      return true;
    }
    if (at == this) return VisualControl::focusNextPrevChild(next);
  }
  return VisualControl::focusNextPrevChild(next);
}

}  // namespace cardwright::qt
