// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Printer.h"

#include "cardwright/vbscript/syntax/StatementPrinter.h"

namespace cardwright::vbscript {

Text Print(const SyntaxTree& tree) { return StatementPrinter(tree).Result(); }

}  // namespace cardwright::vbscript
