#include "qt/SurfaceState.h"

#include <utility>

namespace cardwright::qt {

SurfaceState::Handling::~Handling() {
  if (--m_State->m_Depth > 0) return;
  // The toolkit may still be on its way out of the event: leave the rest to the event loop.
  for (const QPointer<QWidget>& widget : std::exchange(m_State->m_Removed, {})) {
    if (widget) widget->deleteLater();
  }
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
  m_Removed.emplace_back(widget);
}

}  // namespace cardwright::qt
