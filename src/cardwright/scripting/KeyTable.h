#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "cardwright/automation/Variant.h"

namespace cardwright::scripting {

enum class KeyCase : std::uint8_t;

/// Values by key, kept in the order in which their keys came: what a dictionary holds. The entries stand in a
/// row that grows without moving them; a table of slots with open addressing leads to them. An entry that is
/// removed leaves a gap, and the gaps go when the table grows. Error 5 for a key that can be none.
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
  struct Place {
    Variant* value;
    bool isNew;
  };
  /// The value of the key, which joins with Empty where it is new.
  Place FindOrAdd(const Variant& key);
  /// The key and its value, taken out. They come back to the caller as their release may run code that uses
  /// this very table.
  struct Entry {
    Variant key, value;
    std::uint32_t hash = 0;
    bool isGap = false;
  };
  std::optional<Entry> Take(const Variant& key);
  enum class Renaming : std::uint8_t { Done, NoSuchKey, NewKeyExists };
  /// Another key for a value, which keeps its place in the order.
  Renaming Rename(const Variant& key, const Variant& newKey);

  std::vector<Variant> Keys() const;
  std::vector<Variant> Values() const;

 private:
  // Number of an entry in the low bits, and above them what there is room for of its hash: enough to pass
  // over nearly every other key without a look at it, and small tables stay in the cache. A slot that was
  // given up stays in the way of later searches until the table grows.
  using Slot = std::uint32_t;
  static constexpr Slot kFree = 0xFFFFFFFF;
  static constexpr Slot kGivenUp = 0xFFFFFFFE;
  static constexpr std::size_t kNoSlot = static_cast<std::size_t>(-1);

  std::size_t FindSlot(const Variant& key, std::uint32_t hash) const noexcept;
  std::size_t EntryOf(std::size_t slot) const noexcept { return m_Slots[slot] & m_EntryMask; }
  void Occupy(std::uint32_t hash, std::size_t entry) noexcept;
  bool IsFull() const noexcept { return m_Used + 1 >= m_EntryMask; }
  void MakeRoom();
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
