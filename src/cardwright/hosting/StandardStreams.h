// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/hosting/TextStream.h"

namespace cardwright {

/// The program's own streams as text streams: UTF-8, lines end with LF.
struct StandardStreams {
  Ref<TextStream> in, out, error;

  static StandardStreams OfProcess();
  /// Writes a line to standard error, after flushing standard output.
  void WriteErrorLine(std::u16string_view line) const;
};

}  // namespace cardwright
