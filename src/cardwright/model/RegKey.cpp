// SPDX-License-Identifier: MIT
#include "cardwright/model/RegKey.h"

namespace cardwright {
namespace {

/// The trimmed part before the first "/", which is cut off `rest` with it.
std::u16string_view CutPart(std::u16string_view& rest) {
  const std::size_t slash = rest.find(u'/');
  const auto part = Trim(rest.substr(0, slash));
  rest = slash == rest.npos ? std::u16string_view() : rest.substr(slash + 1);
  return part;
}

}  // namespace

std::optional<SettingName> SplitRegKey(std::u16string_view key) {
  SettingName place;
  place.app = CutPart(key);
  place.section = CutPart(key);
  place.name = Trim(key);
  if (place.app.IsEmpty() || place.section.IsEmpty() || place.name.IsEmpty()) return std::nullopt;
  return place;
}

}  // namespace cardwright
