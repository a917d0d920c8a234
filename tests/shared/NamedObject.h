// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

/// An object of any type name that has the properties given to it and no others, as a late-bound widget seems
/// to those who know it by names alone.
class NamedObject final : public Object {
 public:
  NamedObject(Text typeName, std::initializer_list<std::pair<Text, Variant>> properties)
      : m_TypeName(std::move(typeName)), m_Properties(properties) {}

  Text TypeName() const override { return m_TypeName; }
  MemberId FindMember(std::u16string_view name) const override {
    for (std::size_t i = 0; i < m_Properties.size(); ++i) {
      if (EqualsNoCase(m_Properties[i].first, name)) return static_cast<MemberId>(i);
    }
    return kNoMember;
  }
  Variant Invoke(MemberId member, CallKind kind, Args args) override {
    if (member < 0 || static_cast<std::size_t>(member) >= m_Properties.size())
      Raise(ErrorNumber::NotSupported);
    Variant& value = m_Properties[static_cast<std::size_t>(member)].second;
    if (Allows(kind, CallKind::Get)) {
      // An array stands for a property with an index.
      return args.empty() ? value : value.ArrayPtr()->Values()[static_cast<std::size_t>(ToLong(args[0]))];
    }
    value = args.back().Deref();
    return {};
  }

  /// The property as text; "" where there is none.
  Text Shown(std::u16string_view name) const {
    const MemberId member = FindMember(name);
    return member == kNoMember ? Text() : ToText(m_Properties[static_cast<std::size_t>(member)].second);
  }

 private:
  Text m_TypeName;
  std::vector<std::pair<Text, Variant>> m_Properties;
};

inline Ref<NamedObject> Named(Text typeName, std::initializer_list<std::pair<Text, Variant>> properties) {
  return MakeRef<NamedObject>(std::move(typeName), properties);
}

}  // namespace cardwright
