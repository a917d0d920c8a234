// SPDX-License-Identifier: MIT
#include "cardwright/scripting/KeyTable.h"

#include <algorithm>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/scripting/DictionaryKey.h"

namespace cardwright::scripting {

namespace {

constexpr std::size_t kFirstSlots = 16;
constexpr std::size_t kMaxSlots = std::size_t{1} << 31;
constexpr std::size_t kSlotsPerEntry = 2;

}  // namespace

KeyTable::~KeyTable() { MemoryBudget::Refund(BytesFor(m_Slots.size())); }

std::size_t KeyTable::BytesFor(std::size_t slots) noexcept {
  return slots * sizeof(Slot) + slots / kSlotsPerEntry * sizeof(Entry);
}

std::size_t KeyTable::FindSlot(const Variant& key, std::uint32_t hash) const noexcept {
  if (m_Slots.empty()) return kNoSlot;
  const std::size_t mask = m_Slots.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const Slot slot = m_Slots[at];
    if (slot == kFree) return kNoSlot;
    if (slot == kDeleted) continue;
    const bool mayBe = ((slot ^ hash) & ~m_EntryMask) == 0;
    if (mayBe && IsSameKey(m_Entries[slot & m_EntryMask].key, key, m_KeyCase)) return at;
  }
}

void KeyTable::InsertSlot(std::uint32_t hash, std::size_t entry) noexcept {
  const std::size_t mask = m_Slots.size() - 1;
  std::size_t at = hash & mask;
  while (m_Slots[at] != kFree) at = (at + 1) & mask;
  m_Slots[at] = (hash & ~m_EntryMask) | static_cast<Slot>(entry);
  ++m_Used;
}

// Removes the gaps between entries, and makes the table large enough that at most half of it is used.
void KeyTable::Rehash() {
  std::size_t count = std::max(m_Slots.size(), kFirstSlots);
  while (m_Size * 2 * kSlotsPerEntry > count) count *= 2;
  if (count > kMaxSlots) Raise(ErrorNumber::OutOfMemory);
  MemoryBudget::Charge(BytesFor(count));
  std::vector<Slot> slots(count, kFree);
  MemoryBudget::Refund(BytesFor(m_Slots.size()));
  m_Slots = std::move(slots);
  m_EntryMask = static_cast<std::uint32_t>(count / kSlotsPerEntry - 1);
  std::erase_if(m_Entries, [](const Entry& entry) { return entry.isGap; });
  m_Used = 0;
  std::size_t index = 0;
  for (const Entry& entry : m_Entries) InsertSlot(entry.hash, index++);
}

Variant* KeyTable::Find(const Variant& key) const {
  const std::size_t slot = FindSlot(key, HashOfKey(key, m_KeyCase));
  if (slot == kNoSlot) return nullptr;
  return const_cast<Variant*>(&m_Entries[EntryOf(slot)].value);
}

KeyTable::Insertion KeyTable::FindOrAdd(const Variant& key) {
  const std::uint32_t hash = HashOfKey(key, m_KeyCase);
  const std::size_t slot = FindSlot(key, hash);
  if (slot != kNoSlot) return {&m_Entries[EntryOf(slot)].value, false};
  if (IsFull()) Rehash();
  Entry& entry = m_Entries.emplace_back();
  InsertSlot(hash, m_Entries.size() - 1);
  entry.key = key;
  entry.hash = hash;
  ++m_Size;
  return {&entry.value, true};
}

void KeyTable::Swap(KeyTable& other) noexcept {
  m_Entries.swap(other.m_Entries);
  m_Slots.swap(other.m_Slots);
  std::swap(m_EntryMask, other.m_EntryMask);
  std::swap(m_Used, other.m_Used);
  std::swap(m_Size, other.m_Size);
  std::swap(m_KeyCase, other.m_KeyCase);
}

std::optional<KeyTable::Entry> KeyTable::Remove(const Variant& key) {
  const std::size_t slot = FindSlot(key, HashOfKey(key, m_KeyCase));
  if (slot == kNoSlot) return {};
  Entry& entry = m_Entries[EntryOf(slot)];
  m_Slots[slot] = kDeleted;
  --m_Size;
  Entry taken = std::move(entry);
  entry.isGap = true;
  return taken;
}

KeyTable::Renaming KeyTable::Rename(const Variant& key, const Variant& newKey) {
  if (IsFull()) Rehash();
  const std::size_t slot = FindSlot(key, HashOfKey(key, m_KeyCase));
  if (slot == kNoSlot) return Renaming::NoSuchKey;
  const std::uint32_t hash = HashOfKey(newKey, m_KeyCase);
  if (FindSlot(newKey, hash) != kNoSlot) return Renaming::NewKeyExists;
  const std::size_t index = EntryOf(slot);
  m_Slots[slot] = kDeleted;
  InsertSlot(hash, index);
  m_Entries[index].hash = hash;
  m_Entries[index].key = newKey;  // last, as this may release an object, the old key
  return Renaming::Done;
}

std::vector<Variant> KeyTable::Keys() const {
  std::vector<Variant> keys;
  keys.reserve(m_Size);
  for (const Entry& entry : m_Entries) {
    if (!entry.isGap) keys.push_back(entry.key);
  }
  return keys;
}

std::vector<Variant> KeyTable::Values() const {
  std::vector<Variant> values;
  values.reserve(m_Size);
  for (const Entry& entry : m_Entries) {
    if (!entry.isGap) values.push_back(entry.value);
  }
  return values;
}

}  // namespace cardwright::scripting
