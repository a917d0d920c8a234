// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/jscript/syntax/SourceMap.h"

namespace cardwright::jscript {

/// A source after conditional compilation. Every character keeps its position: the statements and the code
/// that they leave out become blanks. A variable becomes `0`, and `values` has an edit that inserts its
/// value.
struct ConditionalResult {
  std::u16string text;
  std::vector<TextEdit> values;
};

/// Runs the statements `@cc_on`, `@set`, `@if`, `@elif`, `@else` and `@end`, also in comments that begin with
/// `/*@` or `//@`. Throws a SourceError.
ConditionalResult RunConditionalCode(std::u16string_view source);

}  // namespace cardwright::jscript
