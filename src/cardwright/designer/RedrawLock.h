// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/DesignSurface.h"

namespace cardwright {

/// Keeps a surface from being painted for its life. The surface may end meanwhile: the pointer that it is
/// reached by is looked at again at the end.
class RedrawLock {
 public:
  explicit RedrawLock(DesignSurface* const& surface) : m_Surface(surface) { Lock(true); }
  ~RedrawLock() { Lock(false); }
  RedrawLock(const RedrawLock&) = delete;
  RedrawLock& operator=(const RedrawLock&) = delete;

 private:
  void Lock(bool lock) const {
    if (m_Surface) BestEffort([&] { m_Surface->LockRedraw(lock); });
  }

  DesignSurface* const& m_Surface;
};

}  // namespace cardwright
