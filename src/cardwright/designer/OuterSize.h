// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/designer/Placement.h"
#include "cardwright/platform/DesignSurface.h"

namespace cardwright {

/// The outer size of the form under design, in the form's scale: the surface with the frame of its top-level
/// window.
class OuterSize {
 public:
  static FormExtent Of(const DesignSurface& surface);

  const FormExtent& Stored() const noexcept { return m_Stored; }
  void Store(const DesignSurface& surface) { m_Stored = Of(surface); }
  /// Stores a size and gives it to the surface. A side that is stored already changes nothing, even where the
  /// surface has another size by now.
  void Set(const FormExtent& size, DesignSurface& surface);

 private:
  FormExtent m_Stored;
};

}  // namespace cardwright
