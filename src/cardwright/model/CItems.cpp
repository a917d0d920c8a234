// SPDX-License-Identifier: MIT
#include "cardwright/model/CItems.h"
#include "cardwright/storage/ProjectWriter.h"

namespace cardwright {
namespace {

constexpr Member kItemsMembers[] = {
    Property<&CItems::Count>(u"Count"), Property<&CItems::Item>(u"Item"), Method<&CItems::Add>(u"Add"),
    Method<&CItems::Remove>(u"Remove"), Method<&CItems::Clear>(u"Clear"),
};

// Missing items are read as empty ones up to this number; beyond it the first missing item ends the list, so
// that a damaged ItemsNumber cannot exhaust the memory.
constexpr int kMostMissingItems = 32767;

Text ItemKey(std::u16string_view prefix, std::int32_t number) {
  return Text(prefix) + ToText(Variant(number));
}

}  // namespace

const MemberTable& CItems::Members() const {
  static const MemberTable table(kItemsMembers, u"Item");
  return table;
}

Ref<CItem> CItems::Item(const Variant& index) const {
  return BestEffortOr(Ref<CItem>(), [&] {
    Variant found = m_Items->Item(index);
    return FromVariant<Ref<CItem>>(found);
  });
}

bool CItems::Add(Ref<CItem> item, std::optional<Variant> before) {
  ++m_LastKey;
  return BestEffort(
      [&] { m_Items->Add(Variant(item), Variant(ItemKey(u"Item_", m_LastKey)), std::move(before)); });
}

bool CItems::Remove(const Variant& index) {
  BestEffort([&] { m_Items->Remove(index); });
  return true;
}

void CItems::Clear() {
  m_Items = MakeRef<Collection>();
  m_LastKey = 0;
}

std::int32_t CItems::FindValue(std::u16string_view value) const {
  for (std::int32_t position = 1; position <= Count(); ++position) {
    const Ref<CItem> item = Item(Variant(position));
    if (item && item->m_Value == value) return position;
  }
  return 0;
}

Ref<CItems> CItems::Read(const SectionReader& section) {
  auto items = MakeRef<CItems>();
  const double count = Val(ToText(section.GetValue(u"ItemsNumber", Variant(u"0"))));
  for (std::int32_t i = 1; i <= count; ++i) {
    const auto value = section.Find(ItemKey(u"Value_Item_", i));
    const auto text = section.Find(ItemKey(u"Text_Item_", i));
    if (!value && !text && i > kMostMissingItems) break;
    auto item = MakeRef<CItem>();
    if (value) item->m_Value = ToText(*value);
    if (text) item->m_Text = ToText(*text);
    items->Add(item);
  }
  return items;
}

void CItems::Save(SectionWriter& section) const {
  for (std::int32_t i = 1; i <= Count(); ++i) {
    const Ref<CItem> item = Item(Variant(i));
    if (!item) continue;
    section.Write(ItemKey(u"Value_Item_", i), item->m_Value);
    section.Write(ItemKey(u"Text_Item_", i), item->m_Text);
  }
}

}  // namespace cardwright
