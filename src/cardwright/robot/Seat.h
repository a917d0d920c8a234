#pragma once

#include "cardwright/robot/Attendant.h"
#include "cardwright/robot/AttendedDesktop.h"
#include "cardwright/robot/Mouse.h"

namespace cardwright::robot {

/// The one place at the desktop that all robots of a thread share: what is queued and what was seen there. It
/// is taken when the first robot comes and left with the last.
class Seat final : public RefCounted {
 public:
  static Ref<Seat> Take();

  Mouse mouse;
  Attendant attendant{mouse};
  AttendedDesktop desktop;

 private:
  Seat();
  ~Seat() override;
};

}  // namespace cardwright::robot
