// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/robot/dialogs/DialogResponder.h"
#include "cardwright/robot/dialogs/RecordingDesktop.h"
#include "cardwright/robot/dialogs/TooltipRecorder.h"
#include "cardwright/robot/input/Mouse.h"

namespace cardwright::robot {

/// What all robots of a thread share: the mouse, the answers to dialogs, and the record of what was shown. It
/// starts with the first robot and ends with the last.
class RobotSession final : public RefCounted {
 public:
  static Ref<RobotSession> OfThread();

  Mouse mouse;
  DialogResponder responder{mouse};
  TooltipRecorder tooltips;
  RecordingDesktop desktop;

 private:
  RobotSession();
  ~RobotSession() override;
};

}  // namespace cardwright::robot
