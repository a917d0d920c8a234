#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cardwright::jscript {

enum class TokenKind : std::uint8_t { Name, Keyword, Number, Text, Pattern, Sign };

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
  TokenKind kind = TokenKind::Sign;
  Role role = Role::None;
  bool afterLineEnd = false;
  std::uint32_t begin = 0, end = 0;
  std::int32_t partner = -1;  ///< a bracket's other one; -1 where it has none
};

/// The tokens of a source, as far as brackets and roles can be told without a grammar. What is no program
/// gives tokens too: the compiler finds the fault.
std::vector<Token> ReadTokens(std::u16string_view source);

/// Whether an operand can end with the token, so that what follows is an operator.
bool EndsOperand(const std::vector<Token>& tokens, std::size_t index, std::u16string_view source) noexcept;

}  // namespace cardwright::jscript
