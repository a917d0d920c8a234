// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/ParserCore.h"

#include "cardwright/vbscript/syntax/Characters.h"

namespace cardwright::vbscript {

ParserCore::ParserCore(SyntaxTree& tree) : m_Tree(tree), m_Lexer(tree.Source()) { Advance(); }

void ParserCore::SplitAmpersand() {
  const bool isPlainOctal = At(TokenKind::Number) && m_Token.text.front() == u'&' && IsDigit(m_Token.text[1]);
  if (isPlainOctal) m_Token = m_Lexer.SplitAmpersand(m_Token);
}

void ParserCore::FailNested() {
  --m_Nesting;
  Fail(SyntaxErrorNumber::OutOfMemory);
}

}  // namespace cardwright::vbscript
