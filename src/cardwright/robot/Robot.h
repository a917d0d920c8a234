#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/robot/Seat.h"

namespace cardwright::robot {

/// `Cardwright.Robot`: an end user's hands and eyes for a script. What it does goes through the toolkit's
/// real event path, and what is asked of the person meanwhile is answered from its queues. A widget is named
/// by its control, by itself or by its visual control; points are pixels inside it.
class Robot final : public TableObject {
 public:
  Robot() : m_Seat(Seat::Take()) {}

  Text TypeName() const override { return u"Robot"; }
  robot::Seat& Seat() const noexcept { return *m_Seat; }

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<robot::Seat> m_Seat;
};

}  // namespace cardwright::robot
