#pragma once

#include <string_view>
#include <vector>

#include "automation/MemberTable.h"

namespace cardwright {

/// The platform's keyed collection: items in order, counted from 1, each with an optional key that is matched
/// whatever its case. Errors: 5 for an unknown key, 9 for a position outside, 457 for a key that exists.
class Collection final : public TableObject {
 public:
  Text TypeName() const override { return u"Collection"; }

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(m_Entries.size()); }
  /// By position (numeric) or by key (text).
  const Variant& Item(const Variant& index) const;
  /// By key; null where there is none.
  const Variant* Find(std::u16string_view key) const noexcept;
  void Add(const Variant& item, std::optional<Variant> key = {}, std::optional<Variant> before = {},
           std::optional<Variant> after = {});
  void Remove(const Variant& index);
  void Clear() { m_Entries.clear(); }
  std::unique_ptr<Enumerator> Enumerate() override;

 protected:
  const MemberTable& Members() const override;

 private:
  struct Entry {
    Text key;
    Variant value;
  };
  std::size_t Position(const Variant& index) const;

  std::vector<Entry> m_Entries;
};

}  // namespace cardwright
