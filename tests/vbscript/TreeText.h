// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// A tree as text that shows its structure: `{a + {b * c}}` for operators, `<a>` for parentheses of the
/// author, `f[a, _]` for a call with an omitted argument, `x := e` for an assignment, `f![a]` for a call
/// statement. Statements are separated by `; `, blocks are enclosed in `{ }`.
std::string TreeText(const Expr& expression);
std::string TreeText(const Stmt& statement);
std::string TreeText(Block block);
std::string TreeText(const SyntaxTree& tree);

}  // namespace cardwright::vbscript
