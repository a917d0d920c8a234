// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/editor/Lexipad.h"

namespace cardwright {

/// The procedure that the caret is in, or that the combos show for it, by its name's two halves. A name
/// without an underscore is all event.
struct ProcedureName {
  Text control;
  Text event;

  friend bool operator==(const ProcedureName&, const ProcedureName&) = default;
};

/// Finds the procedure for the caret by the lines that begin and end procedures; both halves are empty where
/// there is none. A script need not compile for it.
ProcedureName ProcedureAtCaret(const Lexipad& pad, std::u16string_view language);

/// The two halves of a procedure's first line: "Sub my_box_OnClick()" is the event "OnClick" of "my_box".
ProcedureName SplitHeaderLine(std::u16string_view line);

}  // namespace cardwright
