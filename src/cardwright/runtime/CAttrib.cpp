// SPDX-License-Identifier: MIT
#include "cardwright/runtime/CAttrib.h"

namespace cardwright {
namespace {

// A field of the record as a property.
template <auto Field, class T>
T GetField(CAttrib& attrib) {
  return attrib.Record().*Field;
}
template <auto Field, class T>
void LetField(CAttrib& attrib, T value) {
  attrib.Record().*Field = std::move(value);
}
template <auto Field, class T>
constexpr Member RecordField(std::u16string_view name) {
  return Property<&GetField<Field, T>, &LetField<Field, T>>(name);
}

constexpr Member kAttribMembers[] = {
    RecordField<&AttributeRecord::name, Text>(u"Name"),
    RecordField<&AttributeRecord::type, AttributeTypeEnum>(u"AttribType"),
    RecordField<&AttributeRecord::length, std::int32_t>(u"Length"),
    RecordField<&AttributeRecord::decimals, std::int32_t>(u"Decs"),
};

constexpr Member kAttribsMembers[] = {
    Property<&CAttribs::Count>(u"Count"),
    Property<&CAttribs::Item>(u"Item"),
    Method<&CAttribs::Clear>(u"Clear"),
};

}  // namespace

const MemberTable& CAttrib::Members() const {
  static const MemberTable table(kAttribMembers);
  return table;
}

const MemberTable& CAttribs::Members() const {
  static const MemberTable table(kAttribsMembers, u"Item");
  return table;
}

Ref<CAttrib> CAttribs::Item(const Variant& index) const {
  return BestEffortOr(Ref<CAttrib>(), [&] {
    Variant found = m_Attribs->Item(index);
    return FromVariant<Ref<CAttrib>>(found);
  });
}

CAttrib* CAttribs::Find(std::u16string_view name) const noexcept {
  const Variant* found = name.empty() ? nullptr : m_Attribs->Find(name);
  return found ? static_cast<CAttrib*>(found->ObjectPtr()) : nullptr;
}

void CAttribs::Add(Ref<CAttrib> attrib) {
  BestEffort([&] { m_Attribs->Add(Variant(attrib), Variant(attrib->Record().name)); });
}

}  // namespace cardwright
