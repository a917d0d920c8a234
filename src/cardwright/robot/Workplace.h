#pragma once

#include <QPointer>
#include <vector>

#include "cardwright/hosting/ClassRegistry.h"
#include "cardwright/robot/ControlWindow.h"
#include "cardwright/robot/HostList.h"

namespace cardwright::robot {

/// The windows and the connections of one script run. Both end with it.
class Workplace {
 public:
  Workplace() = default;
  ~Workplace();
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

  /// Adds Cardwright.Hosts, Cardwright.Robot and the visual controls; the classes may be used as long as the
  /// workplace lasts. They need a QApplication and the thread's desktop.
  void AddClasses(ClassRegistry& classes);

 private:
  Ref<Object> MakeFormInput();
  Ref<Object> MakeFormDesigner();
  /// Gives a new control a window.
  ControlWindow& Place(std::unique_ptr<qt::VisualControl> control);

  const Ref<HostList> m_Hosts = MakeRef<HostList>();
  std::vector<QPointer<ControlWindow>> m_Windows;
};

}  // namespace cardwright::robot
