#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

namespace {
constexpr std::size_t kMaxArguments = 250;
}

std::uint8_t BodyCompiler::Count(std::size_t arguments) const {
  if (arguments > kMaxArguments) m_Code.FailTooLarge();
  return static_cast<std::uint8_t>(arguments);
}

// Arguments in registers one after the other, `further` ones kept free behind them. The first register is
// there even without arguments, for the result.
std::uint16_t BodyCompiler::EmitArguments(std::span<Expr* const> arguments, Passing passing,
                                          std::size_t further) {
  const std::uint16_t base = m_Code.Temporary();
  m_Code.FreeTo(base);
  for (const Expr* argument : arguments) {
    const std::uint16_t slot = m_Code.Temporary();
    passing == Passing::ByReference ? EmitReference(*argument, slot) : EvaluateInto(*argument, slot);
    m_Code.FreeTo(slot + 1u);
  }
  m_Code.Reserve(static_cast<std::uint32_t>(further) + 1);
  m_Code.FreeTo(std::max<std::uint32_t>(base + 1u, static_cast<std::uint32_t>(base + arguments.size())));
  return base;
}

void BodyCompiler::EmitReference(const Expr& argument, std::uint16_t target) {
  if (argument.kind == ExprKind::Name) {
    const Place place = Find(argument);
    if (place.kind == PlaceKind::Register || place.kind == PlaceKind::Field ||
        place.kind == PlaceKind::Symbol) {
      EmitHolder(place, target);
      return;
    }
  } else if (argument.kind == ExprKind::Call) {
    const auto& call = static_cast<const CallExpr&>(argument);
    if (call.callee->kind == ExprKind::Name && !call.arguments.empty()) {
      const Place place = Find(*call.callee);
      const bool isData =
          (place.kind == PlaceKind::Register && !place.isResult) || place.kind == PlaceKind::Field;
      const bool mayBeData = place.kind == PlaceKind::Symbol && place.symbol != SymbolKind::Builtin &&
                             place.symbol != SymbolKind::Procedure;
      if (isData || mayBeData) {
        EmitElementReference(call, place, target);
        return;
      }
    }
  }
  EvaluateInto(argument, target);
}

// The target becomes a reference to the variable.
void BodyCompiler::EmitHolder(const Place& place, std::uint16_t target) {
  switch (place.kind) {
    case PlaceKind::Register: m_Code.Emit(Op::RefRegister, target, place.r); break;
    case PlaceKind::Field: m_Code.EmitWide(Op::RefField, target, place.index); break;
    case PlaceKind::Symbol: m_Code.EmitWide(Op::RefSymbol, target, place.index); break;
    case PlaceKind::Constant:
    case PlaceKind::Member: EmitIllegalAssignment(place); break;
  }
}

void BodyCompiler::EmitElementReference(const CallExpr& call, const Place& place, std::uint16_t target) {
  m_Code.FreeTo(target);
  const bool isSymbol = place.kind == PlaceKind::Symbol;
  const std::uint16_t base =
      EmitArguments(call.arguments, isSymbol ? Passing::ByReference : Passing::ByValue);
  const std::uint8_t count = Count(call.arguments.size());
  if (isSymbol) {
    m_Code.Emit(Op::RefSymbolElement, base, 0, 0, count);
    m_Code.EmitWord(place.index);
  } else {
    const std::uint16_t holder = m_Code.Temporary();
    EmitHolder(place, holder);
    m_Code.Emit(Op::RefElement, base, holder, 0, count);
  }
}

// An element by one or two indices of what is surely a variable; false where it takes a call.
bool BodyCompiler::EvaluateElement(const Place& place, std::span<Expr* const> indices, std::uint16_t target) {
  if (indices.empty() || indices.size() > 2) return false;
  const bool isRegister = place.kind == PlaceKind::Register && !place.isResult;
  const bool isVariable = place.kind == PlaceKind::Symbol && place.symbol == SymbolKind::Variable;
  if (!isRegister && !isVariable && place.kind != PlaceKind::Field) return false;
  for (const Expr* index : indices)
    if (index->kind == ExprKind::Missing) return false;

  const std::uint32_t mark = m_Code.TemporariesUsed();
  Operand first = Evaluate(*indices[0]);
  Operand second{0, false};
  std::uint8_t flags = first.isConstant ? kConstantC : 0;
  if (indices.size() == 2) {
    first = KeepAcross(first, *indices[1]);
    second = Evaluate(*indices[1]);
    flags |= kTwoIndices;
  }
  m_Code.FreeTo(mark);
  // A call that it may turn into takes two registers at the end of those in use.
  const std::uint16_t result = m_Code.Temporary();
  m_Code.Reserve(1);
  if (isRegister) {
    if (second.isConstant) flags |= kConstantSecond;
    m_Code.Emit(indices.size() == 2 ? Op::GetElement2 : Op::GetElement, result, place.r, first.index, flags);
    if (indices.size() == 2) m_Code.EmitWord(0, second.index);
  } else {
    if (second.isConstant) flags |= kConstantB;
    m_Code.Emit(isVariable ? Op::GetSymbolElement : Op::GetFieldElement, result, second.index, first.index,
                flags);
    m_Code.EmitWord(place.index);
  }
  if (result != target) m_Code.Emit(Op::Take, target, result);
  return true;
}

// A call of what a name stands for. The result, where one is wanted, is in a register at the end of those in
// use.
void BodyCompiler::CallPlace(const Place& place, std::span<Expr* const> arguments, std::uint16_t flags,
                             std::uint16_t* result) {
  const bool isLibrary = place.kind == PlaceKind::Symbol && place.symbol == SymbolKind::Builtin;
  const bool isValue = place.kind == PlaceKind::Constant || place.kind == PlaceKind::Field ||
                       (place.kind == PlaceKind::Register && !place.isResult);
  if (isValue) {
    std::uint16_t callee = place.r;
    if (place.kind != PlaceKind::Register) {
      callee = m_Code.Temporary();
      EvaluateName(place, callee);
    }
    const std::uint16_t base = EmitArguments(arguments, Passing::ByReference);
    m_Code.Emit(Op::CallValue, base, callee, flags, Count(arguments.size()));
    if (result) *result = place.kind == PlaceKind::Register ? base : callee;
    return;
  }
  if (place.kind == PlaceKind::Member) {
    const std::uint16_t me = m_Code.Temporary();
    m_Code.Emit(Op::LoadMe, me);
    const std::uint16_t base = EmitArguments(arguments, Passing::ByReference);
    m_Code.Emit(Op::CallMember, base, me, flags, Count(arguments.size()));
    m_Code.EmitWord(m_Code.Member(place.name, kNoName));
    if (result) *result = me;
    return;
  }
  // A function's own name with parentheses is a call of it, not its variable.
  const std::uint32_t symbol = place.kind == PlaceKind::Symbol ? place.index : SymbolIndex(place.name);
  const std::uint16_t base = EmitArguments(arguments, isLibrary ? Passing::ByValue : Passing::ByReference);
  // Lists of hundreds of values are written as Array(…). There are registers for all of them by now.
  m_Code.Emit(Op::Call, base, flags, static_cast<std::uint16_t>(arguments.size()));
  m_Code.EmitWord(symbol);
  if (result) *result = base;
}

void BodyCompiler::EvaluateCall(const CallExpr& call, std::uint16_t target) {
  std::uint16_t result = kNoRegister;
  if (call.callee->kind == ExprKind::Name) {
    Place place = Find(*call.callee);
    // Within a method its own name is a member of the class, called again.
    if (place.isResult && m_Owner) place = {.kind = PlaceKind::Member, .name = place.name};
    if (EvaluateElement(place, call.arguments, target)) return;
    CallPlace(place, call.arguments, 0, &result);
  } else if (call.callee->kind == ExprKind::Member) {
    EvaluateMember(static_cast<const MemberExpr&>(*call.callee), call.arguments, target);
    return;
  } else {
    result = m_Code.Temporary();
    EvaluateInto(*call.callee, result);
    const std::uint16_t base = EmitArguments(call.arguments, Passing::ByReference);
    m_Code.Emit(Op::CallValue, base, result, 0, Count(call.arguments.size()));
  }
  if (result != target) m_Code.Emit(Op::Take, target, result);
}

// The register of a member's object: a variable's own, that of With, or one for the value on the way.
std::uint16_t BodyCompiler::ObjectOf(const MemberExpr& member) {
  if (member.object) return EvaluateToRegister(*member.object);
  if (!m_Withs.empty()) return m_Withs.back();
  const std::uint16_t none = m_Code.Temporary();
  m_Code.EmitWide(Op::RaiseError, static_cast<std::uint16_t>(ErrorNumber::InvalidReference),
                  SymbolIndex(m_Context.linkage.names.Add(u"")));
  return none;
}

void BodyCompiler::EvaluateMember(const MemberExpr& member, std::span<Expr* const> arguments,
                                  std::uint16_t target) {
  const std::uint16_t object = ObjectOf(member);
  const bool onTheWay = m_Code.IsTemporary(object);
  const std::uint16_t base = EmitArguments(arguments, Passing::ByReference);
  m_Code.Emit(Op::CallMember, base, object, 0, Count(arguments.size()));
  const NameId about = member.object ? ObjectName(*member.object) : kNoName;
  m_Code.EmitWord(m_Code.Member(m_Context.linkage.names.Add(member.name), about));
  const std::uint16_t result = onTheWay ? object : base;
  if (result != target) m_Code.Emit(Op::Take, target, result);
}

void BodyCompiler::CompileCall(const CallStmt& statement) {
  const std::uint32_t mark = m_Code.TemporariesUsed();
  if (statement.callee->kind == ExprKind::Name) {
    Place place = Find(*statement.callee);
    if (place.isResult && m_Owner) place = {.kind = PlaceKind::Member, .name = place.name};
    CallPlace(place, statement.arguments, kDropResult, nullptr);
  } else if (statement.callee->kind == ExprKind::Member) {
    const auto& member = static_cast<const MemberExpr&>(*statement.callee);
    const std::uint16_t object = ObjectOf(member);
    const std::uint16_t base = EmitArguments(statement.arguments, Passing::ByReference);
    m_Code.Emit(Op::CallMember, base, object, kDropResult, Count(statement.arguments.size()));
    const NameId about = member.object ? ObjectName(*member.object) : kNoName;
    m_Code.EmitWord(m_Code.Member(m_Context.linkage.names.Add(member.name), about));
  } else if (statement.callee->kind == ExprKind::Call && statement.arguments.empty()) {
    const std::uint16_t result = m_Code.Temporary();
    EvaluateInto(*statement.callee, result);
    m_Code.Emit(Op::Clear, result, 0, 0, 1);
  } else {
    const std::uint16_t callee = m_Code.Temporary();
    EvaluateInto(*statement.callee, callee);
    const std::uint16_t base = EmitArguments(statement.arguments, Passing::ByReference);
    m_Code.Emit(Op::CallValue, base, callee, kDropResult, Count(statement.arguments.size()));
  }
  m_Code.FreeTo(mark);
}

}  // namespace cardwright::vbscript
