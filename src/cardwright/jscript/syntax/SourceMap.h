// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cardwright::jscript {

/// An edit of a source within one line: `inserted` replaces `removed` characters.
struct TextEdit {
  std::size_t position = 0;
  std::size_t removed = 0;
  std::u16string inserted;
};

struct SourcePosition {
  int line = 0;    ///< from 1
  int column = 0;  ///< from 0
};

SourcePosition PositionAt(std::u16string_view source, std::size_t position) noexcept;

/// Maps positions in an edited source to the source as the author wrote it. Edits never change the lines.
class SourceMap {
 public:
  SourceMap() = default;
  /// `edits` in the order of their positions.
  SourceMap(std::u16string_view source, const std::vector<TextEdit>& edits);
  SourcePosition Original(SourcePosition edited) const noexcept;

 private:
  struct Shift {
    int line = 0, column = 0;  // where the edit begins, in the edited source
    int inserted = 0, removed = 0;
  };
  std::vector<Shift> m_Shifts;
};

std::u16string ApplyEdits(std::u16string_view source, const std::vector<TextEdit>& edits);

}  // namespace cardwright::jscript
