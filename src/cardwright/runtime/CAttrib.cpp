#include "cardwright/runtime/CAttrib.h"

namespace cardwright {
namespace {

constexpr Member kAttribMembers[] = {
    PlainField<&CAttrib::m_Name>(u"Name"),
    PlainField<&CAttrib::m_AttribType>(u"AttribType"),
    PlainField<&CAttrib::m_Length>(u"Length"),
    PlainField<&CAttrib::m_Decs>(u"Decs"),
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
  return AttemptOr(Ref<CAttrib>(), [&] {
    Variant found = m_Attribs->Item(index);
    return FromVariant<Ref<CAttrib>>(found);
  });
}

CAttrib* CAttribs::Find(std::u16string_view name) const noexcept {
  const Variant* found = name.empty() ? nullptr : m_Attribs->Find(name);
  return found ? static_cast<CAttrib*>(found->ObjectPtr()) : nullptr;
}

void CAttribs::Add(Ref<CAttrib> attrib) {
  Attempt([&] { m_Attribs->Add(Variant(attrib), Variant(attrib->m_Name)); });
}

}  // namespace cardwright
