// SPDX-License-Identifier: MIT
#include "cardwright/automation/DateText.h"
#include "cardwright/vbscript/syntax/Literals.h"

namespace cardwright::vbscript {

Text StringValue(std::u16string_view spelling) {
  const std::u16string_view inner = spelling.substr(1, spelling.size() - 2);
  if (inner.find(u'"') == std::u16string_view::npos) return inner;
  std::u16string value;
  value.reserve(inner.size());
  for (std::size_t i = 0; i < inner.size(); ++i) {
    value += inner[i];
    if (inner[i] == u'"') ++i;
  }
  return value;
}

std::optional<Variant> DateValueOf(std::u16string_view spelling) {
  static const Locale& unitedStates = *Locale::Find(u"en-us");
  const std::optional<Date> date = ReadDateText(spelling.substr(1, spelling.size() - 2), unitedStates);
  if (!date) return std::nullopt;
  return *date;
}

}  // namespace cardwright::vbscript
