// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "cardwright/vbscript/code/Opcodes.h"

namespace cardwright::vbscript {

/// Where an instruction keeps an operand: a field of the instruction, or of the word after it.
enum class OperandField : std::uint8_t { N, A, B, C, BC, WordA, WordBC };

/// The meaning of the number in a field.
enum class OperandKind : std::uint8_t {
  None,
  Register,
  RegisterOrConstant,  ///< as the flag of the field says: kConstantB or kConstantC
  SecondIndex,         ///< a register, or a constant with kConstantSecond; there with kTwoIndices only
  Count,
  CallFlags,
  ErrorNumber,
  Constant,
  Symbol,  ///< of the procedure's uses of names
  Member,  ///< of its uses of members
  Field,   ///< of Me
  Shape,   ///< of the procedure's array shapes
  Offset,  ///< of a jump
  Operator,
  Flag,
};

struct OperandShape {
  OperandField field = OperandField::N;
  OperandKind kind = OperandKind::None;
};

/// An opcode's name and operands, in the order in which they are printed.
struct OpcodeShape {
  static constexpr std::size_t kMaxOperands = 5;

  std::u16string_view name;
  std::array<OperandShape, kMaxOperands> operands;

  /// Length of an instruction, in words.
  constexpr std::size_t Length() const noexcept {
    for (const OperandShape operand : operands)
      if (operand.field >= OperandField::WordA) return 2;
    return 1;
  }
};

inline constexpr auto kOpcodeShapes = [] {
  using enum OperandKind;
  // These read as in Opcodes.def: A(Register) is a register whose number is in field a.
  constexpr auto N = [](OperandKind kind) { return OperandShape{OperandField::N, kind}; };
  constexpr auto A = [](OperandKind kind) { return OperandShape{OperandField::A, kind}; };
  constexpr auto B = [](OperandKind kind) { return OperandShape{OperandField::B, kind}; };
  constexpr auto C = [](OperandKind kind) { return OperandShape{OperandField::C, kind}; };
  constexpr auto BC = [](OperandKind kind) { return OperandShape{OperandField::BC, kind}; };
  constexpr auto WordA = [](OperandKind kind) { return OperandShape{OperandField::WordA, kind}; };
  constexpr auto Word = [](OperandKind kind) { return OperandShape{OperandField::WordBC, kind}; };
  return std::to_array<OpcodeShape>({
#define OPCODE(name, ...) {u## #name, {__VA_ARGS__}},
#include "cardwright/vbscript/code/Opcodes.def"
#undef OPCODE
  });
}();

constexpr const OpcodeShape& ShapeOf(Op op) noexcept { return kOpcodeShapes[static_cast<std::size_t>(op)]; }

}  // namespace cardwright::vbscript
