// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace cardwright::vbscript {

/// The operations of the machine. Opcodes.def describes each of them and its operands.
enum class Op : std::uint8_t {
#define OPCODE(name, ...) name,
#include "cardwright/vbscript/code/Opcodes.def"
#undef OPCODE
};

/// Flags in field `n` of instructions with operands that may be constants.
enum OperandFlags : std::uint8_t {
  kConstantC = 1,       ///< c is a constant
  kConstantB = 2,       ///< b is
  kTwoIndices = 4,      ///< an element operation has a second index
  kConstantSecond = 8,  ///< which is a constant
};

/// How a call is made.
enum CallFlags : std::uint16_t {
  kDropResult = 1,  ///< a statement: the result is not needed
  kAsSet = 2,       ///< an assignment by Set
};

}  // namespace cardwright::vbscript
