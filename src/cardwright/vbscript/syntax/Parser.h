#pragma once

#include <memory>

#include "cardwright/vbscript/syntax/SyntaxError.h"
#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// The whole tree of a source. Throws SyntaxError for the first error; any characters are safe to give, and
/// nesting deeper than the parser goes is error 1001.
std::unique_ptr<SyntaxTree> Parse(Text source);
/// The tree of one expression, as Eval takes it; `=` compares in it. Errors as Parse.
std::unique_ptr<SyntaxTree> ParseExpression(Text source);

}  // namespace cardwright::vbscript
