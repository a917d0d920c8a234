// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/automation/Text.h"

namespace cardwright::vbscript {

/// Number of a name within one engine, equal for all spellings of it.
using NameId = std::uint32_t;
inline constexpr NameId kNoName = static_cast<NameId>(-1);

/// The names that an engine has seen.
class Names {
 public:
  NameId Add(std::u16string_view name);
  NameId Find(std::u16string_view name) const noexcept;
  /// In its first spelling.
  const Text& Spelling(NameId id) const noexcept { return m_Spellings[id]; }
  std::size_t Count() const noexcept { return m_Spellings.size(); }

 private:
  struct Hash {
    std::size_t operator()(std::u16string_view name) const noexcept { return HashNoCase(name); }
  };
  struct Equal {
    bool operator()(std::u16string_view a, std::u16string_view b) const noexcept {
      return EqualsNoCase(a, b);
    }
  };
  MemoryShare m_Memory;
  std::deque<Text> m_Spellings;
  std::unordered_map<std::u16string_view, NameId, Hash, Equal> m_Ids;
};

}  // namespace cardwright::vbscript
