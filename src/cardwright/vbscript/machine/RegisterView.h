// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/code/Instruction.h"

namespace cardwright::vbscript {

/// The registers and constants that an instruction works on: a copy of the interpreter's locals, so that
/// these never have their address taken.
struct RegisterView {
  Variant* R;
  const Variant* K;
  std::uint32_t firstTemporary;

  const Variant& B(Instruction i) const noexcept { return (i.n & kConstantB) ? K[i.b] : R[i.b]; }
  const Variant& C(Instruction i) const noexcept { return (i.n & kConstantC) ? K[i.c] : R[i.c]; }
  /// The second index of an element operation; `word` is its second word.
  const Variant& Second(Instruction i, Instruction word) const noexcept {
    return (i.n & kConstantSecond) ? K[word.a] : R[word.a];
  }
  bool IsTemporary(std::uint32_t r) const noexcept { return r >= firstTemporary; }
  /// Whoever reads a temporary clears it afterwards.
  void ClearTemporary(std::uint32_t r) const noexcept {
    if (IsTemporary(r)) R[r].Reset();
  }
  void Clear(std::uint32_t first, std::uint32_t count) const noexcept {
    for (std::uint32_t k = 0; k < count; ++k) R[first + k].Reset();
  }
  void ClearTemporaryB(Instruction i) const noexcept {
    if (!(i.n & kConstantB)) ClearTemporary(i.b);
  }
  void ClearTemporaryC(Instruction i) const noexcept {
    if (!(i.n & kConstantC)) ClearTemporary(i.c);
  }
};

}  // namespace cardwright::vbscript
