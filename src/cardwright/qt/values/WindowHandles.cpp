// SPDX-License-Identifier: MIT
#include "cardwright/qt/values/WindowHandles.h"

#include <QWidget>

namespace cardwright::qt {

WindowHandles& WindowHandles::Instance() {
  static thread_local WindowHandles handles;
  return handles;
}

std::int32_t WindowHandles::HandleOf(QWidget& widget) {
  std::erase_if(m_Widgets, [](const auto& entry) { return entry.second.isNull(); });
  for (const auto& [handle, known] : m_Widgets) {
    if (known == &widget) return handle;
  }
  m_LastHandle += 2;  // even, as the platform's
  m_Widgets.emplace(m_LastHandle, &widget);
  return m_LastHandle;
}

QWidget* WindowHandles::Find(std::int32_t handle) const {
  const auto found = m_Widgets.find(handle);
  return found == m_Widgets.end() ? nullptr : found->second.data();
}

}  // namespace cardwright::qt
