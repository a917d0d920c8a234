// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cardwright::scripting {

/// How a pattern is read.
struct RegExpFlags {
  bool ignoreCase = false;
  bool multiLine = false;  ///< ^ and $ match at every line
  friend bool operator==(const RegExpFlags&, const RegExpFlags&) = default;
};

/// A pattern in the notation of the matching library. Every set, anchor and number is written out, so that
/// nothing is left that the language and the library understand differently. Full stops match every unit.
struct LibraryPattern {
  std::u16string text;
  std::size_t groups = 0;
  bool isCaseless = false;       ///< ASCII letters match both cases
  bool foldsReferences = false;  ///< back references ignore the case of all letters
};

/// Longest pattern in code units.
inline constexpr std::size_t kMaxRegExpPattern = 0x10000;
/// Translates a pattern of the language. Errors: 5017 to 5021 for mistakes in it, 7 for one that is too
/// large.
LibraryPattern TranslatePattern(std::u16string_view pattern, RegExpFlags flags);

}  // namespace cardwright::scripting
