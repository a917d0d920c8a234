#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// How the characters of a text stream stand in its bytes.
enum class TextCoding {
  CodePage,  ///< one byte a character, by the current code page
  Utf16,     ///< two bytes a unit, the low one first
  Utf8,
};

inline constexpr std::string_view kUtf16Mark = "\xFF\xFE";

/// Takes the whole characters off the front of `bytes`; what is left of it is the begin of one more, unless
/// `isAll` says that nothing comes behind.
Text TakeCharacters(TextCoding coding, std::string& bytes, bool isAll);
/// None where the code page lacks a character of the text.
std::optional<std::string> ToBytes(TextCoding coding, std::u16string_view text);

/// The text of a script's file: UTF-8 or UTF-16 by its mark, UTF-8 without one where the bytes are that, and
/// the current code page else.
Text DecodeSource(std::string_view bytes);

}  // namespace cardwright
