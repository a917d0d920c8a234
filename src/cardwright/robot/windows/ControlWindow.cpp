// SPDX-License-Identifier: MIT
#include "cardwright/robot/windows/ControlWindow.h"

#include "cardwright/qt/surface/QtHostWindow.h"

namespace cardwright::robot {

namespace {

constexpr QSize kFirstSize(640, 480);  // until the form asks for its own

}  // namespace

ControlWindow::ControlWindow(std::unique_ptr<qt::VisualControl> control) : m_Control(control.release()) {
  m_Control->setParent(this);
  connect(m_Control, &qt::VisualControl::NeedResize, this, [this] { resize(m_Control->size()); });
  setMaximumSize(qt::kLargestWindow, qt::kLargestWindow);
  resize(kFirstSize);
}

bool ControlWindow::IsUnused() const {
  const Object* const object = m_Control->Control().get();
  return object->IsUnique();
}

void ControlWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_Control->resize(size());
}

}  // namespace cardwright::robot
