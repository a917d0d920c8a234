// SPDX-License-Identifier: MIT
#include "cardwright/storage/SectionReader.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/storage/IniFile.h"

namespace cardwright {

std::optional<Variant> SectionReader::Find(std::u16string_view key) const {
  const auto value = m_File->Get(m_Section, key);
  if (!value) return std::nullopt;
  Text text = ReadIniValue(*value, m_File->Page());
  return text.IsEmpty() ? Variant() : Variant(std::move(text));
}

Variant SectionReader::GetValue(std::u16string_view key, const Variant& fallback) const {
  Text text = GetText(key, ToText(fallback));
  return text.IsEmpty() ? Variant() : Variant(std::move(text));
}

Text SectionReader::GetText(std::u16string_view key, std::u16string_view fallback) const {
  const auto value = m_File->Get(m_Section, key);
  return value ? ReadIniValue(*value, m_File->Page()) : ReadIniValue(fallback);
}

std::vector<Text> SectionReader::Keys() const {
  return ListIniNames(m_File->KeyNames(m_Section), kKeyListSize, m_File->Page());
}

}  // namespace cardwright
