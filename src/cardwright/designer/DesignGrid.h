// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/platform/DesignSurface.h"

namespace cardwright {

/// The points that a designer paints on its surface. It remembers what is painted, so that a surface that
/// grows gets only its new rows and columns.
class DesignGrid {
 public:
  /// `step` is in the surface's scale; 0 clears. With `reset`, or another step than before, all points are
  /// painted again.
  void Paint(DesignSurface& surface, std::int16_t step, bool reset);

 private:
  std::int16_t m_Step = 0;
  float m_Columns = 0;
  float m_Rows = 0;
};

}  // namespace cardwright
