#pragma once

#include <unordered_map>
#include <vector>

#include "cardwright/vbscript/code/Procedure.h"
#include "cardwright/vbscript/syntax/Ast.h"

namespace cardwright::vbscript {

/// Jumps to a place that is not known yet.
class Label {
 public:
  bool IsUsed() const noexcept { return !m_Jumps.empty(); }

 private:
  friend class CodeBuilder;
  std::vector<std::uint32_t> m_Jumps;
};

/// Writes a procedure's code: words, constants, jumps, marks, registers for values on the way.
class CodeBuilder {
 public:
  /// `start` is the place of the body, for errors before its first statement.
  CodeBuilder(Procedure& procedure, Position start) : m_Procedure(procedure), m_Start(start) {}

  std::uint32_t Here() const noexcept { return static_cast<std::uint32_t>(m_Procedure.code.size()); }
  std::uint32_t Emit(Op op, std::uint16_t a = 0, std::uint16_t b = 0, std::uint16_t c = 0,
                     std::uint8_t n = 0);
  std::uint32_t EmitWide(Op op, std::uint16_t a, std::uint32_t wide);
  /// The word after an instruction.
  void EmitWord(std::uint32_t wide, std::uint16_t a = 0);

  /// @name Jumps. The offset stands in the instruction itself, or in the word after for comparisons and
  /// loops.
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

  /// Error 1001 about the statement at hand: the machine cannot address what it needs.
  [[noreturn]] void FailTooLarge() const;
  /// Starts a statement, or a part of one that resumes by itself.
  std::size_t Mark(Position position);
  /// Where the code goes on after an error in the part that the mark starts: here.
  void ResumeHere(std::size_t mark) { m_Procedure.marks[mark].resume = Here(); }

  std::uint32_t Constant(const Variant& value);
  std::uint32_t Shape(std::span<const std::int32_t> bounds);
  std::uint32_t Member(NameId name, NameId object);

  /// @name Registers for values on the way, taken and given back like a stack
  /// @{
  void SetFirstTemporary(std::uint32_t first);
  std::uint16_t Temporary();
  std::uint32_t TemporariesUsed() const noexcept { return m_Next; }
  void FreeTo(std::uint32_t mark) noexcept { m_Next = mark; }
  bool IsTemporary(std::uint32_t r) const noexcept { return r >= m_Procedure.firstTemporary; }
  /// A further register beyond those in use, without taking it.
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
