// SPDX-License-Identifier: MIT
#include "cardwright/designer/DesignGrid.h"

#include <algorithm>
#include <cmath>

namespace cardwright {
namespace {

// Rounds half to even, as the platform rounds counters. A surface of any size has a limited number of points.
int Rounded(float count) {
  constexpr float kMost = 1'000'000;
  return std::isnan(count) ? 0 : static_cast<int>(std::nearbyint(std::clamp(count, -kMost, kMost)));
}

}  // namespace

void DesignGrid::Paint(DesignSurface& surface, std::int16_t step, bool reset) {
  if (reset || step != m_Step) {
    surface.Cls();
    m_Columns = 0;
    m_Rows = 0;
  }
  // The former step stays stored: when it is set again, the points come back only because the counts are 0.
  if (step == 0) return;
  const float columns = surface.Width() / step;
  const float rows = surface.Height() / step;
  const GridPoints newRows{step, 0, Rounded(columns), Rounded(m_Rows), Rounded(rows)};
  const GridPoints newColumns{step, Rounded(m_Columns), Rounded(columns), 0, Rounded(rows)};
  surface.PaintPoints(newRows);
  if (newColumns != newRows) surface.PaintPoints(newColumns);
  m_Step = step;
  m_Columns = columns;
  m_Rows = rows;
}

}  // namespace cardwright
