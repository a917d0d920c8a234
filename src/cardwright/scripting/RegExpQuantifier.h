// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace cardwright::scripting {

/// How often a part of a pattern may be repeated.
struct RegExpQuantifier {
  static constexpr int kUnlimited = -1;

  int least = 0;
  int most = 0;  ///< or kUnlimited
  bool isLazy = false;
  std::size_t length = 0;  ///< units of the pattern

  /// Whether it allows enough repetitions to make a search long.
  bool IsLong() const noexcept;
  /// In the notation of the matching library.
  std::u16string Notation() const;
};

/// The quantifier at the start of `rest`: *, +, ?, {n}, {n,} or {n,m}, each lazy with a further question
/// mark. None where there is none; braces around anything else are characters like others. Error 5017 where n
/// is more than m, 7 for a minimum of more than 65535; a maximum of more is unlimited.
std::optional<RegExpQuantifier> ReadQuantifier(std::u16string_view rest);

/// A number in the notation of the matching library.
std::u16string NumberNotation(std::size_t number);

}  // namespace cardwright::scripting
