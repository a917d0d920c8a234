// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/shared/FeatureTypes.h"

namespace cardwright {

/// Description of one attribute of a theme, as scripts see it.
class CAttrib final : public TableObject {
 public:
  CAttrib() = default;
  explicit CAttrib(AttributeRecord record) : m_Record(std::move(record)) {}

  Text TypeName() const override { return u"CAttrib"; }

  AttributeRecord& Record() noexcept { return m_Record; }
  const AttributeRecord& Record() const noexcept { return m_Record; }

 protected:
  const MemberTable& Members() const override;

 private:
  AttributeRecord m_Record;
};

/// The attributes of a theme by position or name.
class CAttribs final : public TableObject {
 public:
  Text TypeName() const override { return u"CAttribs"; }

  std::int32_t Count() const noexcept { return m_Attribs->Count(); }
  /// Nothing where there is no such attribute.
  Ref<CAttrib> Item(const Variant& index) const;
  /// By name; null where there is none.
  CAttrib* Find(std::u16string_view name) const noexcept;
  void Clear() { m_Attribs->Clear(); }
  std::unique_ptr<Enumerator> Enumerate() override { return m_Attribs->Enumerate(); }

  /// Adds under the attribute's name; a second one of a name is ignored. Not for scripts.
  void Add(Ref<CAttrib> attrib);

 protected:
  const MemberTable& Members() const override;

 private:
  Ref<Collection> m_Attribs = MakeRef<Collection>();
};

}  // namespace cardwright
