// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright::scripting {

/// The replacement of a match: characters, and placeholders: $1 to $99 for a group, $& for the match, $` for
/// the text before it, $' for the text after it, $$ for a dollar. A dollar before anything else, or before
/// the number of a group that the pattern lacks, is a character like others.
class RegExpReplacement {
 public:
  /// `notation` must outlive the replacement.
  RegExpReplacement(std::u16string_view notation, std::size_t groups);

  /// Appends the replacement of the match at `spans`, as RegExpProgram::Search gives them. Error 14 where
  /// `result` would have more than `maxUnits` units.
  void AppendTo(Text& result, std::u16string_view text, std::span<const std::size_t> spans,
                std::size_t maxUnits) const;

 private:
  enum class Kind { Characters, Group, Before, After };
  struct Piece {
    Kind kind = Kind::Characters;
    std::u16string_view characters = {};
    std::size_t group = 0;
  };
  static constexpr std::size_t kWholeMatch = 0;

  static std::u16string_view PartOf(const Piece& piece, std::u16string_view text,
                                    std::span<const std::size_t> spans);
  static Piece ReadPlaceholder(std::u16string_view rest, std::size_t groups, std::size_t& length);

  std::vector<Piece> m_Pieces;
};

/// Appends, with error 14 where `result` would have more than `maxUnits` units.
void AppendChecked(Text& result, std::u16string_view part, std::size_t maxUnits);

}  // namespace cardwright::scripting
