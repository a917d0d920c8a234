// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExpReplacement.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/RegExpProgram.h"

namespace cardwright::scripting {

RegExpReplacement::RegExpReplacement(std::u16string_view notation, std::size_t groups) {
  std::size_t done = 0;
  std::size_t sign = notation.find(u'$');
  while (sign != std::u16string_view::npos) {
    std::size_t length = 0;
    const Piece piece = ReadPlaceholder(notation.substr(sign + 1), groups, length);
    if (length > 0) {
      if (sign > done) m_Pieces.push_back({.characters = notation.substr(done, sign - done)});
      m_Pieces.push_back(piece);
      done = sign + 1 + length;
    }
    sign = notation.find(u'$', sign + 1 + length);
  }
  if (done < notation.size()) m_Pieces.push_back({.characters = notation.substr(done)});
}

// The placeholder after a dollar; its length is 0 where there is none.
RegExpReplacement::Piece RegExpReplacement::ReadPlaceholder(std::u16string_view rest, std::size_t groups,
                                                            std::size_t& length) {
  length = 0;
  if (rest.empty()) return {};
  length = 1;
  switch (rest[0]) {
    case u'$': return {.characters = rest.substr(0, 1)};
    case u'&': return {.kind = Kind::Group, .group = kWholeMatch};
    case u'`': return {.kind = Kind::Before};
    case u'\'': return {.kind = Kind::After};
    default: break;
  }
  length = 0;
  std::size_t group = 0;
  std::size_t number = 0;
  for (std::size_t i = 0; i < 2 && i < rest.size() && IsDigit(rest[i]); ++i) {
    number = number * 10 + (rest[i] - u'0');
    if (number == 0 || number > groups) continue;
    group = number;
    length = i + 1;
  }
  return {.kind = Kind::Group, .group = group};
}

std::u16string_view RegExpReplacement::PartOf(const Piece& piece, std::u16string_view text,
                                              std::span<const std::size_t> spans) {
  switch (piece.kind) {
    case Kind::Characters: return piece.characters;
    case Kind::Before: return text.substr(0, spans[0]);
    case Kind::After: return text.substr(spans[1]);
    case Kind::Group: break;
  }
  const std::size_t first = spans[piece.group * 2];
  return first == kUnsetGroup ? std::u16string_view()
                              : text.substr(first, spans[piece.group * 2 + 1] - first);
}

void RegExpReplacement::AppendTo(Text& result, std::u16string_view text, std::span<const std::size_t> spans,
                                 std::size_t maxUnits) const {
  for (const Piece& piece : m_Pieces) AppendChecked(result, PartOf(piece, text, spans), maxUnits);
}

void AppendChecked(Text& result, std::u16string_view part, std::size_t maxUnits) {
  if (result.Size() + part.size() > maxUnits) Raise(ErrorNumber::OutOfStringSpace);
  result += part;
}

}  // namespace cardwright::scripting
