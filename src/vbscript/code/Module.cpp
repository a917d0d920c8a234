#include "vbscript/code/Module.h"

#include <algorithm>

namespace cardwright::vbscript {

Symbol& Module::Add(NameId name) {
  auto& symbol = m_Symbols[name];
  if (!symbol) {
    symbol = std::make_unique<Symbol>();
    symbol->name = name;
  }
  return *symbol;
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
  m_Variables.push_back({std::make_unique<Variant[]>(count), count});
  return m_Variables.back().values.get();
}

void Module::Define(NameId name, Ref<const Procedure> procedure) {
  Symbol& symbol = Add(name);
  if (std::find(m_Procedures.begin(), m_Procedures.end(), name) == m_Procedures.end())
    m_Procedures.push_back(name);
  symbol.kind = SymbolKind::Procedure;
  symbol.procedure = std::move(procedure);
}

void Module::Clear() noexcept {
  for (auto& [name, symbol] : m_Symbols) symbol->value.Reset();
  for (const Variables& block : m_Variables)
    for (std::size_t i = 0; i < block.count; ++i) block.values[i].Reset();
}

}  // namespace cardwright::vbscript
