// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/platform/Color.h"

namespace cardwright {

/// The components of a colour number.
class CColor final : public TableObject {
 public:
  Text TypeName() const override { return u"CColor"; }

  /// The components as a colour number.
  OleColor Color() const noexcept { return Rgb(m_Red, m_Green, m_Blue); }
  /// Takes the components of a colour; a system colour is resolved to its present value.
  void SetColor(OleColor color);

  std::uint8_t m_Red = 0;
  std::uint8_t m_Green = 0;
  std::uint8_t m_Blue = 0;
  std::uint8_t m_Alpha = 0;  ///< kept separately: the colour number has none

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
