// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "cardwright/automation/MemberTable.h"
#include "cardwright/platform/Color.h"

namespace cardwright {

/// A picture in memory, without transparency. Pixels are in rows from the bottom up, each from left to
/// right, as form projects store them. By name: Width, Height (in pixels).
class Picture final : public TableObject {
 public:
  /// A picture of width times height pixels; the sizes must match.
  Picture(int width, int height, std::vector<OleColor> pixels);

  Text TypeName() const override { return u"Picture"; }
  /// @name Size in pixels
  /// @{
  int Width() const noexcept { return m_Width; }
  int Height() const noexcept { return m_Height; }
  /// @}
  /// Width times height colours, from the bottom row up.
  const std::vector<OleColor>& Pixels() const noexcept { return m_Pixels; }

 protected:
  const MemberTable& Members() const override;

 private:
  int m_Width;
  int m_Height;
  std::vector<OleColor> m_Pixels;
};

}  // namespace cardwright
