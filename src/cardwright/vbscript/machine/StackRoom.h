#pragma once

#include <cstddef>

namespace cardwright::vbscript {

/// Stack that reading and compiling the most deeply nested source takes, in instrumented builds too, whose
/// frames are much larger.
inline constexpr std::size_t kStackForSource = std::size_t{2} << 20;

/// True while the calling thread's stack has room for another call into the machine and what a host may do in
/// one, and for that many bytes besides.
bool HasStackRoom(std::size_t further = 0) noexcept;

}  // namespace cardwright::vbscript
