// SPDX-License-Identifier: MIT
#include "cardwright/editor/PadSearch.h"

#include <algorithm>

namespace cardwright {

namespace {

// What is looked for is most often close by, so the text is read in pieces; each shares the length of a match
// with its neighbour.
constexpr std::int32_t kPiece = 16 * 1024;

std::int32_t LastIn(std::u16string_view piece, std::u16string_view what) {
  for (std::size_t at = piece.size() - what.size() + 1; at-- > 0;)
    if (EqualsNoCase(piece.substr(at, what.size()), what)) return static_cast<std::int32_t>(at);
  return -1;
}

}  // namespace

std::int32_t FindBackward(const Lexipad& pad, std::u16string_view what, std::int32_t end) {
  const auto size = static_cast<std::int32_t>(what.size());
  end = std::min(end, pad.TextLength());
  while (end >= size) {
    const std::int32_t start = std::max(0, end - kPiece - size);
    const Text piece = pad.TextRange(start, end - start);
    if (static_cast<std::int32_t>(piece.Size()) < size) return -1;
    const std::int32_t at = LastIn(piece, what);
    if (at >= 0) return start + at;
    if (start == 0) return -1;
    end = start + size - 1;
  }
  return -1;
}

std::int32_t FindForward(const Lexipad& pad, std::u16string_view what, std::int32_t start) {
  const auto size = static_cast<std::int32_t>(what.size());
  const std::int32_t length = pad.TextLength();
  for (start = std::max(start, 0); start + size <= length; start += kPiece) {
    const Text piece = pad.TextRange(start, kPiece + size - 1);
    const std::size_t at = FindNoCase(piece, what);
    if (at != std::u16string_view::npos) return start + static_cast<std::int32_t>(at);
  }
  return -1;
}

}  // namespace cardwright
