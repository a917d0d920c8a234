// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace cardwright {

/// Open addressing from the hash of a name to a number. Whether two names are the same is the caller's word.
class IniNameIndex {
 public:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t id = kNone;
  };

  /// Empties the index and makes room for that many names.
  void Reset(std::size_t count);
  void Insert(std::uint32_t hash, std::uint32_t id);
  /// Gives the slot another number, or none to take the name out.
  void Assign(const Slot& slot, std::uint32_t id) {
    m_Slots[static_cast<std::size_t>(&slot - m_Slots.data())].id = id == kNone ? kRemoved : id;
  }

  /// Slot of the name with this hash for whose number `isSame` answers true, or null.
  template <class IsSame>
  const Slot* Find(std::uint32_t hash, IsSame&& isSame) const {
    const std::size_t mask = m_Slots.size() - 1;
    for (std::size_t at = hash & mask; m_Slots[at].id != kNone; at = (at + 1) & mask) {
      const Slot& slot = m_Slots[at];
      if (slot.hash == hash && slot.id != kRemoved && isSame(slot.id)) return &slot;
    }
    return nullptr;
  }

 private:
  static constexpr std::uint32_t kRemoved = kNone - 1;  // keeps later names in the same run reachable

  void Grow();

  std::vector<Slot> m_Slots = std::vector<Slot>(16);  // a power of two, at most half of it in use
  std::size_t m_Used = 0;
};

}  // namespace cardwright
