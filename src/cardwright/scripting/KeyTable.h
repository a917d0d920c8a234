// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "cardwright/automation/Variant.h"

namespace cardwright::scripting {

enum class KeyCase : std::uint8_t;

/// Values by key, in the order in which the keys were added. The entries are a list that grows without moving
/// them; a hash table with open addressing gives their numbers. A removed entry leaves a gap in the list
/// until the table is rehashed. Error 5 for a value that cannot be a key.
class KeyTable {
 public:
  explicit KeyTable(KeyCase keyCase) : m_KeyCase(keyCase) {}
  KeyTable(const KeyTable&) = delete;
  KeyTable& operator=(const KeyTable&) = delete;
  ~KeyTable();
  void Swap(KeyTable& other) noexcept;

  std::size_t Size() const noexcept { return m_Size; }
  KeyCase Case() const noexcept { return m_KeyCase; }
  /// The table must be empty.
  void SetCase(KeyCase keyCase) noexcept { m_KeyCase = keyCase; }

  /// Valid until the next change of the table; null for a key that it does not have.
  Variant* Find(const Variant& key) const;
  struct Insertion {
    Variant* value;
    bool isNew;
  };
  /// The value of the key, which is added with Empty if it is new.
  Insertion FindOrAdd(const Variant& key);
  /// Removes a key. The key and its value are returned, as their release may run code that uses this table.
  struct Entry {
    Variant key, value;
    std::uint32_t hash = 0;
    bool isGap = false;
  };
  std::optional<Entry> Remove(const Variant& key);
  enum class Renaming : std::uint8_t { Done, NoSuchKey, NewKeyExists };
  /// Replaces the key of a value, which keeps its place in the order.
  Renaming Rename(const Variant& key, const Variant& newKey);

  std::vector<Variant> Keys() const;
  std::vector<Variant> Values() const;

 private:
  // The number of an entry in the low bits, and as many bits of its hash as fit above: enough to skip nearly
  // every other key without reading it. A deleted slot stays part of the probe sequences until the next
  // rehash.
  using Slot = std::uint32_t;
  static constexpr Slot kFree = 0xFFFFFFFF;
  static constexpr Slot kDeleted = 0xFFFFFFFE;
  static constexpr std::size_t kNoSlot = static_cast<std::size_t>(-1);

  std::size_t FindSlot(const Variant& key, std::uint32_t hash) const noexcept;
  std::size_t EntryOf(std::size_t slot) const noexcept { return m_Slots[slot] & m_EntryMask; }
  void InsertSlot(std::uint32_t hash, std::size_t entry) noexcept;
  bool IsFull() const noexcept { return m_Used + 1 >= m_EntryMask; }
  void Rehash();
  static std::size_t BytesFor(std::size_t slots) noexcept;

  std::deque<Entry> m_Entries;
  std::vector<Slot> m_Slots;  // none, or a power of two
  std::uint32_t m_EntryMask =
      0;                   // half as many, less 1: more than any entry's number, and than the one before it
  std::size_t m_Used = 0;  // slots that are not free; never less than there are entries and gaps
  std::size_t m_Size = 0;
  KeyCase m_KeyCase;
};

}  // namespace cardwright::scripting
