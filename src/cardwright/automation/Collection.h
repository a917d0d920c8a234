// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "cardwright/automation/MemberTable.h"

namespace cardwright {

/// The platform's keyed collection: items in order, from 1, each with an optional key in any case; an empty
/// key is no key. Errors: 5 for an unknown key, 9 for a position outside the range, 457 for a key that
/// exists, 13 for a key that is not a string.
class Collection final : public TableObject {
 public:
  Text TypeName() const override { return u"Collection"; }

  /// The number of items.
  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Entries.size()); }
  /// By position (numeric) or by key (text).
  const Variant& Item(const Variant& index) const;
  /// By key; null where there is none.
  const Variant* Find(std::u16string_view key) const noexcept;
  /// Adds an item at the end, or before or after another one, given by position or key. Error 5 if both are
  /// given.
  void Add(const Variant& item, std::optional<Variant> key = {}, std::optional<Variant> before = {},
           std::optional<Variant> after = {});
  /// Removes an item by position or key.
  void Remove(const Variant& index);
  /// Removes all items.
  void Clear();
  /// Items may be added and removed during the enumeration: each one that stays is visited once.
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  class LiveEnumerator;
  struct Entry {
    Text key;
    Variant value;
  };
  struct KeyHash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view key) const noexcept { return HashNoCase(key); }
  };
  struct KeyEqual {
    using is_transparent = void;
    bool operator()(std::u16string_view a, std::u16string_view b) const noexcept {
      return EqualsNoCase(a, b);
    }
  };

  std::size_t Position(const Variant& index) const;
  std::size_t PositionOfNew(const std::optional<Variant>& before, const std::optional<Variant>& after) const;

  std::vector<std::unique_ptr<Entry>> m_Entries;
  std::unordered_map<Text, Entry*, KeyHash, KeyEqual> m_ByKey;
  std::vector<LiveEnumerator*> m_Enumerators;  // running enumerations, adjusted by every change
};

}  // namespace cardwright
