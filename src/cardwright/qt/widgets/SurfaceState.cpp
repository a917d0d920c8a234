// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/SurfaceState.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QMetaObject>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

SurfaceState::Handling::~Handling() {
  if (--m_State->m_Depth > 0) return;
  // The toolkit may still be on its way out of the event: leave the rest to the event loop.
  for (const QPointer<QWidget>& widget : std::exchange(m_State->m_Removed, {})) {
    if (widget) widget->deleteLater();
  }
}

// Only moves with a button down count: a drag is evaluated late, when the mouse may have moved on without it.
void SurfaceState::NoteCursor(const QMouseEvent& event) {
  if (event.type() == QEvent::MouseMove && event.buttons() == Qt::NoButton) return;
  cursor = event.globalPosition().toPoint();
}

QButtonGroup& SurfaceState::OptionsIn(QWidget& container) {
  QPointer<QButtonGroup>& group = m_Options[&container];
  if (!group) group = new QButtonGroup(&container);
  return *group;
}

void SurfaceState::Delete(QWidget* widget) {
  if (m_Depth == 0) {
    delete widget;
    return;
  }
  widget->hide();
  widget->setParent(nullptr);  // or it would go with its parent, when the handler closes the whole window
  m_Removed.emplace_back(widget);
}

void SurfaceState::FlushLater(Ref<Widget> widget) {
  if (m_ToFlush.empty())
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [self = Ref<SurfaceState>(this)] { self->FlushAll(); },
        Qt::QueuedConnection);
  m_ToFlush.push_back(std::move(widget));
}

void SurfaceState::FlushAll() {
  for (const Ref<Widget>& widget : std::exchange(m_ToFlush, {})) dynamic_cast<WidgetCore&>(*widget).Flush();
}

}  // namespace cardwright::qt
