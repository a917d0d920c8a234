// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <memory>
#include <memory_resource>
#include <vector>

#include "cardwright/automation/BudgetedMemory.h"
#include "cardwright/vbscript/syntax/Ast.h"

namespace cardwright::vbscript {

/// A parsed source and everything that its nodes refer to. The nodes live as long as the tree.
class SyntaxTree {
 public:
  explicit SyntaxTree(Text source) : m_Source(std::move(source)) {}
  SyntaxTree(const SyntaxTree&) = delete;
  SyntaxTree& operator=(const SyntaxTree&) = delete;

  std::u16string_view Source() const noexcept { return m_Source.View(); }

  bool optionExplicit = false;
  Block body;                  ///< the statements outside procedures
  Expr* expression = nullptr;  ///< set by ParseExpression, which sets nothing else
  std::span<ProcedureDecl* const> procedures;
  std::span<ClassDecl* const> classes;

  /// A node that lives as long as the tree; it must not need a destructor.
  template <class T, class... A>
  T* Make(A&&... fields) {
    static_assert(std::is_trivially_destructible_v<T>);
    return new (m_Memory.allocate(sizeof(T), alignof(T))) T{std::forward<A>(fields)...};
  }
  template <class T>
  std::span<T> Keep(std::span<const T> values) {
    static_assert(std::is_trivially_destructible_v<T> && std::is_trivially_copyable_v<T>);
    if (values.empty()) return {};
    auto* copy = static_cast<T*>(m_Memory.allocate(values.size_bytes(), alignof(T)));
    std::uninitialized_copy(values.begin(), values.end(), copy);
    return {copy, values.size()};
  }
  const Variant* Keep(Variant value) { return &m_Values.emplace_back(std::move(value)); }

 private:
  Text m_Source;
  std::pmr::monotonic_buffer_resource m_Memory{&BudgetedMemory::Instance()};
  std::deque<Variant> m_Values;
};

}  // namespace cardwright::vbscript
