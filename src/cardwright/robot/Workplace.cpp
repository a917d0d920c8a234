#include "cardwright/robot/Workplace.h"

#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/robot/Hosts.h"
#include "cardwright/robot/Robot.h"

namespace cardwright::robot {

Workplace::~Workplace() {
  for (const QPointer<ControlWindow>& window : m_Windows) delete window.data();
  m_Hosts->CloseAll();
}

void Workplace::AddClasses(ClassRegistry& classes) {
  classes.Add(u"Cardwright.Hosts", [this] { return MakeRef<Hosts>(m_Hosts); });
  classes.Add(u"Cardwright.Robot", [] { return MakeRef<Robot>(); });
  classes.Add(u"Cardwright.FormInput", [this] { return MakeFormInput(); });
  classes.Add(u"Cardwright.FormDesigner", [this] { return MakeFormDesigner(); });
}

Ref<Object> Workplace::MakeFormInput() {
  auto form = std::make_unique<qt::FormInput>();
  const Ref<Object> object = form->Control();
  const qt::FormInput* const placed = form.get();
  QObject::connect(placed, &qt::FormInput::SetParentCaption, &Place(std::move(form)),
                   &QWidget::setWindowTitle);
  return object;
}

Ref<Object> Workplace::MakeFormDesigner() {
  return Place(std::make_unique<qt::FormDesigner>()).Control().Control();
}

// A run may make a control for each of ten thousand features: the windows of those that the script has let go
// of are taken down here.
ControlWindow& Workplace::Place(std::unique_ptr<qt::VisualControl> control) {
  std::erase_if(m_Windows, [](const QPointer<ControlWindow>& window) { return window.isNull(); });
  for (const QPointer<ControlWindow>& window : m_Windows) {
    if (!window->IsForgotten()) continue;
    window->hide();
    window->deleteLater();  // it may be in the middle of an event
  }
  m_Windows.emplace_back(new ControlWindow(std::move(control)));
  return *m_Windows.back();
}

}  // namespace cardwright::robot
