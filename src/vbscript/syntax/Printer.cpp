#include "vbscript/syntax/Printer.h"

#include "vbscript/syntax/StatementPrinter.h"

namespace cardwright::vbscript {

Text Print(const SyntaxTree& tree) { return StatementPrinter(tree).Result(); }

}  // namespace cardwright::vbscript
