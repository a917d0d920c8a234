#pragma once

#include <string>

#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// A tree as text that shows how it groups: `{a + {b * c}}` for operators, `<a>` for the author's
/// parentheses, `f[a, _]` for a call and an argument left out, `x := e` for an assignment, `f![a]` for a call
/// statement. Statements are joined by `; `, blocks stand in `{ }`.
std::string TreeText(const Expr& expression);
std::string TreeText(const Stmt& statement);
std::string TreeText(Block block);
std::string TreeText(const SyntaxTree& tree);

}  // namespace cardwright::vbscript
