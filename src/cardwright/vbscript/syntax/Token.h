// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "cardwright/vbscript/syntax/Position.h"

namespace cardwright::vbscript {

/// Kind of a token. Each keyword is a kind of its own.
enum class TokenKind : std::uint8_t {
  EndOfSource,
  EndOfLine,
  Colon,
  Identifier,  ///< also a name in brackets, whatever its characters
  Number,
  String,
  Date,
  Comma,
  Dot,
  LeftParen,
  RightParen,
  Plus,
  Minus,
  Star,
  Slash,
  Backslash,
  Caret,
  Ampersand,
  Equal,
  NotEqual,
  Less,
  LessOrEqual,
  Greater,
  GreaterOrEqual,
  // From here on keywords, in alphabetical order.
  And,
  As,
  ByRef,
  ByVal,
  Call,
  Case,
  Class,
  Const,
  Default,
  Dim,
  Do,
  Each,
  Else,
  ElseIf,
  Empty,
  End,
  Eqv,
  Erase,
  Error,
  Exit,
  Explicit,
  False,
  For,
  Function,
  Get,
  GoTo,
  If,
  Imp,
  In,
  Is,
  Let,
  Loop,
  Me,
  Mod,
  New,
  Next,
  Not,
  Nothing,
  Null,
  On,
  Option,
  Or,
  Preserve,
  Private,
  Property,
  Public,
  ReDim,
  Rem,
  Resume,
  Select,
  Set,
  Step,
  Stop,
  Sub,
  Then,
  To,
  True,
  Until,
  Wend,
  While,
  With,
  Xor,
};
inline constexpr std::size_t kTokenKinds = static_cast<std::size_t>(TokenKind::Xor) + 1;

constexpr bool IsKeyword(TokenKind kind) { return kind >= TokenKind::And; }

/// Keywords that have a meaning in one context only and are plain names elsewhere.
constexpr bool IsContextualKeyword(TokenKind kind) {
  switch (kind) {
    case TokenKind::Default:
    case TokenKind::Erase:
    case TokenKind::Error:
    case TokenKind::Explicit:
    case TokenKind::Property:
    case TokenKind::Step: return true;
    default: return false;
  }
}

/// Whether the kind may be used as a name.
constexpr bool IsName(TokenKind kind) { return kind == TokenKind::Identifier || IsContextualKeyword(kind); }

/// Whether the kind ends a statement.
constexpr bool IsSeparator(TokenKind kind) { return kind <= TokenKind::Colon; }

struct Token {
  TokenKind kind = TokenKind::EndOfSource;
  bool afterBlank = false;   ///< after white space or a line continuation
  bool firstOnLine = false;  ///< at the start of its line, or after nothing but colons
  Position position;
  std::u16string_view text;  ///< its characters, of a name without brackets
};

}  // namespace cardwright::vbscript
