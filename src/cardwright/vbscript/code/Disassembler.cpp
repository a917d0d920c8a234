// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/code/Disassembler.h"

#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/vbscript/code/ClassInfo.h"
#include "cardwright/vbscript/code/OperandShapes.h"
#include "cardwright/vbscript/syntax/ExpressionPrinter.h"

namespace cardwright::vbscript {

namespace {

std::u16string Digits(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

// Prints one instruction as the shape of its opcode says.
class InstructionPrinter {
 public:
  InstructionPrinter(const Procedure& procedure, const Names& names, std::size_t position)
      : m_Procedure(procedure),
        m_Names(names),
        m_Position(position),
        m_Instruction(procedure.code[position]),
        m_Shape(ShapeOf(m_Instruction.op)),
        m_Word(Length() == 2 ? procedure.code[position + 1] : Instruction{}) {}

  std::u16string Print() const {
    std::u16string line = u"  " + Digits(static_cast<std::int64_t>(m_Position)) + u"\t";
    line += m_Shape.name;
    for (const OperandShape operand : m_Shape.operands)
      if (IsUsed(operand)) line += u" " + Print(operand);
    return line + u"\n";
  }
  std::size_t Length() const noexcept { return m_Shape.Length(); }

 private:
  bool IsUsed(OperandShape operand) const noexcept {
    if (operand.kind == OperandKind::SecondIndex) return Has(kTwoIndices);
    return operand.kind != OperandKind::None;
  }
  std::uint32_t Value(OperandField field) const noexcept;
  std::u16string Print(OperandShape operand) const;
  std::u16string Target(OperandShape operand) const;
  std::u16string Constant(std::uint32_t index) const;
  std::u16string Register(std::uint32_t r) const;
  std::u16string RegisterOrConstant(std::uint32_t index, bool isConstant) const {
    return isConstant ? Constant(index) : Register(index);
  }
  std::u16string Name(NameId name) const {
    return name == kNoName ? u"?" : std::u16string(m_Names.Spelling(name).View());
  }
  bool Has(OperandFlags flag) const noexcept { return (m_Instruction.n & flag) != 0; }

  const Procedure& m_Procedure;
  const Names& m_Names;
  const std::size_t m_Position;
  const Instruction m_Instruction;
  const OpcodeShape& m_Shape;
  const Instruction m_Word;
};

std::uint32_t InstructionPrinter::Value(OperandField field) const noexcept {
  switch (field) {
    case OperandField::N: return m_Instruction.n;
    case OperandField::A: return m_Instruction.a;
    case OperandField::B: return m_Instruction.b;
    case OperandField::C: return m_Instruction.c;
    case OperandField::BC: return m_Instruction.Wide();
    case OperandField::WordA: return m_Word.a;
    case OperandField::WordBC: return m_Word.Wide();
  }
  return 0;
}

std::u16string InstructionPrinter::Print(OperandShape operand) const {
  const std::uint32_t value = Value(operand.field);
  switch (operand.kind) {
    case OperandKind::Register: return Register(value);
    case OperandKind::RegisterOrConstant:
      return RegisterOrConstant(value, Has(operand.field == OperandField::B ? kConstantB : kConstantC));
    case OperandKind::SecondIndex: return RegisterOrConstant(value, Has(kConstantSecond));
    case OperandKind::CallFlags: return u"how=" + Digits(value);
    case OperandKind::Constant: return Constant(value);
    case OperandKind::Symbol: return Name(m_Procedure.symbols[value].name);
    case OperandKind::Member: return u"." + Name(m_Procedure.members[value].name);
    case OperandKind::Field: return u"field " + Digits(value);
    case OperandKind::Shape: return u"shape " + Digits(value);
    case OperandKind::Flag: return u"flag " + Digits(value);
    case OperandKind::Offset: return Target(operand);
    case OperandKind::Operator: return std::u16string(SpellingOf(static_cast<BinaryOperator>(value)));
    case OperandKind::Count:
    case OperandKind::ErrorNumber:
    case OperandKind::None: return Digits(value);
  }
  return {};
}

// An offset counts from the word after the one that holds it.
std::u16string InstructionPrinter::Target(OperandShape operand) const {
  const std::size_t word = operand.field == OperandField::WordBC ? 1 : 0;
  const auto offset = static_cast<std::int32_t>(Value(operand.field));
  return u"-> " + Digits(static_cast<std::int64_t>(m_Position + word + 1) + offset);
}

std::u16string InstructionPrinter::Constant(std::uint32_t index) const {
  const Variant& value = m_Procedure.constants[index];
  if (value.IsString()) return u"\"" + std::u16string(value.String().View()) + u"\"";
  if (value.IsNull()) return u"Null";
  if (value.IsEmpty()) return u"Empty";
  if (value.IsObject()) return u"Nothing";
  return std::u16string(ToText(value).View());
}

std::u16string InstructionPrinter::Register(std::uint32_t r) const {
  for (const auto& [name, local] : m_Procedure.locals)
    if (local == r) return Name(name);
  return u"r" + Digits(r);
}

std::u16string Title(const Procedure& procedure, const Names& names) {
  if (procedure.isOutermost) return u"outside procedures";
  std::u16string title;
  if (procedure.owner) title = std::u16string(procedure.owner->spelling.View()) + u".";
  return title + std::u16string(names.Spelling(procedure.name).View());
}

}  // namespace

Text DisassembleProcedure(const Procedure& procedure, const Names& names) {
  std::u16string list = Title(procedure, names) + u": " + Digits(procedure.parameters) + u" parameters, " +
                        Digits(procedure.registers) + u" registers\n";
  auto mark = procedure.marks.begin();
  for (std::size_t at = 0; at < procedure.code.size();) {
    for (; mark != procedure.marks.end() && mark->start <= at; ++mark)
      list += u" line " + Digits(mark->position.line) + u"\n";
    const InstructionPrinter instruction(procedure, names, at);
    list += instruction.Print();
    at += instruction.Length();
  }
  return Text(list);
}

}  // namespace cardwright::vbscript
