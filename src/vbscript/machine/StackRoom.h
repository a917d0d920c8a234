#pragma once

namespace cardwright::vbscript {

/// True while the calling thread's stack has room for another call into the machine and what a host may do in
/// one.
bool HasStackRoom() noexcept;

}  // namespace cardwright::vbscript
