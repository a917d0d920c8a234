// SPDX-License-Identifier: MIT
#include "cardwright/storage/CodePage.h"

#include <algorithm>
#include <cctype>

#include "cardwright/storage/CodePageTables.h"

namespace cardwright {
namespace {

constexpr bool IsHighSurrogate(char16_t c) noexcept { return c >= 0xD800 && c <= 0xDBFF; }
constexpr bool IsLowSurrogate(char16_t c) noexcept { return c >= 0xDC00 && c <= 0xDFFF; }

const std::array<CodePage, 8>& AllPages() {
  static const std::array<CodePage, 8> pages = {{
      {"windows-1252", pages::kWindows1252},
      {"windows-1250", pages::kWindows1250},
      {"windows-1251", pages::kWindows1251},
      {"windows-1253", pages::kWindows1253},
      {"windows-1254", pages::kWindows1254},
      {"windows-1257", pages::kWindows1257},
      {"iso-8859-1", pages::kIso8859_1},
      {"iso-8859-15", pages::kIso8859_15},
  }};
  return pages;
}

thread_local const CodePage* selectedPage = nullptr;

std::string Normalised(std::string_view name) {
  std::string lower(name);
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (lower.starts_with("cp")) lower.replace(0, 2, "windows-");
  return lower;
}

}  // namespace

const CodePage& CodePage::Current() noexcept { return selectedPage ? *selectedPage : AllPages().front(); }

bool CodePage::Select(std::string_view name) {
  const std::string wanted = Normalised(name);
  for (const CodePage& page : AllPages()) {
    if (page.Name() != wanted) continue;
    selectedPage = &page;
    return true;
  }
  return false;
}

std::vector<std::string_view> CodePage::Names() {
  std::vector<std::string_view> names;
  for (const CodePage& page : AllPages()) names.push_back(page.Name());
  return names;
}

CodePage::CodePage(std::string_view name, const std::array<char16_t, 128>& upperHalf) : m_Name(name) {
  for (int byte = 0; byte < 128; ++byte) m_Chars[byte] = static_cast<char16_t>(byte);
  std::copy(upperHalf.begin(), upperHalf.end(), m_Chars.begin() + 128);

  for (int i = 0; i < 128; ++i) m_Upper[i] = {upperHalf[i], static_cast<unsigned char>(128 + i)};
  std::sort(m_Upper.begin(), m_Upper.end(),
            [](const Mapping& a, const Mapping& b) { return a.character < b.character; });

  for (int byte = 0; byte < 256; ++byte) {
    m_Fold[byte] = ToByte(ToLower(m_Chars[byte])).value_or(static_cast<unsigned char>(byte));
  }
}

std::optional<unsigned char> CodePage::ToByte(char16_t c) const noexcept {
  if (c < 128) return static_cast<unsigned char>(c);
  const auto at =
      std::lower_bound(m_Upper.begin(), m_Upper.end(), c,
                       [](const Mapping& mapping, char16_t wanted) { return mapping.character < wanted; });
  if (at == m_Upper.end() || at->character != c) return std::nullopt;
  return at->byte;
}

bool CodePage::CanEncode(char16_t c) const noexcept { return ToByte(c).has_value(); }

Text CodePage::Decode(std::string_view bytes) const {
  constexpr std::size_t kShort = 256;
  if (bytes.size() <= kShort) {  // most values; spares them a second allocation
    char16_t characters[kShort];
    for (std::size_t i = 0; i < bytes.size(); ++i)
      characters[i] = ToChar(static_cast<unsigned char>(bytes[i]));
    return Text(std::u16string_view(characters, bytes.size()));
  }
  std::u16string characters(bytes.size(), u'\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) characters[i] = ToChar(static_cast<unsigned char>(bytes[i]));
  return Text(characters);
}

std::string CodePage::Encode(std::u16string_view text) const {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    bytes += static_cast<char>(ToByte(text[i]).value_or('?'));
    if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) ++i;
  }
  return bytes;
}

std::optional<std::size_t> CodePage::FirstLost(std::u16string_view text) const noexcept {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!CanEncode(text[i])) return i;
  }
  return std::nullopt;
}

}  // namespace cardwright
