// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "cardwright/automation/Text.h"

namespace cardwright::orv {

/// Finds positions by name: first by the exact name, then by the first one that differs only in case.
class NameLookup {
 public:
  static constexpr int kNone = -1;

  void Add(std::u16string_view name, int position) {
    m_Exact.emplace(name, position);
    m_AnyCase.emplace(name, position);
  }
  int Find(std::u16string_view name) const {
    if (const auto exact = m_Exact.find(name); exact != m_Exact.end()) return exact->second;
    const auto found = m_AnyCase.find(name);
    return found == m_AnyCase.end() ? kNone : found->second;
  }

 private:
  struct ExactHash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view name) const noexcept {
      return std::hash<std::u16string_view>()(name);
    }
  };
  struct AnyCaseHash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view name) const noexcept { return HashNoCase(name); }
  };
  struct AnyCaseEqual {
    using is_transparent = void;
    bool operator()(std::u16string_view a, std::u16string_view b) const noexcept {
      return EqualsNoCase(a, b);
    }
  };

  std::unordered_map<std::u16string, int, ExactHash, std::equal_to<>> m_Exact;
  std::unordered_map<std::u16string, int, AnyCaseHash, AnyCaseEqual> m_AnyCase;
};

}  // namespace cardwright::orv
