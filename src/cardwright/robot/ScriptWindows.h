// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <vector>

#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/robot/hosts/OpenConnections.h"
#include "cardwright/robot/windows/ControlWindow.h"

namespace cardwright::robot {

/// The windows and the connections of one script run. They are closed when it ends.
class ScriptWindows {
 public:
  ScriptWindows() = default;
  ~ScriptWindows();
  ScriptWindows(const ScriptWindows&) = delete;
  ScriptWindows& operator=(const ScriptWindows&) = delete;

  /// Adds Cardwright.Hosts, Cardwright.Robot and the visual controls. The classes need a QApplication and the
  /// thread's desktop, and may be used only as long as this object exists.
  void AddClasses(ClassRegistry& classes);

 private:
  Ref<Object> MakeFormInput();
  template <class Control>
  Ref<Object> Make();
  /// Puts a new control into a window.
  ControlWindow& AddWindow(std::unique_ptr<qt::VisualControl> control);

  const Ref<OpenConnections> m_Hosts = MakeRef<OpenConnections>();
  std::vector<QPointer<ControlWindow>> m_Windows;
};

}  // namespace cardwright::robot
