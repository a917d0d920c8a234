// SPDX-License-Identifier: MIT
#include "cardwright/storage/CIni.h"

#include "cardwright/storage/IniStore.h"
#include "cardwright/storage/IniValues.h"

namespace cardwright {
namespace {

Ref<Collection> ToCollection(const std::vector<Text>& names) {
  auto result = MakeRef<Collection>();
  for (const Text& name : names) result->Add(name);
  return result;
}

constexpr Member kMembers[] = {
    Property<&CIni::FileName, &CIni::SetFileName>(u"FileName"),
    Method<&CIni::GetValue>(u"GetValue"),
    Method<&CIni::WriteValue>(u"WriteValue"),
    Property<&CIni::Sections>(u"Sections"),
    Property<&CIni::Keys>(u"Keys"),
    Method<&CIni::DeleteSection>(u"DeleteSection"),
    Method<&CIni::DeleteKey>(u"DeleteKey"),
    Method<&CIni::Reset>(u"Reset"),
};

}  // namespace

CIni::CIni() = default;
CIni::~CIni() = default;

void CIni::SetFileName(const Text& fileName) {
  m_Store = IniStore::OpenOrCreate(fileName);
  m_FileName = m_Store ? fileName : Text();
}

Variant CIni::GetValue(const Text& section, const Text& key, std::optional<Variant> defaultValue) const {
  RequireFile();
  Text text = GetText(section, key, defaultValue ? ToText(*defaultValue) : Text());
  if (text.IsEmpty()) return {};
  return text;
}

std::optional<Variant> CIni::Find(std::u16string_view section, std::u16string_view key) const {
  RequireFile();
  const IniFile& file = m_Store->Image();
  const auto value = file.Get(section, key);
  if (!value) return std::nullopt;
  Text text = ReadIniValue(*value, file.Page());
  return text.IsEmpty() ? Variant() : Variant(std::move(text));
}

Text CIni::GetText(std::u16string_view section, std::u16string_view key, std::u16string_view fallback) const {
  RequireFile();
  const IniFile& file = m_Store->Image();
  const auto value = file.Get(section, key);
  return value ? ReadIniValue(*value, file.Page()) : ReadIniValue(fallback);
}

void CIni::WriteValue(const Text& section, const Text& key, const Variant& value) {
  // Saving a form must go on past a value that cannot be written, so nothing leaves this step.
  BestEffort([&] {
    RequireFile();
    const Variant& held = value.Deref();
    if (key.IsEmpty() || held.IsEmpty()) Raise(ErrorNumber::InvalidCall);
    const Text text = StoredIniText(held);
    if (!m_Store->Change([&](IniFile& file) { return file.Set(section, key, text); })) {
      Raise(ErrorNumber::CannotPerform);
    }
  });
}

Ref<Collection> CIni::Sections() const {
  RequireFile();
  const IniFile& file = m_Store->Image();
  return ToCollection(ListIniNames(file.SectionNames(), kSectionListSize, file.Page()));
}

Ref<Collection> CIni::Keys(const Text& section) const {
  RequireFile();
  if (Trim(section).empty()) Raise(ErrorNumber::InvalidCall);
  const IniFile& file = m_Store->Image();
  return ToCollection(ListIniNames(file.KeyNames(section), kKeyListSize, file.Page()));
}

bool CIni::DeleteSection(const Text& section) {
  RequireFile();
  if (section.IsEmpty()) Raise(ErrorNumber::InvalidCall);
  return m_Store->Change([&](IniFile& file) { return file.DeleteSection(section); });
}

bool CIni::DeleteKey(const Text& section, const Text& key) {
  RequireFile();
  if (section.IsEmpty() || key.IsEmpty()) Raise(ErrorNumber::InvalidCall);
  return m_Store->Change([&](IniFile& file) { return file.DeleteKey(section, key); });
}

void CIni::Reset() {
  if (m_Store) m_Store->Change([](IniFile& file) { return file.Clear(); });
}

const MemberTable& CIni::Members() const {
  static const MemberTable table(kMembers);
  return table;
}

void CIni::RequireFile() const {
  if (m_FileName.IsEmpty()) Raise(ErrorNumber::InvalidCall);
}

}  // namespace cardwright
