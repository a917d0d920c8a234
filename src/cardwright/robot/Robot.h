// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/robot/RobotSession.h"

namespace cardwright::robot {

/// `Cardwright.Robot`: lets a script use a form as a user does. Its input takes the toolkit's real event
/// path, and dialogs that open meanwhile are answered from its queues. A widget may be given as its control,
/// as itself or as its visual control; points are pixels inside it.
class Robot final : public TableObject {
 public:
  Robot() : m_Session(RobotSession::OfThread()) {}

  Text TypeName() const override { return u"Robot"; }
  RobotSession& Session() const noexcept { return *m_Session; }

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<RobotSession> m_Session;
};

}  // namespace cardwright::robot
