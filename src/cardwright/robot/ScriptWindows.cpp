// SPDX-License-Identifier: MIT
#include "cardwright/robot/ScriptWindows.h"

#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/OrvEditor.h"
#include "cardwright/robot/Robot.h"
#include "cardwright/robot/hosts/Hosts.h"

namespace cardwright::robot {

ScriptWindows::~ScriptWindows() {
  for (const QPointer<ControlWindow>& window : m_Windows) delete window.data();
  m_Hosts->CloseAll();
}

void ScriptWindows::AddClasses(ClassRegistry& classes) {
  classes.Add(u"Cardwright.Hosts", [this] { return MakeRef<Hosts>(m_Hosts); });
  classes.Add(u"Cardwright.Robot", [] { return MakeRef<Robot>(); });
  classes.Add(u"Cardwright.FormInput", [this] { return MakeFormInput(); });
  classes.Add(u"Cardwright.FormDesigner", [this] { return Make<qt::FormDesigner>(); });
  classes.Add(u"Cardwright.OrvEditor", [this] { return Make<qt::OrvEditor>(); });
}

Ref<Object> ScriptWindows::MakeFormInput() {
  auto form = std::make_unique<qt::FormInput>();
  const Ref<Object> object = form->Control();
  const qt::FormInput* const placed = form.get();
  QObject::connect(placed, &qt::FormInput::SetParentCaption, &AddWindow(std::move(form)),
                   &QWidget::setWindowTitle);
  return object;
}

template <class Control>
Ref<Object> ScriptWindows::Make() {
  return AddWindow(std::make_unique<Control>()).Control().Control();
}

// A script may make a control for each of ten thousand features, so windows of controls that it has released
// are closed here.
ControlWindow& ScriptWindows::AddWindow(std::unique_ptr<qt::VisualControl> control) {
  std::erase_if(m_Windows, [](const QPointer<ControlWindow>& window) { return window.isNull(); });
  for (const QPointer<ControlWindow>& window : m_Windows) {
    if (!window->IsUnused()) continue;
    window->hide();
    window->deleteLater();  // it may be in the middle of an event
  }
  m_Windows.emplace_back(new ControlWindow(std::move(control)));
  return *m_Windows.back();
}

}  // namespace cardwright::robot
