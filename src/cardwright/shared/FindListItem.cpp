// SPDX-License-Identifier: MIT
#include "cardwright/shared/FindListItem.h"

#include <optional>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"

namespace cardwright {
namespace {

/// The rows that the search looks at, of a widget known by its class.
template <class List>
struct KnownRows {
  const List& list;

  int Count() const { return list.ListCount(); }
  Text RowText(int row) const { return list.ListText(row); }
  std::int32_t ItemData(int row) const { return list.ItemData(row); }
};

/// The same of one known by names alone.
struct LateBoundRows {
  Object& list;

  int Count() const { return ToLong(GetProperty(list, u"ListCount")); }
  Text RowText(int row) const { return ToText(GetProperty(list, u"List", {row})); }
  std::int32_t ItemData(int row) const { return ToLong(GetProperty(list, u"ItemData", {row})); }
};

template <class Rows>
std::optional<int> FindByItemData(const Rows& rows, std::u16string_view text) {
  const Variant wanted(text.empty() ? std::u16string_view(u"0") : text);
  if (!IsNumeric(wanted)) return std::nullopt;
  const std::int32_t number = ToLong(wanted);
  const int count = rows.Count();
  for (int row = 0; row < count; ++row) {
    if (rows.ItemData(row) == number) return row;
  }
  return std::nullopt;
}

template <class Rows>
std::optional<int> FindByText(const Rows& rows, std::u16string_view text, const ListSearch& search) {
  const int count = rows.Count();
  for (int row = 0; row < count; ++row) {
    const Text held = rows.RowText(row);
    const std::u16string_view compared = search.exact ? held.View() : held.View().substr(0, text.size());
    if (search.matchCase ? compared == text : EqualsNoCase(compared, text)) return row;
  }
  return std::nullopt;
}

template <class Rows>
int Find(const Rows& rows, std::u16string_view text, const ListSearch& search) {
  return BestEffortOr(search.notFound, [&] {
    const auto row = search.byItemData ? FindByItemData(rows, text) : FindByText(rows, text, search);
    return row.value_or(search.notFound);
  });
}

}  // namespace

int FindListItem(const ComboWidget& list, std::u16string_view text, const ListSearch& search) {
  return Find(KnownRows<ComboWidget>{list}, text, search);
}

int FindListItem(const HostListWidget& list, std::u16string_view text, const ListSearch& search) {
  return Find(KnownRows<HostListWidget>{list}, text, search);
}

int FindListItem(Object& list, std::u16string_view text, const ListSearch& search) {
  return Find(LateBoundRows{list}, text, search);
}

}  // namespace cardwright
