// SPDX-License-Identifier: MIT
#include "cardwright/model/CColor.h"

#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

template <std::uint8_t CColor::*Component>
Variant Get(const CColor& color) {
  return color.*Component;
}
template <std::uint8_t CColor::*Component>
void Let(CColor& color, const Variant& value) {
  color.*Component = ToByte(value);
}
template <std::uint8_t CColor::*Component>
constexpr Member ByteField(std::u16string_view name) {
  return Property<&Get<Component>, &Let<Component>>(name);
}

constexpr Member kColorMembers[] = {
    ByteField<&CColor::m_Red>(u"Red"),
    ByteField<&CColor::m_Green>(u"Green"),
    ByteField<&CColor::m_Blue>(u"Blue"),
    ByteField<&CColor::m_Alpha>(u"Alpha"),
    Property<&CColor::Color, &CColor::SetColor>(u"Color"),
};

// Elsewhere the high bit alone marks a system colour. CColor goes by hexadecimal digits: any number of more
// than six digits is a system colour, and the digits after the first two are its index. Scripts may rely on
// it.
OleColor ResolvedByDigits(OleColor color) {
  const auto number = static_cast<std::uint32_t>(color);
  if (number <= 0xFFFFFF) return color;
  const bool hasEightDigits = number > 0xFFFFFFF;
  const std::uint32_t index = number & (hasEightDigits ? 0xFFFFFF : 0xFFFFF);
  return Module().desktop ? Module().desktop->ResolveColor(static_cast<OleColor>(0x80000000U | index)) : 0;
}

}  // namespace

void CColor::SetColor(OleColor color) {
  const auto plain = static_cast<std::uint32_t>(ResolvedByDigits(color));
  m_Red = static_cast<std::uint8_t>(plain);
  m_Green = static_cast<std::uint8_t>(plain >> 8);
  m_Blue = static_cast<std::uint8_t>(plain >> 16);
}

const MemberTable& CColor::Members() const {
  static const MemberTable table(kColorMembers);
  return table;
}

}  // namespace cardwright
