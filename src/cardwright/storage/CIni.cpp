#include "cardwright/storage/CIni.h"

#include <algorithm>
#include <array>
#include <fstream>

#include "cardwright/platform/Files.h"
#include "cardwright/storage/CodePage.h"
#include "cardwright/storage/IniStore.h"

namespace cardwright {
namespace {

// Sizes of the buffers that the platform's calls are given here. Files in use rely on where values and lists
// are cut, the one character between the two lists included.
constexpr std::size_t kBuffer = 8192;
constexpr std::size_t kSectionsSize = kBuffer - 1;
constexpr std::size_t kKeysSize = kBuffer;
constexpr std::size_t kLongestValue = kBuffer - 1;

// Where the digits end that a separator may stand in: at an exponent, or before "&H" and "&O". A parcel
// number like "2E5,7" is no number anywhere and keeps its comma.
std::size_t EndOfMantissa(std::u16string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isExponent =
        i > 0 && IsDigit(text[i - 1]) && (ToLower(text[i]) == u'e' || ToLower(text[i]) == u'd');
    if (isExponent || text[i] == u'&') return i;
  }
  return text.size();
}

// A comma between digits separates decimals or groups, under whatever locale a project was made.
bool IsNumberWithCommas(std::u16string_view text) {
  if (IsNumericText(text)) return true;
  const std::size_t end = EndOfMantissa(text);
  std::u16string joined;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isSeparator = text[i] == u',' && i < end && i > 0 && IsDigit(text[i - 1]) &&
                             i + 1 < text.size() && IsDigit(text[i + 1]);
    if (!isSeparator) joined += text[i];
  }
  return joined.size() < text.size() && IsNumericText(joined);
}

Text WithPoints(Text text) {
  if (text.View().find(u',') == std::u16string_view::npos || !IsNumberWithCommas(text)) return text;
  return Replace(text, u",", u".");
}

// The platform's list of names: each ended by NUL. One that does not fit is cut to two characters less than
// the size, wherever that falls in a name.
std::string NameList(const std::vector<std::string_view>& names, std::size_t size) {
  std::string list;
  for (const std::string_view name : names) list.append(name).push_back('\0');
  if (list.size() + 1 > size) list.resize(size - 2);
  return list;
}

// Padding and splitting of the list: the last name of one that was cut keeps the blanks.
Ref<Collection> SplitNames(std::string list) {
  list.resize(kBuffer, ' ');
  auto result = MakeRef<Collection>();
  for (std::size_t begin = 0; begin <= list.size();) {
    const std::size_t end = std::min(list.find('\0', begin), list.size());
    const Text piece = CodePage::Current().Decode(std::string_view(list).substr(begin, end - begin));
    if (!Trim(piece).empty()) result->Add(piece);
    begin = end + 1;
  }
  return result;
}

bool IsNumber(VarType type) noexcept {
  switch (type) {
    case VarType::Integer:
    case VarType::Long:
    case VarType::Single:
    case VarType::Double:
    case VarType::Currency:
    case VarType::Decimal:
    case VarType::Byte: return true;
    default: return false;
  }
}

Text StoredText(const Variant& value) {
  if (IsNumber(value.Type())) return Str(value);
  if (value.Type() == VarType::Boolean) return value.Boolean() ? u"1" : u"0";
  return ToText(value);
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
  m_FileName = Text();
  m_Store = nullptr;
  if (Trim(fileName).empty()) return;
  if (!FileExists(fileName)) {
    std::ofstream created(ToPath(fileName), std::ios::app);
    if (!created) return;
  }
  m_Store = IniStore::Open(fileName);
  if (m_Store) m_FileName = fileName;
}

Variant CIni::GetValue(const Text& section, const Text& key, std::optional<Variant> defaultValue) const {
  RequireFile();
  Text text = GetText(section, key, defaultValue ? ToText(*defaultValue) : Text());
  if (text.IsEmpty()) return {};
  return text;
}

std::optional<Variant> CIni::Find(std::u16string_view section, std::u16string_view key) const {
  RequireFile();
  const auto value = m_Store->Image().Get(section, key);
  if (!value) return std::nullopt;
  Text text = WithPoints(CodePage::Current().Decode(value->substr(0, kLongestValue)));
  return text.IsEmpty() ? Variant() : Variant(std::move(text));
}

Text CIni::GetText(std::u16string_view section, std::u16string_view key, std::u16string_view fallback) const {
  RequireFile();
  const auto value = m_Store->Image().Get(section, key);
  if (value) return WithPoints(CodePage::Current().Decode(value->substr(0, kLongestValue)));
  return WithPoints(fallback.substr(0, kLongestValue));
}

void CIni::WriteValue(const Text& section, const Text& key, const Variant& value) {
  // Saving a form must go on past a value that cannot be written, so nothing leaves this step.
  Attempt([&] {
    RequireFile();
    const Variant& held = value.Deref();
    if (key.IsEmpty() || held.IsEmpty()) Raise(ErrorNumber::InvalidCall);
    const Text text = StoredText(held);
    if (!m_Store->Change([&](IniFile& file) { return file.Set(section, key, text); })) {
      Raise(ErrorNumber::CannotPerform);
    }
  });
}

Ref<Collection> CIni::Sections() const {
  RequireFile();
  return SplitNames(NameList(m_Store->Image().SectionNames(), kSectionsSize));
}

Ref<Collection> CIni::Keys(const Text& section) const {
  RequireFile();
  if (Trim(section).empty()) Raise(ErrorNumber::InvalidCall);
  return SplitNames(NameList(m_Store->Image().KeyNames(section), kKeysSize));
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
