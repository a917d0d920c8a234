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

/// A pattern in the notation of the matching library, every part of which is written out: nothing that means
/// one thing to the language and another to the library is left in it. Full stops match every unit.
struct LibraryPattern {
  std::u16string text;
  std::size_t groups = 0;
  bool isCaseless = false;       ///< letters of ASCII stand for both cases
  bool foldsReferences = false;  ///< back references ignore the case of all letters
};

/// @name Numbers of the errors in patterns
/// @{
/// @}

/// Longest pattern in code units.
inline constexpr std::size_t kMaxRegExpPattern = 0x10000;
/// Largest count that a quantifier tells apart: a larger minimum is too much, a larger maximum is none.
inline constexpr int kMaxRegExpCount = 65535;

/// Reads a pattern of the language. Errors: 5017 to 5021 for one that is none, 7 for one that is too large.
LibraryPattern TranslatePattern(std::u16string_view pattern, RegExpFlags flags);

}  // namespace cardwright::scripting
