#pragma once

#include <utility>

#include "cardwright/automation/Text.h"

namespace cardwright::orv {

/// Thrown inside this room by whatever cannot do as it was told; the session turns it into a reply.
struct Refusal {
  Text reason;
};

[[noreturn]] inline void Refuse(Text reason) { throw Refusal{std::move(reason)}; }

/// A text in quotes for a message, cut where it is long.
inline Text Quoted(std::u16string_view text) {
  constexpr std::size_t kShown = 40;
  const bool cut = text.size() > kShown;
  return Text(u"\"") + text.substr(0, kShown) + (cut ? u"…\"" : u"\"");
}

}  // namespace cardwright::orv
