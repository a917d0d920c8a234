// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "cardwright/automation/Text.h"

namespace cardwright::orv {

/// Thrown inside this room where a command cannot be carried out. The session turns it into a reply.
struct CommandError {
  Text message;
};

[[noreturn]] inline void Fail(Text message) { throw CommandError{std::move(message)}; }

/// A text in quotes for a message, shortened where it is long.
inline Text Quoted(std::u16string_view text) {
  constexpr std::size_t kShown = 40;
  const bool isCut = text.size() > kShown;
  return Text(u"\"") + text.substr(0, kShown) + (isCut ? u"…\"" : u"\"");
}

}  // namespace cardwright::orv
