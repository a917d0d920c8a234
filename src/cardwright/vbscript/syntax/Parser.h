// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/vbscript/syntax/SyntaxErrors.h"
#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// Parses a source. Throws SyntaxError for the first error. Any characters are safe; nesting beyond the
/// parser's limit is error 1001.
std::unique_ptr<SyntaxTree> Parse(Text source);
/// Parses one expression, as Eval does; `=` compares in it. Errors as for Parse.
std::unique_ptr<SyntaxTree> ParseExpression(Text source);

}  // namespace cardwright::vbscript
