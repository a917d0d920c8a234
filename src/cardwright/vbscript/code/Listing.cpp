#include "cardwright/vbscript/code/Listing.h"

#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/vbscript/code/ClassInfo.h"
#include "cardwright/vbscript/syntax/ExpressionPrinter.h"

namespace cardwright::vbscript {

namespace {

struct Form {
  std::u16string_view name, operands;
};

constexpr Form kForms[] = {
#define X(name, operands, effect) {u## #name, u"" operands},
    CARDWRIGHT_VBSCRIPT_OPCODES(X)
#undef X
};

std::u16string Number(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

// The word names the array, so a second index has its place in b.
bool IsElementOfName(Op op) {
  return op == Op::GetSymbolElement || op == Op::SetSymbolElement || op == Op::GetFieldElement ||
         op == Op::SetFieldElement;
}

// Writes one instruction by the form that its opcode declares.
class InstructionLister {
 public:
  InstructionLister(const Procedure& procedure, const Names& names, std::size_t at)
      : m_Procedure(procedure), m_Names(names), m_At(at) {}

  std::u16string List() {
    const Form& form = kForms[static_cast<std::size_t>(m_Procedure.code[m_At].op)];
    std::u16string line = u"  " + Number(static_cast<std::int64_t>(m_At)) + u"\t" + std::u16string(form.name);
    std::u16string_view rest = form.operands;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find(u' '), rest.size());
      line += u" " + Operand(rest.substr(0, end));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return line + u"\n";
  }
  /// Words that the instruction takes up.
  std::size_t Length() const noexcept { return m_Length; }

 private:
  std::u16string Operand(std::u16string_view kind);
  std::u16string InWord(std::u16string_view kind);
  std::u16string Wide(std::u16string_view kind, const Instruction& word, std::size_t end) const;
  std::u16string Constant(std::uint32_t index) const;
  std::u16string Register(std::uint16_t r) const;
  std::u16string RegisterOrConstant(std::uint16_t index, bool isConstant) const {
    return isConstant ? Constant(index) : Register(index);
  }
  std::u16string Name(NameId name) const {
    return name == kNoName ? u"?" : std::u16string(m_Names.Spelling(name).View());
  }

  const Procedure& m_Procedure;
  const Names& m_Names;
  std::size_t m_At;
  std::size_t m_Length = 1;
};

std::u16string InstructionLister::Operand(std::u16string_view kind) {
  const Instruction& i = m_Procedure.code[m_At];
  if (kind.front() == u'+') return InWord(kind.substr(1));
  if (kind == u"a") return Register(i.a);
  if (kind == u"b") return Register(i.b);
  if (kind == u"c") return Register(i.c);
  if (kind == u"n") return Number(i.n);
  if (kind == u"bRK") return RegisterOrConstant(i.b, (i.n & kConstantB) != 0);
  if (kind == u"cRK") return RegisterOrConstant(i.c, (i.n & kConstantC) != 0);
  if (kind == u"bHow") return u"how=" + Number(i.b);
  if (kind == u"cHow") return u"how=" + Number(i.c);
  if (kind == u"cCount") return Number(i.c);
  if (kind == u"error") return Number(i.a);
  return Wide(kind, i, m_At + 1);
}

std::u16string InstructionLister::InWord(std::u16string_view kind) {
  const Instruction& i = m_Procedure.code[m_At];
  const Instruction& word = m_Procedure.code[m_At + m_Length++];
  if (kind == u"index") return RegisterOrConstant(word.a, (i.n & kConstantSecond) != 0);
  std::u16string text = Wide(kind, word, m_At + m_Length);
  if (IsElementOfName(i.op) && (i.n & kTwoIndices))
    text += u" " + RegisterOrConstant(i.b, (i.n & kConstantSecond) != 0);
  return text;
}

std::u16string InstructionLister::Wide(std::u16string_view kind, const Instruction& word,
                                       std::size_t end) const {
  if (kind == u"constant") return Constant(word.Wide());
  if (kind == u"symbol") return Name(m_Procedure.symbols[word.Wide()].name);
  if (kind == u"member") return u"." + Name(m_Procedure.members[word.Wide()].name);
  if (kind == u"jump") return u"-> " + Number(static_cast<std::int64_t>(end) + word.Offset());
  if (kind == u"operator") return std::u16string(SpellingOf(static_cast<BinaryOperator>(word.Wide())));
  return std::u16string(kind) + u" " + Number(word.Wide());
}

std::u16string InstructionLister::Constant(std::uint32_t index) const {
  const Variant& value = m_Procedure.constants[index];
  if (value.IsString()) return u"\"" + std::u16string(value.String().View()) + u"\"";
  if (value.IsNull()) return u"Null";
  if (value.IsEmpty()) return u"Empty";
  if (value.IsObject()) return u"Nothing";
  return std::u16string(ToText(value).View());
}

std::u16string InstructionLister::Register(std::uint16_t r) const {
  for (const auto& [name, local] : m_Procedure.locals)
    if (local == r) return Name(name);
  return u"r" + Number(r);
}

std::u16string Title(const Procedure& procedure, const Names& names) {
  if (procedure.isOutermost) return u"outside procedures";
  std::u16string title;
  if (procedure.owner) title = std::u16string(procedure.owner->spelling.View()) + u".";
  return title + std::u16string(names.Spelling(procedure.name).View());
}

}  // namespace

Text ListCode(const Procedure& procedure, const Names& names) {
  std::u16string list = Title(procedure, names) + u": " + Number(procedure.parameters) + u" parameters, " +
                        Number(procedure.registers) + u" registers\n";
  auto mark = procedure.marks.begin();
  for (std::size_t at = 0; at < procedure.code.size();) {
    for (; mark != procedure.marks.end() && mark->start <= at; ++mark)
      list += u" line " + Number(mark->position.line) + u"\n";
    InstructionLister instruction(procedure, names, at);
    list += instruction.List();
    at += instruction.Length();
  }
  return Text(list);
}

}  // namespace cardwright::vbscript
