#include "robot/Workplace.h"

#include "robot/Hosts.h"
#include "robot/Robot.h"

namespace cardwright::robot {

Workplace::~Workplace() {
  for (const QPointer<ControlWindow>& window : m_Windows) delete window.data();
  m_Hosts->CloseAll();
}

void Workplace::AddClasses(ClassRegistry& classes) {
  classes.Add(u"Cardwright.Hosts", [this] { return MakeRef<Hosts>(m_Hosts); });
  classes.Add(u"Cardwright.Robot", [] { return MakeRef<Robot>(); });
  classes.Add(u"Cardwright.FormInput", [this] { return MakeFormInput(); });
}

// A run may make a control for each of ten thousand features: the windows of those that the script has let go
// of are taken down here.
Ref<Object> Workplace::MakeFormInput() {
  std::erase_if(m_Windows, [](const QPointer<ControlWindow>& window) { return window.isNull(); });
  for (const QPointer<ControlWindow>& window : m_Windows) {
    if (!window->IsForgotten()) continue;
    window->hide();
    window->deleteLater();  // it may be in the middle of an event
  }
  m_Windows.emplace_back(new ControlWindow);
  return m_Windows.back()->Form().Object();
}

}  // namespace cardwright::robot
