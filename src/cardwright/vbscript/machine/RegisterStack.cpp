// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/RegisterStack.h"

#include <algorithm>

namespace cardwright::vbscript {

Variant* RegisterStack::Bottom() {
  if (m_Blocks.empty()) NextBlock(static_cast<std::uint32_t>(-1), m_Block);
  return m_Blocks.front().values.get();
}

RegisterStack::Window RegisterStack::NextBlock(std::uint32_t block, std::size_t count) {
  const std::uint32_t next = block + 1;
  // A block left over from an earlier call is reused where it is large enough.
  if (next < m_Blocks.size()) {
    const Block& left = m_Blocks[next];
    if (count <= static_cast<std::size_t>(left.end - left.values.get())) return {left.values.get(), next};
    m_Blocks.resize(next);
  }
  const std::size_t size = std::max(count, m_Block);
  MemoryShare memory(size * sizeof(Variant));
  auto values = std::make_unique<Variant[]>(size);
  Variant* start = values.get();
  m_Blocks.push_back({std::move(memory), std::move(values), start + size});
  return {start, next};
}

}  // namespace cardwright::vbscript
