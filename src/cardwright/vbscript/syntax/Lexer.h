// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "cardwright/vbscript/syntax/SyntaxErrors.h"
#include "cardwright/vbscript/syntax/Token.h"

namespace cardwright::vbscript {

/// Splits a source into tokens, one at a time. A copy continues at the same position: so the parser looks
/// ahead. Tokens refer to the characters of the source.
class Lexer {
 public:
  explicit Lexer(std::u16string_view source) : m_Source(source) {}

  /// The next token; at the end always EndOfSource. Throws SyntaxError.
  Token Next();

  /// Unreads all but the first character of `token`, the last one read, which must be a number such as `&17`:
  /// after an operand this is the operator `&` and a decimal number.
  Token SplitAmpersand(const Token& token);

 private:
  char16_t At(std::size_t index) const { return index < m_Source.size() ? m_Source[index] : u'\0'; }
  Position Here() const { return {m_Line, static_cast<std::int32_t>(m_Next - m_LineStart)}; }
  [[noreturn]] void Fail(SyntaxErrorNumber number) const { throw SyntaxError(number, Here()); }

  bool SkipBlanks();
  bool SkipContinuation();
  void SkipComment();
  std::size_t PastLineEnd(std::size_t index) const;

  TokenKind Scan(Token& token);
  TokenKind Emit(Token& token, TokenKind kind, std::size_t length);
  TokenKind ScanLineEnd(Token& token);
  TokenKind ScanWord(Token& token);
  TokenKind ScanBracketedName(Token& token);
  TokenKind ScanString(Token& token);
  TokenKind ScanDate(Token& token);
  TokenKind ScanDecimal(Token& token);
  TokenKind ScanAmpersand(Token& token);
  TokenKind ScanLess(Token& token);
  TokenKind ScanGreater(Token& token);

  std::u16string_view m_Source;
  std::size_t m_Next = 0;
  std::size_t m_LineStart = 0;
  std::int32_t m_Line = 1;
  bool m_LineHasToken = false;
  TokenKind m_Last = TokenKind::EndOfLine;
};

}  // namespace cardwright::vbscript
