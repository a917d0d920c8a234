// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/shared/OrvClient.h"

namespace cardwright {

/// Keeps the host from redrawing for its life. The host redraws again even where a command in between failed:
/// otherwise its map would never be drawn again.
class RedrawPause {
 public:
  /// What the end asks of the host: to redraw when it has to, or at once as well.
  enum class End { Resume, Redraw };

  RedrawPause(OrvClient host, End end);
  ~RedrawPause();
  RedrawPause(const RedrawPause&) = delete;
  RedrawPause& operator=(const RedrawPause&) = delete;

 private:
  OrvClient m_Host;
  const End m_End;
};

}  // namespace cardwright
