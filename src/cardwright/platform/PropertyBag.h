// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/automation/Variant.h"

namespace cardwright {

/// What a container keeps for a visual control between two openings of the design that the control is part
/// of.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  /// The value kept under the name, or `fallback` where there is none.
  virtual Variant ReadProperty(std::u16string_view name, const Variant& fallback) const = 0;
  /// A container may leave out a value that equals `fallback`.
  virtual void WriteProperty(std::u16string_view name, const Variant& value, const Variant& fallback) = 0;
};

}  // namespace cardwright
