// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/code/Opcodes.h"

namespace cardwright::vbscript {

/// One word of code: an operation with its operands, or the second word of the operation before it, whose
/// `op` means nothing. Opcodes.def says what the fields mean.
struct Instruction {
  Op op;
  std::uint8_t n = 0;
  std::uint16_t a = 0;
  std::uint16_t b = 0;
  std::uint16_t c = 0;

  /// b and c as one number.
  std::uint32_t Wide() const noexcept { return b | std::uint32_t{c} << 16; }
  std::int32_t Offset() const noexcept { return static_cast<std::int32_t>(Wide()); }
  void SetWide(std::uint32_t value) noexcept {
    b = static_cast<std::uint16_t>(value);
    c = static_cast<std::uint16_t>(value >> 16);
  }
};
static_assert(sizeof(Instruction) == 8);

}  // namespace cardwright::vbscript
