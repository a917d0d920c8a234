// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// The 8-bit code page of form project files and plain text streams: every one of the 256 bytes is a
/// character, so any file goes through Decode and Encode unchanged. Bytes that a page leaves undefined are C1
/// controls.
class CodePage {
 public:
  /// The calling thread's page: Windows-1252 until another is selected.
  static const CodePage& Current() noexcept;
  /// Selects the calling thread's page by name, whatever the case: "windows-1250" to "windows-1254",
  /// "windows-1257" (or "cp1250" and so on), "iso-8859-1", "iso-8859-15". False for any other name; the page
  /// then stays.
  static bool Select(std::string_view name);
  /// All names that Select knows, without the "cp" forms.
  static std::vector<std::string_view> Names();

  /// A page with these characters for the bytes 128 to 255; the lower ones are ASCII.
  CodePage(std::string_view name, const std::array<char16_t, 128>& upperHalf);
  CodePage(const CodePage&) = delete;
  CodePage& operator=(const CodePage&) = delete;

  /// The name, as Names lists it.
  std::string_view Name() const noexcept { return m_Name; }

  /// The characters of the bytes, one each.
  Text Decode(std::string_view bytes) const;
  /// One byte for each character; "?" for one that the page lacks, a surrogate pair being one character.
  std::string Encode(std::u16string_view text) const;
  /// Whether the page has the character.
  bool CanEncode(char16_t c) const noexcept;
  /// Position of the first character that Encode would lose.
  std::optional<std::size_t> FirstLost(std::u16string_view text) const noexcept;

  /// Character of a byte.
  char16_t ToChar(unsigned char byte) const noexcept { return m_Chars[byte]; }
  /// Byte of a character, or none. A surrogate has none.
  std::optional<unsigned char> ToByte(char16_t c) const noexcept;
  /// The byte that represents this one and its other case when names are compared.
  unsigned char Fold(unsigned char byte) const noexcept { return m_Fold[byte]; }

 private:
  struct Mapping {
    char16_t character;
    unsigned char byte;
  };

  std::string_view m_Name;
  std::array<char16_t, 256> m_Chars;
  std::array<unsigned char, 256> m_Fold;
  std::array<Mapping, 128> m_Upper;  // by character
};

}  // namespace cardwright
