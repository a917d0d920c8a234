#pragma once

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/model/Enums.h"

namespace cardwright {

/// Description of one attribute of a theme.
class CAttrib final : public TableObject {
 public:
  Text TypeName() const override { return u"CAttrib"; }

  Text m_Name;
  AttributeTypeEnum m_AttribType = AttributeTypeEnum::atCharacter;
  std::int32_t m_Length = 0;  ///< characters
  std::int32_t m_Decs = 0;    ///< decimals

 protected:
  const MemberTable& Members() const override;
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

  /// Adds under the attribute's name; a second one of a name is passed over. Not for scripts.
  void Add(Ref<CAttrib> attrib);

 protected:
  const MemberTable& Members() const override;

 private:
  Ref<Collection> m_Attribs = MakeRef<Collection>();
};

}  // namespace cardwright
