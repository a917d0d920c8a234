// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/scripting/KeyTable.h"

namespace cardwright::scripting {

/// `Scripting.Dictionary`: values by key, in the order in which the keys were added. A key is any value but
/// an array or an error value (error 5): numbers of any type by their value, objects by identity; a text
/// never equals a number, nor Empty an empty text.
class Dictionary final : public TableObject {
 public:
  Dictionary();

  Text TypeName() const override { return u"Dictionary"; }

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Table.Size()); }
  /// Error 457 for a key that exists.
  void Add(const Variant& key, const Variant& item);
  bool Exists(const Variant& key) const { return m_Table.Find(key) != nullptr; }
  /// The value of a key. A missing key is added with Empty.
  Variant Item(const Variant& key) { return *m_Table.FindOrAdd(key).value; }
  /// Sets the value of a key, new or not; an object may be given with or without Set.
  void LetItem(const Variant& key, const Variant& item) { *m_Table.FindOrAdd(key).value = item; }
  /// Replaces a key; the value keeps its place. Error 32811 for a missing key, 457 where the new one exists.
  void LetKey(const Variant& key, const Variant& newKey);
  /// Error 32811 for a missing key.
  void Remove(const Variant& key);
  void RemoveAll();
  /// Arrays from 0, in order.
  Variant Keys() const;
  Variant Items() const;

  /// 0 where the case of texts matters, 1 or 2 where it does not. Error 5 for a change while it has keys.
  std::int32_t CompareMode() const noexcept { return m_CompareMode; }
  void SetCompareMode(std::int32_t mode);
  /// Equal for equal keys, not negative.
  std::int32_t HashVal(const Variant& key) const;

  /// The keys as they are now: changes during the enumeration have no effect on it.
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  KeyTable m_Table;
  std::int32_t m_CompareMode = 0;
};

}  // namespace cardwright::scripting
