#include "cardwright/jscript/spidermonkey/LineSpot.h"

#include "cardwright/jscript/syntax/Characters.h"

namespace cardwright::jscript {

LineSpot SpotOf(std::u16string_view text, int line, int column) noexcept {
  std::size_t start = 0;
  for (int k = 1; k < line; ++k) {
    while (start < text.size() && !IsLineEnd(text[start])) ++start;
    if (start < text.size() && text[start] == u'\r' && start + 1 < text.size() && text[start + 1] == u'\n')
      ++start;
    if (start < text.size()) ++start;
  }
  std::size_t end = start;
  while (end < text.size() && !IsLineEnd(text[end])) ++end;
  LineSpot spot{text.substr(start, end - start), 0};
  for (int k = 0; k < column && spot.unit < spot.line.size(); ++k)
    spot.unit += (spot.line[spot.unit] & 0xFC00) == 0xD800 ? 2 : 1;
  return spot;
}

}  // namespace cardwright::jscript
