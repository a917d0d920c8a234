// SPDX-License-Identifier: MIT
#include "cardwright/designer/Placement.h"

#include <algorithm>

#include "cardwright/shared/Lookups.h"

namespace cardwright {

FormRect RectBetween(FormPoint first, FormPoint second) {
  second.x = std::max(second.x, 0.0F);
  second.y = std::max(second.y, 0.0F);
  OrderPair(second.x, first.x);
  OrderPair(second.y, first.y);
  return {first.x, first.y, second.x - first.x, second.y - first.y};
}

FormExtent RoomIn(const Widget* container, const Surface& surface) {
  if (container) return {container->Width(), container->Height()};
  return {surface.Width(), surface.Height()};
}

}  // namespace cardwright
