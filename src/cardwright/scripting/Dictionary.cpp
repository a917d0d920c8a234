// SPDX-License-Identifier: MIT
#include "cardwright/scripting/Dictionary.h"

#include "cardwright/automation/Enumerators.h"
#include "cardwright/scripting/DictionaryKey.h"

namespace cardwright::scripting {

namespace {

constexpr std::int32_t kLastCompareMode = 2;

}  // namespace

Dictionary::Dictionary() : m_Table(KeyCase::Matters) {}

void Dictionary::Add(const Variant& key, const Variant& item) {
  const KeyTable::Insertion inserted = m_Table.FindOrAdd(key);
  if (!inserted.isNew) Raise(ErrorNumber::KeyExists);
  *inserted.value = item;
}

void Dictionary::LetKey(const Variant& key, const Variant& newKey) {
  switch (m_Table.Rename(key, newKey)) {
    case KeyTable::Renaming::Done: return;
    case KeyTable::Renaming::NoSuchKey: Raise(ErrorNumber::ElementNotFound);
    case KeyTable::Renaming::NewKeyExists: Raise(ErrorNumber::KeyExists);
  }
}

void Dictionary::Remove(const Variant& key) {
  if (!m_Table.Remove(key)) Raise(ErrorNumber::ElementNotFound);
}

void Dictionary::RemoveAll() {
  // The old table is released when the new one is in place: an object in it may end with code that uses this
  // dictionary.
  KeyTable removed(m_Table.Case());
  m_Table.Swap(removed);
}

Variant Dictionary::Keys() const { return Array::FromValues(m_Table.Keys()); }

Variant Dictionary::Items() const { return Array::FromValues(m_Table.Values()); }

void Dictionary::SetCompareMode(std::int32_t mode) {
  if (m_Table.Size() != 0 || mode < 0 || mode > kLastCompareMode) Raise(ErrorNumber::InvalidCall);
  m_CompareMode = mode;
  m_Table.SetCase(mode == 0 ? KeyCase::Matters : KeyCase::Ignored);
}

std::int32_t Dictionary::HashVal(const Variant& key) const {
  return static_cast<std::int32_t>(HashOfKey(key, m_Table.Case()) >> 1);
}

std::unique_ptr<Enumerator> Dictionary::Enumerate() {
  return std::make_unique<SnapshotEnumerator>(m_Table.Keys());
}

namespace {

// For the calls that scripts make by the hundred thousand: the arguments are used in place, where the usual
// calls of member tables copy each argument.
template <auto Function, std::size_t... I>
Variant CallWith(Object& self, Args args, std::index_sequence<I...>) {
  auto& dictionary = static_cast<Dictionary&>(self);
  if constexpr (std::is_void_v<decltype((dictionary.*Function)(args[I].Deref()...))>) {
    (dictionary.*Function)(std::as_const(args[I]).Deref()...);
    return {};
  } else {
    return (dictionary.*Function)(std::as_const(args[I]).Deref()...);
  }
}

template <auto Function, std::size_t Count>
Variant Direct(Object& self, Args args) {
  if (args.size() != Count) Raise(ErrorNumber::WrongArgumentCount);
  return CallWith<Function>(self, args, std::make_index_sequence<Count>());
}

}  // namespace

const MemberTable& Dictionary::Members() const {
  static constexpr Member kMembers[] = {
      {.name = u"Item", .get = &Direct<&Dictionary::Item, 1>, .let = &Direct<&Dictionary::LetItem, 2>},
      {.name = u"Add", .method = &Direct<&Dictionary::Add, 2>},
      Property<&Dictionary::Count>(u"Count"),
      {.name = u"Exists", .method = &Direct<&Dictionary::Exists, 1>},
      Method<&Dictionary::Items>(u"Items"),
      Property<nullptr, &Dictionary::LetKey>(u"Key"),
      Method<&Dictionary::Keys>(u"Keys"),
      Method<&Dictionary::Remove>(u"Remove"),
      Method<&Dictionary::RemoveAll>(u"RemoveAll"),
      Property<&Dictionary::CompareMode, &Dictionary::SetCompareMode>(u"CompareMode"),
      Property<&Dictionary::HashVal>(u"HashVal"),
  };
  static const MemberTable table(kMembers, u"Item");
  return table;
}

}  // namespace cardwright::scripting
