#pragma once

#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/model/Enums.h"

namespace cardwright {

/// A kind of control that can be drawn.
struct ControlKind {
  ControlTypeEnum type;
  std::u16string_view word;        ///< as the designer keeps the kind to add, and as StateChanged tells it
  std::u16string_view identifier;  ///< for the widget factory; "" for the selection tool
  const char16_t* prefix;          ///< of a new control's text, before its number; null where it gets no text
};

/// The kind of a number; null outside 0 to 15.
const ControlKind* FindKind(ControlTypeEnum type) noexcept;
/// The kind of a word in this very spelling; null for any other.
const ControlKind* FindKindExactly(std::u16string_view word) noexcept;
/// The kind of a word, whatever its case; null for any other.
const ControlKind* FindKind(std::u16string_view word) noexcept;
/// The word of the kind that makes widgets of a run-time type, whatever its case: a fixed one for list view
/// and companion widgets, and the type name itself for any other.
Text WordForWidget(const Text& typeName);

}  // namespace cardwright
