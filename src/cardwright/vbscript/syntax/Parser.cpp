// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Parser.h"

#include <limits>

#include "cardwright/vbscript/syntax/DeclarationParser.h"

namespace cardwright::vbscript {

namespace {

/// Positions are 32-bit numbers.
std::unique_ptr<SyntaxTree> NewTree(Text source) {
  if (source.Size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
    throw SyntaxError(SyntaxErrorNumber::OutOfMemory, {});
  }
  return std::make_unique<SyntaxTree>(std::move(source));
}

/// An expression that is the whole source, apart from empty lines after it.
class LoneExpressionParser final : public ExpressionParser {
 public:
  using ExpressionParser::ExpressionParser;

  Expr* Parse() {
    Expr* expression = ParseExpression();
    while (Accept(TokenKind::EndOfLine)) continue;
    if (!At(TokenKind::EndOfSource)) Fail(SyntaxErrorNumber::ExpectedEndOfStatement);
    return expression;
  }
};

/// Running out of memory means that the source is too large: error 1001.
template <class Parser, class Step>
void ParseWith(Parser& parser, Step step) {
  try {
    step();
  } catch (const SyntaxError&) {
    throw;
  } catch (const Error&) {
    throw SyntaxError(SyntaxErrorNumber::OutOfMemory, parser.Where());
  }
}

}  // namespace

std::unique_ptr<SyntaxTree> Parse(Text source) {
  auto tree = NewTree(std::move(source));
  DeclarationParser parser(*tree);
  ParseWith(parser, [&] { parser.ParseScript(); });
  return tree;
}

std::unique_ptr<SyntaxTree> ParseExpression(Text source) {
  auto tree = NewTree(std::move(source));
  LoneExpressionParser parser(*tree);
  ParseWith(parser, [&] { tree->expression = parser.Parse(); });
  return tree;
}

}  // namespace cardwright::vbscript
