// SPDX-License-Identifier: MIT
#include "cardwright/automation/Collection.h"

#include <algorithm>

namespace cardwright {

namespace {

// Only strings: a number would be a position.
Text KeyOf(const std::optional<Variant>& key) {
  if (!key) return {};
  if (!key->IsString()) Raise(ErrorNumber::TypeMismatch);
  return key->String();
}

}  // namespace

/// Its next position is adjusted by every change of the collection.
class Collection::LiveEnumerator final : public Enumerator {
 public:
  explicit LiveEnumerator(Collection& collection) : m_Collection(&collection) {
    collection.m_Enumerators.push_back(this);
  }
  ~LiveEnumerator() override { std::erase(m_Collection->m_Enumerators, this); }

  bool Next(Variant& value) override {
    if (m_Next >= m_Collection->m_Entries.size()) return false;
    value = m_Collection->m_Entries[m_Next++]->value;
    return true;
  }
  void OnAdded(std::size_t position) {
    if (position < m_Next) ++m_Next;
  }
  void OnRemoved(std::size_t position) {
    if (position < m_Next) --m_Next;
  }
  void OnCleared() { m_Next = 0; }

 private:
  const Ref<Collection> m_Collection;
  std::size_t m_Next = 0;
};

std::size_t Collection::Position(const Variant& index) const {
  const Variant plain = DefaultValue(index);
  if (plain.IsString()) {
    const auto found = m_ByKey.find(plain.StringView());
    if (found == m_ByKey.end()) Raise(ErrorNumber::InvalidCall);
    const auto holds = [&](const auto& entry) { return entry.get() == found->second; };
    return static_cast<std::size_t>(std::ranges::find_if(m_Entries, holds) - m_Entries.begin());
  }
  const std::int32_t position = ToLong(plain);
  if (position < 1 || position > Count()) Raise(ErrorNumber::SubscriptOutOfRange);
  return static_cast<std::size_t>(position - 1);
}

const Variant& Collection::Item(const Variant& index) const {
  const Variant& plain = index.Deref();
  if (!plain.IsString()) return m_Entries[Position(plain)]->value;
  const Variant* found = Find(plain.StringView());
  if (!found) Raise(ErrorNumber::InvalidCall);
  return *found;
}

const Variant* Collection::Find(std::u16string_view key) const noexcept {
  const auto found = m_ByKey.find(key);
  return found == m_ByKey.end() ? nullptr : &found->second->value;
}

std::size_t Collection::PositionOfNew(const std::optional<Variant>& before,
                                      const std::optional<Variant>& after) const {
  if (before && after) Raise(ErrorNumber::InvalidCall);
  if (before) return Position(*before);
  if (after) return Position(*after) + 1;
  return m_Entries.size();
}

void Collection::Add(const Variant& item, std::optional<Variant> key, std::optional<Variant> before,
                     std::optional<Variant> after) {
  const std::size_t position = PositionOfNew(before, after);
  auto entry = std::make_unique<Entry>(Entry{KeyOf(key), item.Deref()});
  if (!entry->key.IsEmpty() && !m_ByKey.try_emplace(entry->key, entry.get()).second)
    Raise(ErrorNumber::KeyExists);
  m_Entries.insert(m_Entries.begin() + static_cast<std::ptrdiff_t>(position), std::move(entry));
  for (LiveEnumerator* enumerator : m_Enumerators) enumerator->OnAdded(position);
}

void Collection::Remove(const Variant& index) {
  const std::size_t position = Position(index);
  // Released last: the item may be an object whose end uses this collection.
  const std::unique_ptr<Entry> removed = std::move(m_Entries[position]);
  m_Entries.erase(m_Entries.begin() + static_cast<std::ptrdiff_t>(position));
  if (!removed->key.IsEmpty()) m_ByKey.erase(removed->key);
  for (LiveEnumerator* enumerator : m_Enumerators) enumerator->OnRemoved(position);
}

void Collection::Clear() {
  const auto removed = std::exchange(m_Entries, {});
  m_ByKey.clear();
  for (LiveEnumerator* enumerator : m_Enumerators) enumerator->OnCleared();
}

std::unique_ptr<Enumerator> Collection::Enumerate() { return std::make_unique<LiveEnumerator>(*this); }

const MemberTable& Collection::Members() const {
  static constexpr Member kMembers[] = {
      Method<&Collection::Add>(u"Add"),
      Property<&Collection::Count>(u"Count"),
      Property<&Collection::Item>(u"Item"),
      Method<&Collection::Remove>(u"Remove"),
  };
  static const MemberTable table(kMembers, u"Item");
  return table;
}

}  // namespace cardwright
