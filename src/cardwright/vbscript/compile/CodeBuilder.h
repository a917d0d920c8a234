// SPDX-License-Identifier: MIT
#pragma once

#include <unordered_map>
#include <vector>

#include "cardwright/vbscript/code/Procedure.h"
#include "cardwright/vbscript/syntax/Ast.h"

namespace cardwright::vbscript {

/// A place in the code that jumps may lead to before it is known.
class Label {
 public:
  bool IsUsed() const noexcept { return !m_Jumps.empty(); }

 private:
  friend class CodeBuilder;
  std::vector<std::uint32_t> m_Jumps;
};

/// Writes a procedure's code: instructions, constants, jumps and marks, and allocates temporaries.
class CodeBuilder {
 public:
  /// `start` is the position of the body, for errors before its first statement.
  CodeBuilder(Procedure& procedure, Position start) : m_Procedure(procedure), m_Start(start) {}

  std::uint32_t Here() const noexcept { return static_cast<std::uint32_t>(m_Procedure.code.size()); }
  std::uint32_t Emit(Op op, std::uint16_t a = 0, std::uint16_t b = 0, std::uint16_t c = 0,
                     std::uint8_t n = 0);
  std::uint32_t EmitWide(Op op, std::uint16_t a, std::uint32_t wide);
  /// The word after an instruction.
  void EmitWord(std::uint32_t wide, std::uint16_t a = 0);

  /// @name Jumps. The offset is in the instruction itself; for comparisons and loops in the word after it.
  /// @{
  void Jump(Label& label) { Refer(label, EmitWide(Op::Jump, 0, 0)); }
  void JumpIf(Op op, std::uint16_t a, Label& label) { Refer(label, EmitWide(op, a, 0)); }
  void EmitTarget(Label& label) {
    EmitWord(0);
    Refer(label, Here() - 1);
  }
  void EmitTargetBack(std::uint32_t target);
  void JumpBack(std::uint32_t target);
  void Bind(Label& label);
  /// @}

  /// Error 1001 about the current statement: it needs more than the machine can address.
  [[noreturn]] void FailTooLarge() const;
  /// Starts a statement, or a part of one that resumes by itself.
  std::size_t Mark(Position position);
  /// After an error in the part that the mark starts, the code continues here.
  void ResumeHere(std::size_t mark) { m_Procedure.marks[mark].resume = Here(); }

  std::uint32_t Constant(const Variant& value);
  std::uint32_t Shape(std::span<const std::int32_t> bounds);
  std::uint32_t Member(NameId name, NameId object);

  /// @name Temporaries, allocated and freed like a stack
  /// @{
  void SetFirstTemporary(std::uint32_t first);
  std::uint16_t AllocateTemporary();
  /// The number of the next one; FreeTemporaries frees all that were allocated since.
  std::uint32_t NextTemporary() const noexcept { return m_Next; }
  void FreeTemporaries(std::uint32_t first) noexcept { m_Next = first; }
  bool IsTemporary(std::uint32_t r) const noexcept { return r >= m_Procedure.firstTemporary; }
  /// Room for that many registers beyond those allocated, without allocating them.
  void Reserve(std::uint32_t count);
  /// @}

 private:
  void Refer(Label& label, std::uint32_t at) { label.m_Jumps.push_back(at); }

  Procedure& m_Procedure;
  const Position m_Start;
  std::uint32_t m_Next = 0;
  std::unordered_map<std::int32_t, std::uint32_t> m_WholeNumbers;
};

}  // namespace cardwright::vbscript
