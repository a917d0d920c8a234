#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/jscript/syntax/Edits.h"

namespace cardwright::jscript {

/// A source after conditional compilation: every character stands where it stood, what is left out and the
/// statements themselves are blanks. A variable has a `0` in its place, and an edit that puts its value
/// there.
struct ConditionalResult {
  std::u16string text;
  std::vector<Edit> values;
};

/// Runs the statements `@cc_on`, `@set`, `@if`, `@elif`, `@else` and `@end`, within comments that begin with
/// `/*@` or `//@` too. Throws a SyntaxFault.
ConditionalResult RunConditionalCode(std::u16string_view source);

}  // namespace cardwright::jscript
