// SPDX-License-Identifier: MIT
#include "cardwright/storage/IniValues.h"

#include <algorithm>
#include <string>

#include "cardwright/automation/Conversions.h"

namespace cardwright {
namespace {

// Size of the buffer that the platform's calls are given here. Files in use rely on where values are cut.
constexpr std::size_t kBuffer = 8192;
constexpr std::size_t kLongestValue = kBuffer - 1;

// The end of the digits, among which a separator may be: at an exponent, or before "&H" and "&O". A parcel
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

// The platform's list of names: each ended by NUL. One that does not fit is cut to two characters less than
// the size, and the last name then keeps the blanks that follow it.
std::string NameList(std::span<const std::string_view> names, std::size_t size) {
  std::string list;
  for (const std::string_view name : names) list.append(name).push_back('\0');
  if (list.size() + 1 > size) list.resize(size - 2);
  list.resize(kBuffer, ' ');
  return list;
}

}  // namespace

Text ReadIniValue(std::string_view bytes, const CodePage& page) {
  return WithPoints(page.Decode(bytes.substr(0, kLongestValue)));
}

Text ReadIniValue(std::u16string_view text) { return WithPoints(text.substr(0, kLongestValue)); }

Text StoredIniText(const Variant& value) {
  if (IsNumber(value.Type())) return Str(value);
  if (value.Type() == VarType::Boolean) return value.Boolean() ? u"1" : u"0";
  return ToText(value);
}

std::vector<Text> ListIniNames(std::span<const std::string_view> names, std::size_t size,
                               const CodePage& page) {
  const std::string list = NameList(names, size);
  std::vector<Text> result;
  for (std::size_t begin = 0; begin <= list.size();) {
    const std::size_t end = std::min(list.find('\0', begin), list.size());
    Text piece = page.Decode(std::string_view(list).substr(begin, end - begin));
    if (!Trim(piece).empty()) result.push_back(std::move(piece));
    begin = end + 1;
  }
  return result;
}

}  // namespace cardwright
