#include "cardwright/vbscript/StopSignal.h"

namespace cardwright::vbscript {

constinit thread_local StopSignal* StopSignal::t_Current = nullptr;

}  // namespace cardwright::vbscript
