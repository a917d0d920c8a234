// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cardwright::jscript {

enum class TokenKind : std::uint8_t { Name, Keyword, Number, Text, RegExp, Punctuator };

/// What a bracket or a `function` is for.
enum class Role : std::uint8_t {
  None,
  Group,        ///< ( ) around an expression
  Call,         ///< ( ) of arguments
  Head,         ///< ( ) of if, while, for, with, switch, catch
  Parameters,   ///< ( ) of a function
  Index,        ///< [ ] of a member
  List,         ///< [ ] of an array
  Block,        ///< { } of statements
  Body,         ///< { } of a declared function or a class
  ValueBody,    ///< { } of a function that is a value
  Literal,      ///< { } of an object, or of an expression within a template
  Declaration,  ///< function that declares
  Value,        ///< function that is a value
};

struct Token {
  TokenKind kind = TokenKind::Punctuator;
  Role role = Role::None;
  bool afterLineEnd = false;
  std::uint32_t begin = 0, end = 0;
  std::int32_t partner = -1;  ///< index of the matching bracket; -1 where there is none
};

/// The tokens of a source, with brackets and roles as far as they can be found without a grammar. A source
/// with syntax errors has tokens too: the compiler reports its errors.
std::vector<Token> Tokenize(std::u16string_view source);

/// Whether an operand can end with the token, so that an operator follows and not another operand.
bool EndsOperand(const std::vector<Token>& tokens, std::size_t index, std::u16string_view source) noexcept;

}  // namespace cardwright::jscript
