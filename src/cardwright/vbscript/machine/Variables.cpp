// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/machine/MachineFunctions.h"
#include "cardwright/vbscript/machine/SlowPaths.h"

namespace cardwright::vbscript {

void Machine::RaiseAbout(ErrorNumber number, NameId name) const {
  if (name == kNoName) Raise(number);
  throw NamedError(number, names.Spelling(name));
}

Text Machine::LocalName(const Procedure& procedure, std::uint16_t r) const {
  for (const auto& [name, at] : procedure.locals)
    if (at == r) return names.Spelling(name);
  return {};
}

// Names of the script come first, then objects of the host, their global members, and the library. The last
// two are bound when a script first uses them.
Symbol* Machine::Lookup(Module& module, NameId name) {
  if (Symbol* own = module.FindBound(name)) return own;
  if (Symbol* object = m_Objects.Find(name)) return object;
  if (Symbol* known = m_Library.Find(name)) return known;
  if (Symbol* member = BindHostMember(name)) return member;
  return BindLibraryName(name);
}

Symbol* Machine::BindHostMember(NameId name) {
  for (const Ref<Object>& object : m_MemberObjects) {
    const MemberId member = object->FindMember(names.Spelling(name));
    if (member == kNoMember) continue;
    Symbol& symbol = m_Library.Add(name);
    symbol.kind = SymbolKind::HostMember;
    symbol.value = object;
    symbol.member = member;
    return &symbol;
  }
  return nullptr;
}

Symbol* Machine::BindLibraryName(NameId name) {
  const Text spelling = names.Spelling(name);
  const Builtin* builtin = FindMachineFunction(spelling);
  if (!builtin) builtin = FindBuiltin(spelling);
  if (builtin) {
    Symbol& symbol = m_Library.Add(name);
    symbol.kind = SymbolKind::Builtin;
    symbol.builtin = builtin;
    return &symbol;
  }
  if (const BuiltinConstant* constant = FindConstant(spelling)) {
    Symbol& symbol = m_Library.Add(name);
    symbol.kind = SymbolKind::Constant;
    symbol.value = constant->value();
    return &symbol;
  }
  return nullptr;
}

void Machine::Resolve(SymbolUse& use) {
  // A name that the running procedure has used as its own variable stays one, whatever it is bound to by now.
  if (use.local != kNoRegister && !Current().registers[use.local].Deref().IsEmpty()) {
    use.symbol = nullptr;
    use.variable = nullptr;
    use.epoch = 0;
    return;
  }
  use.symbol = Lookup(*Current().procedure->module, use.name);
  use.variable = use.symbol && use.symbol->kind == SymbolKind::Variable ? use.symbol->variable : nullptr;
  use.epoch = m_Epoch;
}

Variant& Machine::VariableToWrite(SymbolUse& use) {
  if (use.epoch != m_Epoch) Resolve(use);
  if (use.variable) return *use.variable;
  if (use.symbol) RaiseAbout(ErrorNumber::IllegalAssignment, use.name);
  if (use.local != kNoRegister) return Current().registers[use.local].Deref();
  if (use.isStrict) RaiseAbout(ErrorNumber::UndefinedVariable, use.name);
  // Outside procedures, assigning to an unbound name makes it a variable of the module.
  Symbol& symbol = Current().procedure->module->Add(use.name);
  symbol.kind = SymbolKind::Variable;
  symbol.variable = &symbol.value;
  NamesChanged();
  Resolve(use);
  return symbol.value;
}

bool Machine::LoadSymbol(SymbolUse& use, Variant& target) {
  if (use.epoch != m_Epoch) Resolve(use);
  const Symbol* symbol = use.symbol;
  if (!symbol) {
    if (use.isStrict) RaiseAbout(ErrorNumber::UndefinedVariable, use.name);
    target = use.local == kNoRegister ? Variant()
                                      : static_cast<const Variant&>(Current().registers[use.local]).Deref();
    return false;
  }
  switch (symbol->kind) {
    case SymbolKind::Variable: target = *symbol->variable; return false;
    case SymbolKind::Constant:
    case SymbolKind::HostObject: target = symbol->value; return false;
    case SymbolKind::Procedure: PushFrame(*symbol->procedure, nullptr, {}, &target); return true;
    case SymbolKind::Builtin: CallBuiltin(*symbol->builtin, nullptr, 0, &target); return false;
    case SymbolKind::HostMember: {
      const Ref<Object> object(&RequireObject(symbol->value));
      target = InvokeHost(*object, symbol->member, CallKind::MethodOrGet, {});
      return false;
    }
    default: RaiseAbout(ErrorNumber::TypeMismatch, use.name);
  }
}

bool Machine::ReferToSymbol(SymbolUse& use, Variant& target) {
  if (use.epoch != m_Epoch) Resolve(use);
  if (use.symbol && use.symbol->kind != SymbolKind::Variable) return LoadSymbol(use, target);
  target = Variant::ByRef(VariableToWrite(use));
  return false;
}

void Machine::AssignSymbol(SymbolUse& use, Variant& value, bool isSet, bool isTemporary) {
  if (use.epoch != m_Epoch) Resolve(use);
  Variant assigned;
  isSet ? AssignObject(assigned, value, isTemporary) : AssignPlain(assigned, value, isTemporary);
  if (use.symbol && use.symbol->kind == SymbolKind::HostMember) {
    const Ref<Object> object(&RequireObject(use.symbol->value));
    InvokeHost(*object, use.symbol->member, isSet ? CallKind::Set : CallKind::Let, {&assigned, 1});
    return;
  }
  VariableToWrite(use) = std::move(assigned);
}

void Machine::AppendToSymbol(RegisterView view, Instruction i, SymbolUse& use) {
  if (use.epoch != m_Epoch) Resolve(use);
  if (use.symbol && use.symbol->kind == SymbolKind::HostMember) {
    const Ref<Object> object(&RequireObject(use.symbol->value));
    Variant text = InvokeHost(*object, use.symbol->member, CallKind::MethodOrGet, {});
    AppendText(*this, text, view, i.a);
    InvokeHost(*object, use.symbol->member, CallKind::Let, {&text, 1});
    return;
  }
  AppendText(*this, VariableToWrite(use), view, i.a);
}

}  // namespace cardwright::vbscript
