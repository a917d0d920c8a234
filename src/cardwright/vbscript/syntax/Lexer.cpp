// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Lexer.h"

#include "cardwright/vbscript/syntax/Characters.h"
#include "cardwright/vbscript/syntax/Keywords.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kLongestName = 255;

}  // namespace

Token Lexer::Next() {
  Token token;
  token.afterBlank = SkipBlanks();
  token.position = Here();
  token.firstOnLine = !m_LineHasToken;
  m_Last = token.kind = Scan(token);
  if (!IsSeparator(token.kind)) m_LineHasToken = true;
  return token;
}

Token Lexer::SplitAmpersand(const Token& token) {
  m_Next -= token.text.size() - 1;
  m_Last = TokenKind::Ampersand;
  Token ampersand = token;
  ampersand.kind = TokenKind::Ampersand;
  ampersand.text = token.text.substr(0, 1);
  return ampersand;
}

/// Skips white space, comments and line continuations, but not the end of a line. Returns whether there was
/// any.
bool Lexer::SkipBlanks() {
  const std::size_t start = m_Next;
  for (;;) {
    const char16_t c = At(m_Next);
    if (IsBlank(c)) {
      ++m_Next;
    } else if (c == u'\'') {
      SkipComment();
    } else if (c != u'_' || !SkipContinuation()) {
      return m_Next != start;
    }
  }
}

/// `_` followed by nothing but blanks continues the line.
bool Lexer::SkipContinuation() {
  std::size_t end = m_Next + 1;
  while (IsBlank(At(end))) ++end;
  if (!IsLineEnd(At(end))) return false;
  m_Next = m_LineStart = PastLineEnd(end);
  ++m_Line;
  return true;
}

void Lexer::SkipComment() {
  while (m_Next < m_Source.size() && !IsLineEnd(m_Source[m_Next])) ++m_Next;
}

std::size_t Lexer::PastLineEnd(std::size_t index) const {
  return index + (m_Source[index] == u'\r' && At(index + 1) == u'\n' ? 2 : 1);
}

TokenKind Lexer::Scan(Token& token) {
  if (m_Next >= m_Source.size()) return TokenKind::EndOfSource;
  const char16_t c = m_Source[m_Next];
  if (IsLetter(c)) return ScanWord(token);
  if (IsDigit(c)) return ScanDecimal(token);
  switch (c) {
    case u'\r':
    case u'\n': return ScanLineEnd(token);
    case u':': return Emit(token, TokenKind::Colon, 1);
    case u'"': return ScanString(token);
    case u'#': return ScanDate(token);
    case u'[': return ScanBracketedName(token);
    case u'&': return ScanAmpersand(token);
    case u'<': return ScanLess(token);
    case u'>': return ScanGreater(token);
    case u'=':
      if (At(m_Next + 1) == u'<') return Emit(token, TokenKind::LessOrEqual, 2);
      if (At(m_Next + 1) == u'>') return Emit(token, TokenKind::GreaterOrEqual, 2);
      return Emit(token, TokenKind::Equal, 1);
    case u'.': return IsDigit(At(m_Next + 1)) ? ScanDecimal(token) : Emit(token, TokenKind::Dot, 1);
    case u',': return Emit(token, TokenKind::Comma, 1);
    case u'(': return Emit(token, TokenKind::LeftParen, 1);
    case u')': return Emit(token, TokenKind::RightParen, 1);
    case u'+': return Emit(token, TokenKind::Plus, 1);
    case u'-': return Emit(token, TokenKind::Minus, 1);
    case u'*': return Emit(token, TokenKind::Star, 1);
    case u'/': return Emit(token, TokenKind::Slash, 1);
    case u'\\': return Emit(token, TokenKind::Backslash, 1);
    case u'^': return Emit(token, TokenKind::Caret, 1);
    default: Fail(SyntaxErrorNumber::InvalidCharacter);
  }
}

TokenKind Lexer::Emit(Token& token, TokenKind kind, std::size_t length) {
  token.text = m_Source.substr(m_Next, length);
  m_Next += length;
  return kind;
}

TokenKind Lexer::ScanLineEnd(Token& token) {
  Emit(token, TokenKind::EndOfLine, PastLineEnd(m_Next) - m_Next);
  m_LineStart = m_Next;
  ++m_Line;
  m_LineHasToken = false;
  return TokenKind::EndOfLine;
}

TokenKind Lexer::ScanWord(Token& token) {
  std::size_t end = m_Next + 1;
  while (end < m_Source.size() && IsNamePart(m_Source[end])) ++end;
  if (end - m_Next > kLongestName) Fail(SyntaxErrorNumber::IdentifierTooLong);
  const TokenKind kind = KeywordOf(m_Source.substr(m_Next, end - m_Next));
  if (kind == TokenKind::Rem && m_Last != TokenKind::Dot) {
    SkipComment();
    token.position = Here();
    return Scan(token);
  }
  return Emit(token, kind, end - m_Next);
}

TokenKind Lexer::ScanBracketedName(Token& token) {
  std::size_t end = m_Next + 1;
  while (end < m_Source.size() && m_Source[end] != u']' && !IsLineEnd(m_Source[end])) ++end;
  if (At(end) != u']') Fail(SyntaxErrorNumber::ExpectedRightBracket);
  if (end - m_Next - 1 > kLongestName) Fail(SyntaxErrorNumber::IdentifierTooLong);
  token.text = m_Source.substr(m_Next + 1, end - m_Next - 1);
  m_Next = end + 1;
  return TokenKind::Identifier;
}

TokenKind Lexer::ScanString(Token& token) {
  std::size_t end = m_Next + 1;
  for (;; ++end) {
    if (end >= m_Source.size() || IsLineEnd(m_Source[end])) Fail(SyntaxErrorNumber::UnterminatedString);
    if (m_Source[end] != u'"') continue;
    if (At(end + 1) != u'"') break;
    ++end;
  }
  return Emit(token, TokenKind::String, end + 1 - m_Next);
}

TokenKind Lexer::ScanDate(Token& token) {
  std::size_t end = m_Next + 1;
  while (end < m_Source.size() && m_Source[end] != u'#' && !IsLineEnd(m_Source[end])) ++end;
  if (At(end) != u'#') Fail(SyntaxErrorNumber::SyntaxError);
  return Emit(token, TokenKind::Date, end + 1 - m_Next);
}

TokenKind Lexer::ScanDecimal(Token& token) {
  std::size_t end = m_Next;
  while (IsDigit(At(end))) ++end;
  if (At(end) == u'.') {
    ++end;
    while (IsDigit(At(end))) ++end;
  }
  if (At(end) == u'e' || At(end) == u'E') {
    std::size_t exponent = end + 1;
    const bool isSigned = At(exponent) == u'+' || At(exponent) == u'-';
    if (isSigned) ++exponent;
    // A word may follow a number immediately: `1else` is two tokens.
    if (IsDigit(At(exponent))) {
      end = exponent;
      while (IsDigit(At(end))) ++end;
    } else if (isSigned || !IsNamePart(At(exponent))) {
      Fail(SyntaxErrorNumber::InvalidNumber);
    }
  }
  return Emit(token, TokenKind::Number, end - m_Next);
}

/// `&hFF`, `&o17` and `&17`, with or without a final `&`; the operator where there is no such number.
TokenKind Lexer::ScanAmpersand(Token& token) {
  const char16_t base = At(m_Next + 1);
  const bool isHex = base == u'h' || base == u'H';
  const bool isOctal = base == u'o' || base == u'O';
  const std::size_t digits = m_Next + (isHex || isOctal ? 2 : 1);
  std::size_t end = digits;
  while (isHex ? IsHexDigit(At(end)) : IsOctalDigit(At(end))) ++end;
  // `a&height` joins two variables, although `&he` begins like a number.
  if (end == digits || ((isHex || isOctal) && IsNamePart(At(end))))
    return Emit(token, TokenKind::Ampersand, 1);
  if (At(end) == u'&') ++end;
  return Emit(token, TokenKind::Number, end - m_Next);
}

TokenKind Lexer::ScanLess(Token& token) {
  const char16_t next = At(m_Next + 1);
  if (next == u'=') return Emit(token, TokenKind::LessOrEqual, 2);
  if (next == u'>') return Emit(token, TokenKind::NotEqual, 2);
  return Emit(token, TokenKind::Less, 1);
}

TokenKind Lexer::ScanGreater(Token& token) {
  const char16_t next = At(m_Next + 1);
  if (next == u'=') return Emit(token, TokenKind::GreaterOrEqual, 2);
  if (next == u'<') return Emit(token, TokenKind::NotEqual, 2);
  return Emit(token, TokenKind::Greater, 1);
}

}  // namespace cardwright::vbscript
