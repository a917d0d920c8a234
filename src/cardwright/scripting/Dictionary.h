#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/scripting/KeyTable.h"

namespace cardwright::scripting {

/// `Scripting.Dictionary`: values by key, in the order in which the keys came. A key is any value but an
/// array or an error value (error 5): numbers by value whatever their type, objects when they are one object;
/// a text never equals a number, nor Empty an empty text. Values keep what they are given, objects too.
class Dictionary final : public TableObject {
 public:
  Dictionary();

  Text TypeName() const override { return u"Dictionary"; }

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Table.Size()); }
  /// Error 457 for a key that is there.
  void Add(const Variant& key, const Variant& item);
  bool Exists(const Variant& key) const { return m_Table.Find(key) != nullptr; }
  /// The value of a key. One that is missing is added, with Empty.
  Variant Item(const Variant& key) { return *m_Table.FindOrAdd(key).value; }
  /// Sets the value of a key, new or not; an object may be given with or without Set.
  void LetItem(const Variant& key, const Variant& item) { *m_Table.FindOrAdd(key).value = item; }
  /// Gives a value another key in the same place. Error 32811 where there is no such key, 457 where the new
  /// one exists.
  void LetKey(const Variant& key, const Variant& newKey);
  /// Error 32811 where there is no such key.
  void Remove(const Variant& key);
  void RemoveAll();
  /// Arrays from 0, in order.
  Variant Keys() const;
  Variant Items() const;

  /// 0 where the case of texts matters, 1 or 2 where it does not. Changing it needs an empty dictionary:
  /// error 5.
  std::int32_t CompareMode() const noexcept { return m_CompareMode; }
  void SetCompareMode(std::int32_t mode);
  /// Number that equal keys share, not negative.
  std::int32_t HashVal(const Variant& key) const;

  /// The keys of this moment: changes during the enumeration do not matter.
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  KeyTable m_Table;
  std::int32_t m_CompareMode = 0;
};

}  // namespace cardwright::scripting
