#include "cardwright/robot/Seat.h"

namespace cardwright::robot {
namespace {

thread_local Seat* t_Seat = nullptr;

}  // namespace

Ref<Seat> Seat::Take() { return t_Seat ? Ref<Seat>(t_Seat) : Ref<Seat>(new Seat); }

Seat::Seat() { t_Seat = this; }
Seat::~Seat() { t_Seat = nullptr; }

}  // namespace cardwright::robot
