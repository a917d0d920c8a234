// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Collection.h"
#include "cardwright/model/CItem.h"

namespace cardwright {

class SectionReader;
class SectionWriter;

/// Entries of a list control, by 1-based position or by key. A key is "Item_" and a number, which no other
/// item gets until Clear is called.
class CItems final : public TableObject {
 public:
  Text TypeName() const override { return u"CItems"; }

  std::int32_t Count() const noexcept { return m_Items->Count(); }
  /// Null if there is no such item.
  Ref<CItem> Item(const Variant& index) const;
  /// False if the item `before` does not exist.
  bool Add(Ref<CItem> item, std::optional<Variant> before = {});
  /// Always true, as scripts expect.
  bool Remove(const Variant& index);
  void Clear();
  std::unique_ptr<Enumerator> Enumerate() override { return m_Items->Enumerate(); }

  /// Position from 1 of the first item with exactly this value; 0 for none.
  std::int32_t FindValue(std::u16string_view value) const;

  /// Reads `ItemsNumber` and the items of a section of a form project.
  static Ref<CItems> Read(const SectionReader& section);
  /// Writes the items, without their number.
  void Save(SectionWriter& section) const;

 protected:
  const MemberTable& Members() const override;

 private:
  Ref<Collection> m_Items = MakeRef<Collection>();
  std::int32_t m_LastKey = 0;
};

}  // namespace cardwright
