// SPDX-License-Identifier: MIT
#include "cardwright/jscript/syntax/SourceMap.h"

#include <algorithm>

#include "cardwright/jscript/syntax/CharacterClasses.h"

namespace cardwright::jscript {
namespace {

/// Finds lines and columns in one pass over a source.
class LineScanner {
 public:
  explicit LineScanner(std::u16string_view source) : m_Source(source) {}
  /// Positions must not decrease.
  SourcePosition To(std::size_t position) noexcept {
    for (; m_At < position && m_At < m_Source.size(); ++m_At) {
      const char16_t c = m_Source[m_At];
      const bool isPair = c == u'\r' && m_At + 1 < m_Source.size() && m_Source[m_At + 1] == u'\n';
      if (!IsLineEnd(c) || isPair) continue;
      ++m_Line;
      m_LineStart = m_At + 1;
    }
    return {m_Line, static_cast<int>(position - m_LineStart)};
  }

 private:
  std::u16string_view m_Source;
  std::size_t m_At = 0, m_LineStart = 0;
  int m_Line = 1;
};

}  // namespace

SourcePosition PositionAt(std::u16string_view source, std::size_t position) noexcept {
  return LineScanner(source).To(position);
}

SourceMap::SourceMap(std::u16string_view source, const std::vector<TextEdit>& edits) {
  LineScanner walk(source);
  int line = 0, moved = 0;
  for (const TextEdit& edit : edits) {
    const SourcePosition place = walk.To(edit.position);
    if (place.line != line) moved = 0;
    line = place.line;
    const auto inserted = static_cast<int>(edit.inserted.size()), removed = static_cast<int>(edit.removed);
    m_Shifts.push_back({line, place.column + moved, inserted, removed});
    moved += inserted - removed;
  }
}

SourcePosition SourceMap::Original(SourcePosition edited) const noexcept {
  auto shift = std::ranges::lower_bound(m_Shifts, edited.line, {}, &Shift::line);
  int moved = 0;
  for (; shift != m_Shifts.end() && shift->line == edited.line && shift->column <= edited.column; ++shift) {
    // A position inside an insertion maps to where the text was inserted.
    if (edited.column < shift->column + shift->inserted) return {edited.line, shift->column - moved};
    moved += shift->inserted - shift->removed;
  }
  return {edited.line, edited.column - moved};
}

std::u16string ApplyEdits(std::u16string_view source, const std::vector<TextEdit>& edits) {
  std::u16string text;
  text.reserve(source.size() + edits.size() * 16);
  std::size_t at = 0;
  for (const TextEdit& edit : edits) {
    text.append(source.substr(at, edit.position - at));
    text += edit.inserted;
    at = edit.position + edit.removed;
  }
  text.append(source.substr(at));
  return text;
}

}  // namespace cardwright::jscript
