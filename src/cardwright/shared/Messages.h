#pragma once

#include <initializer_list>
#include <span>
#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// A text of the interface. "##" stands for a line break, "%%1" and so on for the arguments.
struct Message {
  int id;
  std::u16string_view text;
};

/// All texts that a person reads, by ascending number. A translation replaces this table whole.
std::span<const Message> MessageTable() noexcept;

/// Every "##" as CR LF.
Text ExpandLineBreaks(std::u16string_view text);

/// @name Text of a number with its arguments put in, in order; a place without an argument stays as it is.
/// Error 326 for a number that the table lacks.
/// @{
Text GetMessage(int id, std::span<const Variant> args = {});
Text GetMessage(int id, std::initializer_list<Variant> args);
/// @}

}  // namespace cardwright
