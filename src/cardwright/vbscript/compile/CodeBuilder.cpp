// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/CodeBuilder.h"

#include <algorithm>

#include "cardwright/vbscript/syntax/SyntaxErrors.h"

namespace cardwright::vbscript {

namespace {

// Registers are numbered by 16 bits; the last numbers mean "none".
constexpr std::uint32_t kMaxRegisters = 0xFF00;

}  // namespace

std::uint32_t CodeBuilder::Emit(Op op, std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint8_t n) {
  m_Procedure.code.push_back({op, n, a, b, c});
  return Here() - 1;
}

std::uint32_t CodeBuilder::EmitWide(Op op, std::uint16_t a, std::uint32_t wide) {
  Instruction word{op, 0, a, 0, 0};
  word.SetWide(wide);
  m_Procedure.code.push_back(word);
  return Here() - 1;
}

// The opcode of a second word means nothing.
void CodeBuilder::EmitWord(std::uint32_t wide, std::uint16_t a) { EmitWide(Op::Jump, a, wide); }

// An offset counts from the word after the one that holds it.
void CodeBuilder::Bind(Label& label) {
  for (const std::uint32_t at : label.m_Jumps) m_Procedure.code[at].SetWide(Here() - (at + 1));
  label.m_Jumps.clear();
}

void CodeBuilder::JumpBack(std::uint32_t target) { EmitWide(Op::JumpBack, 0, target - (Here() + 1)); }

void CodeBuilder::EmitTargetBack(std::uint32_t target) { EmitWord(target - (Here() + 1)); }

void CodeBuilder::FailTooLarge() const {
  const Position where = m_Procedure.marks.empty() ? m_Start : m_Procedure.marks.back().position;
  throw SyntaxError(SyntaxErrorNumber::OutOfMemory, where);
}

std::size_t CodeBuilder::Mark(Position position) {
  m_Procedure.marks.push_back({Here(), Here(), position});
  return m_Procedure.marks.size() - 1;
}

std::uint32_t CodeBuilder::Constant(const Variant& value) {
  const auto next = static_cast<std::uint32_t>(m_Procedure.constants.size());
  if (value.Type() == VarType::Integer || value.Type() == VarType::Long) {
    const std::int32_t key = value.Long();
    const auto [found, isNew] = m_WholeNumbers.try_emplace(key, next);
    if (!isNew && m_Procedure.constants[found->second].Type() == value.Type()) return found->second;
  }
  m_Procedure.constants.push_back(value);
  return next;
}

std::uint32_t CodeBuilder::Shape(std::span<const std::int32_t> bounds) {
  m_Procedure.shapes.push_back({{bounds.begin(), bounds.end()}});
  return static_cast<std::uint32_t>(m_Procedure.shapes.size() - 1);
}

std::uint32_t CodeBuilder::Member(NameId name, NameId object) {
  MemberUse use;
  use.name = name;
  use.object = object;
  m_Procedure.members.push_back(use);
  return static_cast<std::uint32_t>(m_Procedure.members.size() - 1);
}

void CodeBuilder::SetFirstTemporary(std::uint32_t first) {
  if (first > kMaxRegisters) FailTooLarge();
  m_Procedure.firstTemporary = static_cast<std::uint16_t>(first);
  m_Next = first;
  Reserve(0);
}

std::uint16_t CodeBuilder::AllocateTemporary() {
  Reserve(1);
  return static_cast<std::uint16_t>(m_Next++);
}

void CodeBuilder::Reserve(std::uint32_t count) {
  if (m_Next + count > kMaxRegisters) FailTooLarge();
  m_Procedure.registers = std::max(m_Procedure.registers, static_cast<std::uint16_t>(m_Next + count));
}

}  // namespace cardwright::vbscript
