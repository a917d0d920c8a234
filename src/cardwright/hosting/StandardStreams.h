#pragma once

#include "cardwright/hosting/TextStream.h"

namespace cardwright {

/// The program's own streams as text streams in UTF-8 with LF at the ends of lines.
struct StandardStreams {
  Ref<TextStream> in, out, error;

  static StandardStreams OfProcess();
  /// A line on standard error, behind all that was written to standard output before.
  void Tell(std::u16string_view line) const;
};

}  // namespace cardwright
