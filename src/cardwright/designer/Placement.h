// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Enums.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {

class DesignClipboard;

/// A point of the surface or of a container, in the surface's scale.
struct FormPoint {
  float x = 0;  ///< from the left edge
  float y = 0;  ///< from the top edge
};

/// A size on the surface, in the surface's scale.
struct FormExtent {
  float width = 0;   ///< not negative
  float height = 0;  ///< not negative
};

/// A rectangle on the surface or in a container, in the surface's scale.
struct FormRect {
  float left = 0;    ///< from the left edge
  float top = 0;     ///< from the top edge
  float width = 0;   ///< not negative
  float height = 0;  ///< not negative
};

/// The rectangle between two opposite corners. The second one is moved to the edge where it is negative.
FormRect RectBetween(FormPoint first, FormPoint second);

/// A control to be put on the surface.
struct Placement {
  ControlTypeEnum type = ControlTypeEnum::ctDefault;  ///< the kind of control
  FormRect rectangle;                                 ///< in the container
  Ref<Widget> container;                              ///< null for the surface itself
  /// What is pasted, at the top left corner; null for a new control.
  const DesignClipboard* source = nullptr;
};

/// Room for controls in a container, or on the surface for null.
FormExtent RoomIn(const Widget* container, const Surface& surface);

}  // namespace cardwright
