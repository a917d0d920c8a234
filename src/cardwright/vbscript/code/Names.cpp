// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/code/Names.h"

namespace cardwright::vbscript {

namespace {

// Of an entry in both containers, without its characters.
constexpr std::size_t kBytesOfName = 64;

}  // namespace

NameId Names::Add(std::u16string_view name) {
  const auto found = m_Ids.find(name);
  if (found != m_Ids.end()) return found->second;
  m_Memory.Grow(kBytesOfName);
  const auto id = static_cast<NameId>(m_Spellings.size());
  m_Ids.emplace(m_Spellings.emplace_back(name).View(), id);
  return id;
}

NameId Names::Find(std::u16string_view name) const noexcept {
  const auto found = m_Ids.find(name);
  return found == m_Ids.end() ? kNoName : found->second;
}

}  // namespace cardwright::vbscript
