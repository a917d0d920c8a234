// SPDX-License-Identifier: MIT
#include "cardwright/shared/Lookups.h"

#include <optional>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"

namespace cardwright {
namespace {

// Name number `wanted` of a list separated by ";", or none. An empty list has no name.
std::optional<std::u16string_view> PieceAt(std::u16string_view list, std::size_t wanted) {
  while (!list.empty()) {
    const std::size_t end = list.find(u';');
    if (wanted-- == 0) return list.substr(0, end);
    if (end == list.npos) break;
    list.remove_prefix(end + 1);
    if (list.empty() && wanted == 0) return list;
  }
  return std::nullopt;
}

// Row of a name, the hidden ones numbered after those of the table.
std::optional<std::size_t> RowOf(std::span<const std::u16string_view> names, std::u16string_view hidden,
                                 std::u16string_view name) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (EqualsNoCase(names[i], name)) return i;
  }
  for (std::size_t i = 0; const auto piece = PieceAt(hidden, i); ++i) {
    if (EqualsNoCase(*piece, name)) return names.size() + i;
  }
  return std::nullopt;
}

}  // namespace

std::int16_t PropertyIndexOf(std::span<const std::u16string_view> names, const Variant& index,
                             std::u16string_view hidden) {
  constexpr std::int16_t kNotFound = -1;
  return BestEffortOr(kNotFound, [&]() -> std::int16_t {
    if (IsNumeric(index)) return ToInteger(index);
    const auto row = RowOf(names, hidden, ToText(index));
    return row ? static_cast<std::int16_t>(*row) : kNotFound;
  });
}

Text PropertyNameOf(std::span<const std::u16string_view> names, const Variant& index,
                    std::u16string_view hidden) {
  return BestEffortOr(Text(), [&]() -> Text {
    if (!IsNumeric(index)) {
      const Text name = ToText(index);
      return RowOf(names, hidden, name) ? ToLower(name) : Text();
    }
    const std::int32_t row = ToLong(index);
    if (row < 0) return {};
    const auto at = static_cast<std::size_t>(row);
    if (at < names.size()) return ToLower(names[at]);
    return ToLower(PieceAt(hidden, at - names.size()).value_or(std::u16string_view()));
  });
}

Ref<Widget> ControlByName(const Surface& surface, std::u16string_view name) {
  return BestEffortOr(Ref<Widget>(), [&] { return surface.Find(name); });
}

}  // namespace cardwright
