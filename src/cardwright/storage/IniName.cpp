// SPDX-License-Identifier: MIT
#include "cardwright/storage/IniName.h"

#include <algorithm>

namespace cardwright {

IniName::IniName(std::u16string_view text, const CodePage& page) {
  text = Trim(text);
  const auto fold = [&](auto c) { return static_cast<char>(page.Fold(static_cast<unsigned char>(c))); };
  const auto isAscii = [](char16_t c) { return c < 128; };
  if (text.size() <= m_Short.size() && std::ranges::all_of(text, isAscii)) {
    std::ranges::transform(text, m_Short.begin(), fold);
    m_Folded = std::string_view(m_Short.data(), text.size());
  } else {
    m_Long = page.Encode(text);
    std::ranges::transform(m_Long, m_Long.begin(), fold);
    m_Folded = m_Long;
  }
}

std::u16string_view IniName::Trim(std::u16string_view text) noexcept {
  const auto isBlank = [](char16_t c) { return c == u' ' || c == u'\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace cardwright
