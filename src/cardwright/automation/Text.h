// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace cardwright {

/// UTF-16 text with shared characters: any code unit may be in it, NUL included. A copy shares the characters
/// and only increments a count; appending to an unshared text is amortised constant. Counts are not atomic,
/// so a text belongs to one thread.
class Text {
 public:
  Text() noexcept = default;
  Text(std::u16string_view characters);
  Text(const char16_t* characters) : Text(std::u16string_view(characters)) {}
  Text(const std::u16string& characters) : Text(std::u16string_view(characters)) {}
  Text(const Text& other) noexcept : m_Rep(other.m_Rep) { Retain(); }
  Text(Text&& other) noexcept : m_Rep(std::exchange(other.m_Rep, nullptr)) {}
  ~Text() {
    if (m_Rep) Drop();
  }
  Text& operator=(Text other) noexcept {
    std::swap(m_Rep, other.m_Rep);
    return *this;
  }

  /// A text of `size` characters that `fill` writes: it is called with a pointer to them, unless there are
  /// none. Error 7 for an impossible size.
  template <class Fill>
  static Text OfSize(std::size_t size, Fill&& fill) {
    Text text;
    if (size != 0) std::forward<Fill>(fill)(text.Allocate(size));
    return text;
  }

  /// From UTF-8; an invalid sequence becomes U+FFFD.
  static Text FromUtf8(std::string_view utf8);
  /// As UTF-8; a lone surrogate becomes U+FFFD.
  std::string ToUtf8() const;

  operator std::u16string_view() const noexcept { return View(); }
  /// The UTF-16 code units; valid until the text changes or ends.
  std::u16string_view View() const noexcept;
  /// The number of UTF-16 code units.
  std::size_t Size() const noexcept { return View().size(); }
  /// Whether the text has no characters.
  bool IsEmpty() const noexcept { return m_Rep == nullptr; }
  /// The code unit at a position below Size().
  char16_t operator[](std::size_t index) const noexcept { return View()[index]; }

  /// Appends a text. Error 7 for an impossible size.
  Text& operator+=(std::u16string_view tail);
  Text& operator+=(const char16_t* tail) { return *this += std::u16string_view(tail); }

  friend Text operator+(Text head, std::u16string_view tail) { return std::move(head += tail); }
  friend bool operator==(const Text& a, const Text& b) noexcept {
    return a.m_Rep == b.m_Rep || a.View() == b.View();
  }
  friend bool operator==(const Text& a, std::u16string_view b) noexcept { return a.View() == b; }
  friend bool operator==(const Text& a, const char16_t* b) noexcept { return a.View() == b; }
  friend bool operator==(const Text& a, const std::u16string& b) noexcept { return a.View() == b; }

 private:
  struct Rep;
  friend class Variant;

  char16_t* Allocate(std::size_t size);
  inline void Retain() const noexcept;
  inline void Drop() noexcept;

  Rep* m_Rep = nullptr;  // null is the empty text
};

/// Position of the first occurrence of `part` from `from` on, or npos. An empty part is found at once.
std::size_t Find(std::u16string_view text, std::u16string_view part, std::size_t from = 0) noexcept;

/// @name Case. One mapping for the whole library, independent of the process's locale: simple case mapping of
/// the Latin, Greek and Cyrillic blocks; every other code unit maps to itself.
/// @{
char16_t ToLower(char16_t c) noexcept;
char16_t ToUpper(char16_t c) noexcept;
Text ToLower(std::u16string_view text);
Text ToUpper(std::u16string_view text);
bool EqualsNoCase(std::u16string_view a, std::u16string_view b) noexcept;
/// Position of the first occurrence from `from` on, or npos.
std::size_t FindNoCase(std::u16string_view text, std::u16string_view part, std::size_t from = 0) noexcept;
/// Equal for texts that EqualsNoCase.
std::size_t HashNoCase(std::u16string_view text) noexcept;
/// @}

/// Whether it is one of 0 to 9.
constexpr bool IsDigit(char16_t c) noexcept { return c >= u'0' && c <= u'9'; }
/// The text without blanks (U+0020) at both ends, as the platform's Trim; other white space stays.
std::u16string_view Trim(std::u16string_view text) noexcept;
/// Every occurrence of `from` replaced by `to`; with `noCase` the search ignores case.
Text Replace(std::u16string_view text, std::u16string_view from, std::u16string_view to, bool noCase = false);

}  // namespace cardwright

// The operations that must not cost a call.
#include "cardwright/automation/TextRep.h"  // IWYU pragma: export
