// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The encoding of a text stream.
enum class TextEncoding {
  CodePage,  ///< one byte a character, by the current code page
  Utf16,     ///< two bytes a unit, the low one first
  Utf8,
};

inline constexpr std::string_view kUtf16ByteOrderMark = "\xFF\xFE";

/// Decodes the whole characters at the start of `bytes` and removes them; the start of an incomplete one
/// stays, unless `isAll` says that no more bytes follow.
Text DecodeAvailable(TextEncoding encoding, std::string& bytes, bool isAll);
/// The bytes of a text; none where the code page lacks one of its characters.
std::optional<std::string> EncodeText(TextEncoding encoding, std::u16string_view text);

/// The text of a script file: UTF-8 or UTF-16 by its byte order mark; without one UTF-8 where the bytes are
/// valid as such, otherwise the current code page.
Text DecodeScript(std::string_view bytes);

}  // namespace cardwright
