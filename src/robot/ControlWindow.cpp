#include "robot/ControlWindow.h"

namespace cardwright::robot {

namespace {

constexpr QSize kFirstSize(640, 480);  // until a form has asked for its own

}  // namespace

ControlWindow::ControlWindow() : m_Form(new qt::FormInput(this)) {
  connect(m_Form, &qt::FormInput::SetParentCaption, this, &QWidget::setWindowTitle);
  connect(m_Form, &qt::FormInput::NeedResize, this, [this] { resize(m_Form->size()); });
  resize(kFirstSize);
}

bool ControlWindow::IsForgotten() const {
  const cardwright::FormInput* const object = m_Form->Object().get();
  return object->IsUnique();
}

void ControlWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  m_Form->resize(size());
}

}  // namespace cardwright::robot
