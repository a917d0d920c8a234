// SPDX-License-Identifier: MIT
#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/compile/BodyCompiler.h"

// Calls. The arguments are emitted into consecutive temporaries at the end of those in use: there they are
// the first registers of the procedure that is called, so that a call moves nothing. A variable is passed as
// a reference in its register, anything else as its value.
namespace cardwright::vbscript {

namespace {
constexpr std::size_t kMaxArguments = 250;
}

std::uint8_t BodyCompiler::Count(std::size_t arguments) const {
  if (arguments > kMaxArguments) m_Code.FailTooLarge();
  return static_cast<std::uint8_t>(arguments);
}

// The first register of the arguments, which exists even without any, for the result. `further` registers
// after them are reserved.
std::uint16_t BodyCompiler::EmitArguments(Expressions arguments, Passing passing, std::size_t further) {
  const std::uint16_t base = m_Code.AllocateTemporary();
  m_Code.FreeTemporaries(base);
  for (const Expr* argument : arguments) {
    const std::uint16_t slot = m_Code.AllocateTemporary();
    passing == Passing::ByReference ? EmitReference(*argument, slot) : CompileInto(*argument, slot);
    m_Code.FreeTemporaries(slot + 1u);
  }
  m_Code.Reserve(static_cast<std::uint32_t>(further) + 1);
  m_Code.FreeTemporaries(
      std::max<std::uint32_t>(base + 1u, static_cast<std::uint32_t>(base + arguments.size())));
  return base;
}

// A reference to the argument where it is a variable or an element of one, else its value.
void BodyCompiler::EmitReference(const Expr& argument, std::uint16_t target) {
  if (argument.kind == ExprKind::Name) {
    const Binding binding = Resolve(argument);
    if (binding.IsStorage()) {
      EmitReferenceTo(binding, target);
      return;
    }
  } else if (argument.kind == ExprKind::Call) {
    const auto& call = static_cast<const CallExpr&>(argument);
    if (call.callee->kind == ExprKind::Name && !call.arguments.empty()) {
      const Binding binding = Resolve(*call.callee);
      const bool mayBeArray = binding.kind == BindingKind::Symbol && !binding.IsLibraryFunction() &&
                              binding.symbol != SymbolKind::Procedure;
      if (binding.IsOwnVariable() || mayBeArray) {
        EmitElementReference(call, binding, target);
        return;
      }
    }
  }
  CompileInto(argument, target);
}

void BodyCompiler::EmitReferenceTo(const Binding& binding, std::uint16_t target) {
  switch (binding.kind) {
    case BindingKind::Register: m_Code.Emit(Op::RefRegister, target, binding.r); break;
    case BindingKind::Field: m_Code.EmitWide(Op::RefField, target, binding.index); break;
    case BindingKind::Symbol: m_Code.EmitWide(Op::RefSymbol, target, binding.index); break;
    case BindingKind::Constant:
    case BindingKind::Member: EmitIllegalAssignment(binding); break;
  }
}

void BodyCompiler::EmitElementReference(const CallExpr& call, const Binding& binding, std::uint16_t target) {
  m_Code.FreeTemporaries(target);
  const bool isSymbol = binding.kind == BindingKind::Symbol;
  const std::uint16_t base =
      EmitArguments(call.arguments, isSymbol ? Passing::ByReference : Passing::ByValue);
  const std::uint8_t count = Count(call.arguments.size());
  if (isSymbol) {
    m_Code.Emit(Op::RefSymbolElement, base, 0, 0, count);
    m_Code.EmitWord(binding.index);
  } else {
    const std::uint16_t array = m_Code.AllocateTemporary();
    EmitReferenceTo(binding, array);
    m_Code.Emit(Op::RefElement, base, array, 0, count);
  }
}

// Calls whatever a name is bound to. Returns the register of the result.
std::uint16_t BodyCompiler::EmitCall(const Binding& binding, Expressions arguments, std::uint16_t flags) {
  if (binding.kind == BindingKind::Constant || binding.IsOwnVariable())
    return EmitCallOfValue(binding, arguments, flags);
  if (binding.kind == BindingKind::Member) return EmitCallOfMe(binding.name, arguments, flags);
  // A function's own name with parentheses is a call of it, not its variable.
  const std::uint32_t symbol =
      binding.kind == BindingKind::Symbol ? binding.index : SymbolIndex(binding.name);
  const std::uint16_t base =
      EmitArguments(arguments, binding.IsLibraryFunction() ? Passing::ByValue : Passing::ByReference);
  // Lists of hundreds of values are written as Array(…). There are registers for all of them by now.
  m_Code.Emit(Op::Call, base, static_cast<std::uint16_t>(arguments.size()), flags);
  m_Code.EmitWord(symbol);
  return base;
}

std::uint16_t BodyCompiler::EmitCallOfValue(const Binding& binding, Expressions arguments,
                                            std::uint16_t flags) {
  const bool isRegister = binding.kind == BindingKind::Register;
  const std::uint16_t callee = isRegister ? binding.r : m_Code.AllocateTemporary();
  if (!isRegister) LoadBinding(binding, callee);
  const std::uint16_t base = EmitArguments(arguments, Passing::ByReference);
  m_Code.Emit(Op::CallValue, base, callee, flags, Count(arguments.size()));
  return isRegister ? base : callee;
}

std::uint16_t BodyCompiler::EmitCallOfMe(NameId name, Expressions arguments, std::uint16_t flags) {
  const std::uint16_t me = m_Code.AllocateTemporary();
  m_Code.Emit(Op::LoadMe, me);
  const std::uint16_t base = EmitArguments(arguments, Passing::ByReference);
  m_Code.Emit(Op::CallMember, base, me, flags, Count(arguments.size()));
  m_Code.EmitWord(m_Code.Member(name, kNoName));
  return me;
}

// The register of the result.
std::uint16_t BodyCompiler::EmitMemberCall(const MemberExpr& member, Expressions arguments,
                                           std::uint16_t flags) {
  const std::uint16_t object = ObjectOf(member);
  const std::uint16_t base = EmitArguments(arguments, Passing::ByReference);
  m_Code.Emit(Op::CallMember, base, object, flags, Count(arguments.size()));
  EmitMemberWord(member);
  return m_Code.IsTemporary(object) ? object : base;
}

void BodyCompiler::EmitMemberWord(const MemberExpr& member) {
  const NameId about = member.object ? ObjectName(*member.object) : kNoName;
  m_Code.EmitWord(m_Code.Member(m_Context.linkage.names.Add(member.name), about));
}

// The register of a member's object: a variable's own, that of the With block, or a temporary.
std::uint16_t BodyCompiler::ObjectOf(const MemberExpr& member) {
  if (member.object) return CompileToRegister(*member.object);
  if (!m_Withs.empty()) return m_Withs.back();
  const std::uint16_t none = m_Code.AllocateTemporary();
  m_Code.EmitWide(Op::RaiseError, static_cast<std::uint16_t>(ErrorNumber::InvalidReference),
                  SymbolIndex(m_Context.linkage.names.Add(u"")));
  return none;
}

void BodyCompiler::CompileCall(const CallExpr& call, std::uint16_t target) {
  std::uint16_t result;
  if (call.callee->kind == ExprKind::Name) {
    const Binding binding = ResolveCallee(*call.callee);
    if (CompileElement(binding, call.arguments, target)) return;
    result = EmitCall(binding, call.arguments, 0);
  } else if (call.callee->kind == ExprKind::Member) {
    result = EmitMemberCall(static_cast<const MemberExpr&>(*call.callee), call.arguments, 0);
  } else {
    result = m_Code.AllocateTemporary();
    CompileInto(*call.callee, result);
    const std::uint16_t base = EmitArguments(call.arguments, Passing::ByReference);
    m_Code.Emit(Op::CallValue, base, result, 0, Count(call.arguments.size()));
  }
  if (result != target) m_Code.Emit(Op::Move, target, result);
}

void BodyCompiler::CompileCallStatement(const CallStmt& statement) {
  const std::uint32_t used = m_Code.NextTemporary();
  if (statement.callee->kind == ExprKind::Name) {
    EmitCall(ResolveCallee(*statement.callee), statement.arguments, kDropResult);
  } else if (statement.callee->kind == ExprKind::Member) {
    EmitMemberCall(static_cast<const MemberExpr&>(*statement.callee), statement.arguments, kDropResult);
  } else if (statement.callee->kind == ExprKind::Call && statement.arguments.empty()) {
    const std::uint16_t result = m_Code.AllocateTemporary();
    CompileInto(*statement.callee, result);
    m_Code.Emit(Op::Clear, result, 0, 0, 1);
  } else {
    const std::uint16_t callee = m_Code.AllocateTemporary();
    CompileInto(*statement.callee, callee);
    const std::uint16_t base = EmitArguments(statement.arguments, Passing::ByReference);
    m_Code.Emit(Op::CallValue, base, callee, kDropResult, Count(statement.arguments.size()));
  }
  m_Code.FreeTemporaries(used);
}

}  // namespace cardwright::vbscript
