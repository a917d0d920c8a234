// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/LinePosition.h"

#include "cardwright/jscript/syntax/CharacterClasses.h"

namespace cardwright::jscript {

LinePosition FindLinePosition(std::u16string_view text, int line, int column) noexcept {
  std::size_t start = 0;
  for (int k = 1; k < line; ++k) {
    while (start < text.size() && !IsLineEnd(text[start])) ++start;
    if (start < text.size() && text[start] == u'\r' && start + 1 < text.size() && text[start + 1] == u'\n')
      ++start;
    if (start < text.size()) ++start;
  }
  std::size_t end = start;
  while (end < text.size() && !IsLineEnd(text[end])) ++end;
  LinePosition position{text.substr(start, end - start), 0};
  for (int k = 0; k < column && position.unit < position.line.size(); ++k)
    position.unit += (position.line[position.unit] & 0xFC00) == 0xD800 ? 2 : 1;
  return position;
}

}  // namespace cardwright::jscript
