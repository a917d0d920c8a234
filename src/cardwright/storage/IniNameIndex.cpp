// SPDX-License-Identifier: MIT
#include "cardwright/storage/IniNameIndex.h"

#include <utility>

namespace cardwright {

void IniNameIndex::Reset(std::size_t count) {
  std::size_t size = 16;
  while (size < count * 2) size *= 2;
  m_Slots.assign(size, Slot());
  m_Used = 0;
}

void IniNameIndex::Insert(std::uint32_t hash, std::uint32_t id) {
  if ((m_Used + 1) * 2 > m_Slots.size()) Grow();
  const std::size_t mask = m_Slots.size() - 1;
  std::size_t at = hash & mask;
  while (m_Slots[at].id != kNone) at = (at + 1) & mask;
  m_Slots[at] = {hash, id};
  ++m_Used;
}

void IniNameIndex::Grow() {
  const std::vector<Slot> old = std::exchange(m_Slots, {});
  Reset(old.size());
  for (const Slot& slot : old) {
    if (slot.id != kNone && slot.id != kRemoved) Insert(slot.hash, slot.id);
  }
}

}  // namespace cardwright
