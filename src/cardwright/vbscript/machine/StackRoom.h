// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace cardwright::vbscript {

/// Stack that parsing and compiling the most deeply nested source takes. Enough for instrumented builds,
/// whose frames are much larger.
inline constexpr std::size_t kStackForSource = std::size_t{2} << 20;

/// Whether the calling thread's stack has room for another call into the machine, for what a host may do in
/// it, and for `further` bytes.
bool HasStackRoom(std::size_t further = 0) noexcept;

}  // namespace cardwright::vbscript
