// SPDX-License-Identifier: MIT
#include "cardwright/robot/RobotSession.h"

namespace cardwright::robot {
namespace {

thread_local RobotSession* t_Session = nullptr;

}  // namespace

Ref<RobotSession> RobotSession::OfThread() {
  return t_Session ? Ref<RobotSession>(t_Session) : Ref<RobotSession>(new RobotSession);
}

RobotSession::RobotSession() { t_Session = this; }
RobotSession::~RobotSession() { t_Session = nullptr; }

}  // namespace cardwright::robot
