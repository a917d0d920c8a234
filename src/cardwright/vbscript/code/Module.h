// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/vbscript/code/Symbol.h"

namespace cardwright::vbscript {

/// The names that the code of one module defines outside procedures.
class Module {
 public:
  Module(Text name, Module* global) : m_Name(std::move(name)), m_Global(global) {}

  const Text& Name() const noexcept { return m_Name; }
  /// The module whose names code in this one can use too; null for the global module.
  Module* Global() const noexcept { return m_Global; }

  Symbol& Add(NameId name);
  Symbol* Find(NameId name) const noexcept;
  /// The binding of the name in this module or the global one; null where it is unbound.
  Symbol* FindBound(NameId name) const noexcept;

  /// Storage for the variables of code outside procedures. It lives as long as the module.
  Variant* AddVariables(std::size_t count);

  void Define(NameId name, Ref<const Procedure> procedure);
  void DefineClass(NameId name, Ref<ClassInfo> cls);
  /// In order of definition; a redefined name keeps its position.
  const std::vector<NameId>& Procedures() const noexcept { return m_Procedures; }
  /// Clears every value, so that objects end while the engine still works.
  void Clear();

 private:
  Text m_Name;
  Module* m_Global;
  MemoryShare m_Memory;
  std::unordered_map<NameId, std::unique_ptr<Symbol>> m_Symbols;
  struct Variables {
    std::unique_ptr<Variant[]> values;
    std::size_t count;
  };
  std::vector<Variables> m_Variables;
  std::vector<NameId> m_Procedures;
  // Redefined ones too: MemberUse caches what it found in a class by the address of the class.
  std::vector<Ref<ClassInfo>> m_Classes;
};

}  // namespace cardwright::vbscript
