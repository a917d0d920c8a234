// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/code/Module.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kBytesOfSymbol = sizeof(Symbol) + 64;  // with its entry

}  // namespace

Symbol& Module::Add(NameId name) {
  if (Symbol* known = Find(name)) return *known;
  m_Memory.Grow(kBytesOfSymbol);
  auto symbol = std::make_unique<Symbol>();
  symbol->name = name;
  return *m_Symbols.emplace(name, std::move(symbol)).first->second;
}

Symbol* Module::Find(NameId name) const noexcept {
  const auto found = m_Symbols.find(name);
  return found == m_Symbols.end() ? nullptr : found->second.get();
}

Symbol* Module::FindBound(NameId name) const noexcept {
  Symbol* symbol = Find(name);
  if (symbol && symbol->kind != SymbolKind::Unbound) return symbol;
  return m_Global ? m_Global->FindBound(name) : nullptr;
}

Variant* Module::AddVariables(std::size_t count) {
  m_Memory.Grow(count * sizeof(Variant) + sizeof(Variables));
  m_Variables.push_back({std::make_unique<Variant[]>(count), count});
  return m_Variables.back().values.get();
}

void Module::Define(NameId name, Ref<const Procedure> procedure) {
  Symbol& symbol = Add(name);
  // A redefined procedure is in the list already.
  if (!symbol.procedure) m_Procedures.push_back(name);
  symbol.kind = SymbolKind::Procedure;
  symbol.procedure = std::move(procedure);
}

void Module::DefineClass(NameId name, Ref<ClassInfo> cls) {
  m_Classes.push_back(cls);
  Symbol& symbol = Add(name);
  symbol.kind = SymbolKind::Class;
  symbol.cls = std::move(cls);
}

// The end of an object may run code that adds names and variables, so neither container is iterated.
void Module::Clear() {
  std::vector<Symbol*> symbols;
  symbols.reserve(m_Symbols.size());
  for (const auto& [name, symbol] : m_Symbols) symbols.push_back(symbol.get());
  for (Symbol* symbol : symbols) symbol->value.Reset();
  for (std::size_t k = 0; k < m_Variables.size(); ++k) {
    Variant* const values = m_Variables[k].values.get();
    const std::size_t count = m_Variables[k].count;
    for (std::size_t i = 0; i < count; ++i) values[i].Reset();
  }
}

}  // namespace cardwright::vbscript
