// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "cardwright/automation/Ref.h"
#include "cardwright/automation/Variant.h"
#include "cardwright/model/Enums.h"

namespace cardwright {

class Control;
class TableControl;

/// How a value of a control is got and set. A null `set` ignores the value.
struct Field {
  Variant (*get)(const TableControl& control) = nullptr;
  void (*set)(TableControl& control, const Variant& value) = nullptr;
};

/// One row of a class's property table.
struct PropertyRow {
  std::u16string_view name;                           ///< as scripts and hosts spell it, in any case
  PropertyTypeEnum type = PropertyTypeEnum::ptNone;   ///< the editor in a property grid
  int description = 0;                                ///< number of the message that helps the author
  Field field;                                        ///< how the value is read and assigned
  std::span<const std::u16string_view> choices = {};  ///< of a ptList row
  int filter = 0;                                     ///< number of the message with the dialog filter
  int argument = 0;  ///< number of the message that is the argument of the description
  ControlTypeEnum links = ControlTypeEnum::ctDefault;  ///< of a ptControls row: the kind of control it names
};

/// How a value is written in a form project.
enum class KeyForm {
  Text,    ///< the string itself
  Number,  ///< `Str` form; read by `Val`, so that a non-number is 0
  Color,   ///< signed 32-bit number; any other text leaves the value unchanged
  Font,    ///< the six keys of a font, flags as 0 and 1
  Items,   ///< the count and the two keys of each item
};

/// One entry of a class's section in a form project, in writing order.
struct FileKey {
  std::u16string_view name;            ///< for Font and Items the first key of the group
  KeyForm form = KeyForm::Text;        ///< how the value is written
  Field field;                         ///< a null `set`: read by the class itself at the end
  const char16_t* fallback = nullptr;  ///< for a missing key; the current value where null
};

/// Colours that a new control takes from the surface on which it is drawn.
enum class SurfaceColors { None, Back, BackAndFore };

/// How a control of a class is drawn and dragged on the design surface. Lengths are in pixels.
struct DesignTraits {
  /// Height that is enough for one line of text.
  static constexpr int kMinimumHeight = 19;

  /// Passed to the widget factory for a new control; by default the one of reading. Hosts with a factory of
  /// their own have seen both spellings where they differ.
  std::u16string_view identifier = {};
  const char* displayName = "";             ///< what a user calls the kind, for translation by the program
  const char16_t* captionPrefix = nullptr;  ///< of a new control's caption, before its number; null for none
  SurfaceColors surfaceColors = SurfaceColors::None;  ///< colours of a new control
  int defaultWidth = 0;                               ///< of a control that is added without being drawn
  int defaultHeight = 0;                              ///< likewise
  int minimumDrawnHeight = kMinimumHeight;            ///< of a new control
  int minimumDraggedHeight = kMinimumHeight;          ///< of a control that is resized by its handles
  bool hasFixedHeight = false;                        ///< the widget's font decides the height
  bool hasWindow = true;     ///< false: its place on the screen is computed from its place in the container
  bool isContainer = false;  ///< other controls can be drawn inside
  bool refreshesWhenNew = true;  ///< false where a refresh would ask the host
};

/// How the value of a feature attribute enters a control of the class and is checked before it leaves.
struct ValueTraits {
  /// Row that shows the value; "" where the class overrides ShowValue or has no value.
  std::u16string_view row = {};
  /// Row that must not be empty in a needed control; "" where the class is not checked.
  std::u16string_view requiredRow = {};
  bool followsOthers = false;  ///< the choices depend on what other controls show
};

/// Everything that one control class is.
struct ClassTable {
  std::u16string_view className = {};                 ///< "CLabel"
  ControlTypeEnum type = ControlTypeEnum::ctDefault;  ///< ctDefault for the form itself
  std::u16string_view typeText = {};                  ///< `Type` as written to a project
  std::u16string_view widgetIdentifier = {};          ///< passed to the widget factory by the reader
  /// Type name of the widgets that the class controls, unless it overrides Accepts.
  std::u16string_view widgetType = {};
  Ref<Control> (*create)() = nullptr;  ///< null where there is no control to create
  DesignTraits design = {};            ///< how it is drawn
  ValueTraits value = {};              ///< how it shows an attribute

  std::span<const PropertyRow> rows = {};            ///< in grid order
  std::span<const PropertyRow> hidden = {};          ///< answered, but shown in no grid
  std::span<const FileKey> keys = {};                ///< between `UserName` and `Container`, in writing order
  std::span<const std::u16string_view> events = {};  ///< script events
  std::span<const std::u16string_view> rowNames = {};  ///< of `rows`
  std::u16string_view hiddenNames = {};                ///< of `hidden`, separated by ";"
};

namespace detail {

constexpr bool SameName(std::u16string_view a, std::u16string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if ((a[i] | 0x20) != (b[i] | 0x20)) return false;
  return true;
}

constexpr std::u16string_view NameOf(std::u16string_view event) { return event; }
template <class Entry>
constexpr std::u16string_view NameOf(const Entry& entry) {
  return entry.name;
}

template <class List>
consteval void RequireUnique(const List& list) {
  for (std::size_t i = 0; i < list.size(); ++i)
    for (std::size_t j = 0; j < i; ++j)
      if (SameName(NameOf(list[i]), NameOf(list[j]))) throw "a table lists an entry twice";
}

template <const auto& Rows>
inline constexpr auto kNames = [] {
  std::array<std::u16string_view, Rows.size()> names;
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = Rows[i].name;
  return names;
}();

template <const auto& Rows>
inline constexpr auto kJoinedNames = [] {
  constexpr std::size_t length = [] {
    std::size_t sum = Rows.size();
    for (const PropertyRow& row : Rows) sum += row.name.size();
    return sum;
  }();
  std::array<char16_t, length> joined{};
  std::size_t at = 0;
  for (const PropertyRow& row : Rows) {
    if (at > 0) joined[at++] = u';';
    for (char16_t c : row.name) joined[at++] = c;
  }
  return joined;
}();

}  // namespace detail

/// @name Lists of a class table: `constexpr auto kRows = Rows(...)`.
/// @{
template <class... Entries>
constexpr auto Rows(Entries... entries) {
  return std::array<PropertyRow, sizeof...(entries)>{entries...};
}
template <class... Entries>
constexpr auto EventNames(Entries... entries) {
  return std::array<std::u16string_view, sizeof...(entries)>{entries...};
}
/// Takes groups of keys, in writing order.
template <std::size_t... Sizes>
constexpr auto Keys(std::array<FileKey, Sizes>... groups) {
  std::array<FileKey, (Sizes + ...)> keys;
  std::size_t at = 0;
  auto append = [&](const auto& group) {
    for (const FileKey& key : group) keys[at++] = key;
  };
  (append(groups), ...);
  return keys;
}
using KeyGroup = std::array<FileKey, 1>;
/// @}

/// Completes the table of a class with its lists; a row, key or event that is listed twice does not compile.
template <const auto& Rows, const auto& Hidden, const auto& Keys, const auto& Events>
consteval ClassTable DefineClass(ClassTable table) {
  detail::RequireUnique(Rows);
  detail::RequireUnique(Keys);
  detail::RequireUnique(Events);
  for (const PropertyRow& hidden : Hidden)
    for (const PropertyRow& row : Rows)
      if (detail::SameName(hidden.name, row.name)) throw "a hidden row is in the grid as well";
  constexpr const auto& joined = detail::kJoinedNames<Hidden>;
  if (table.design.identifier.empty()) table.design.identifier = table.widgetIdentifier;
  table.rows = Rows;
  table.hidden = Hidden;
  table.keys = Keys;
  table.events = Events;
  table.rowNames = detail::kNames<Rows>;
  table.hiddenNames = {joined.data(), joined.empty() ? 0 : joined.size() - 1};
  return table;
}

}  // namespace cardwright
