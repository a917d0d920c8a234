// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Lexer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright::vbscript {
namespace {

std::vector<Token> Tokens(std::u16string_view source) {
  Lexer lexer(source);
  std::vector<Token> tokens;
  do {
    tokens.push_back(lexer.Next());
  } while (tokens.back().kind != TokenKind::EndOfSource);
  return tokens;
}

std::vector<TokenKind> Kinds(std::u16string_view source) {
  std::vector<TokenKind> kinds;
  for (const Token& token : Tokens(source)) kinds.push_back(token.kind);
  kinds.pop_back();
  return kinds;
}

struct KindsRow {
  std::u16string_view source;
  std::vector<TokenKind> kinds;
};

TEST(Lexer, SplitsSourcesIntoTokens) {
  using enum TokenKind;
  const KindsRow rows[] = {
      {u"", {}},
      {u" \t\v\f ", {}},
      {u"a", {Identifier}},
      {u"a1_b", {Identifier}},
      {u"a b", {Identifier, Identifier}},
      {u"[a b]", {Identifier}},
      {u"[]", {Identifier}},
      {u"[if]", {Identifier}},
      {u"if", {If}},
      {u"IF", {If}},
      {u"iF", {If}},
      {u"iff", {Identifier}},
      {u"i", {Identifier}},
      {u"functions", {Identifier}},
      {u"+-*/\\^&", {Plus, Minus, Star, Slash, Backslash, Caret, Ampersand}},
      {u"<><=>==<=>><", {NotEqual, LessOrEqual, GreaterOrEqual, LessOrEqual, GreaterOrEqual, NotEqual}},
      {u"< >", {Less, Greater}},
      {u"<", {Less}},
      {u">", {Greater}},
      {u"=", {Equal}},
      {u"==", {Equal, Equal}},
      {u"(),.:", {LeftParen, RightParen, Comma, Dot, Colon}},
      {u"1", {Number}},
      {u"1.", {Number}},
      {u".1", {Number}},
      {u"1.5.5", {Number, Number}},
      {u"1e5", {Number}},
      {u"1E+5", {Number}},
      {u"1.e-5", {Number}},
      {u"1else", {Number, Else}},
      {u"1x", {Number, Identifier}},
      {u"a.5", {Identifier, Number}},
      {u"a.b", {Identifier, Dot, Identifier}},
      {u"&hFF", {Number}},
      {u"&HfF&", {Number}},
      {u"&o17&", {Number}},
      {u"&17", {Number}},
      {u"&8", {Ampersand, Number}},
      {u"&h", {Ampersand, Identifier}},
      {u"&height", {Ampersand, Identifier}},
      {u"&hFFg", {Ampersand, Identifier}},
      {u"&o8", {Ampersand, Identifier}},
      {u"& hFF", {Ampersand, Identifier}},
      {u"\"\"", {String}},
      {u"\"a\"\"b\"", {String}},
      {u"\"a\" \"b\"", {String, String}},
      {u"\"'\"", {String}},
      {u"#1/2/2003#", {Date}},
      {u"a'b\nc", {Identifier, EndOfLine, Identifier}},
      {u"rem b\nc", {EndOfLine, Identifier}},
      {u"a: REM b", {Identifier, Colon}},
      {u"remark", {Identifier}},
      {u"o.rem", {Identifier, Dot, Rem}},
      {u"a\nb", {Identifier, EndOfLine, Identifier}},
      {u"a\rb", {Identifier, EndOfLine, Identifier}},
      {u"a\r\nb", {Identifier, EndOfLine, Identifier}},
      {u"a\n\rb", {Identifier, EndOfLine, EndOfLine, Identifier}},
      {u"a _\nb", {Identifier, Identifier}},
      {u"a _ \t\r\nb", {Identifier, Identifier}},
      {u"(_\n)", {LeftParen, RightParen}},
      {u"a _\n _\n b", {Identifier, Identifier}},
      {u"a _\n' b\nc", {Identifier, EndOfLine, Identifier}},
      {u"' a _\nb", {EndOfLine, Identifier}},
  };
  for (const KindsRow& row : rows) EXPECT_EQ(Kinds(row.source), row.kinds) << Text(row.source).ToUtf8();
}

TEST(Lexer, RecognisesKeywordsInAnyCase) {
  using enum TokenKind;
  const std::u16string_view words[] = {
      u"And",     u"As",     u"ByRef",    u"ByVal",   u"Call",     u"Case",    u"Class", u"Const",
      u"Default", u"Dim",    u"Do",       u"Each",    u"Else",     u"ElseIf",  u"Empty", u"End",
      u"Eqv",     u"Erase",  u"Error",    u"Exit",    u"Explicit", u"False",   u"For",   u"Function",
      u"Get",     u"GoTo",   u"If",       u"Imp",     u"In",       u"Is",      u"Let",   u"Loop",
      u"Me",      u"Mod",    u"New",      u"Next",    u"Not",      u"Nothing", u"Null",  u"On",
      u"Option",  u"Or",     u"Preserve", u"Private", u"Property", u"Public",  u"ReDim", u"Rem",
      u"Resume",  u"Select", u"Set",      u"Step",    u"Stop",     u"Sub",     u"Then",  u"To",
      u"True",    u"Until",  u"Wend",     u"While",   u"With",     u"Xor",
  };
  auto kind = static_cast<std::size_t>(And);
  for (const std::u16string_view word : words) {
    const auto wanted = static_cast<TokenKind>(kind++);
    const std::u16string behindDot = u"." + std::u16string(word);
    EXPECT_EQ(Tokens(behindDot)[1].kind, wanted) << Text(word).ToUtf8();
    EXPECT_EQ(Tokens(u"." + std::u16string(ToUpper(word).View()))[1].kind, wanted) << Text(word).ToUtf8();
    EXPECT_EQ(Tokens(behindDot + u"x")[1].kind, Identifier) << Text(word).ToUtf8();
  }
  EXPECT_EQ(kind, kTokenKinds);
}

TEST(Lexer, AcceptsOnlyAsciiLettersInKeywords) {
  using enum TokenKind;
  EXPECT_EQ(Kinds(u"\u017Fet"), std::vector<TokenKind>{Identifier});
}

TEST(Lexer, KeepsSpellingsWithoutBrackets) {
  const auto tokens = Tokens(u"Abc [D e] \"x\"\"y\" &hFF& 1.50 #1/1/2000#");
  const std::u16string_view texts[] = {u"Abc", u"D e", u"\"x\"\"y\"", u"&hFF&", u"1.50", u"#1/1/2000#"};
  for (std::size_t i = 0; i < std::size(texts); ++i) EXPECT_EQ(tokens[i].text, texts[i]);
}

TEST(Lexer, CountsLinesFromOneAndColumnsFromZero) {
  const auto tokens = Tokens(u"a b\r\n  c\rd\n\te _\n f 'x\n");
  const Position places[] = {{1, 0}, {1, 2}, {1, 3}, {2, 2}, {2, 3}, {3, 0},
                             {3, 1}, {4, 1}, {5, 1}, {5, 5}, {6, 0}};
  ASSERT_EQ(tokens.size(), std::size(places));
  for (std::size_t i = 0; i < std::size(places); ++i) EXPECT_EQ(tokens[i].position, places[i]) << i;
}

TEST(Lexer, FlagsTokensAfterABlank) {
  const auto tokens = Tokens(u"a.b .c _\n.d");
  const bool blanks[] = {false, false, false, true, false, true, false};
  for (std::size_t i = 0; i < std::size(blanks); ++i) EXPECT_EQ(tokens[i].afterBlank, blanks[i]) << i;
}

TEST(Lexer, FlagsTheFirstTokenOfALine) {
  const auto tokens = Tokens(u": a : b\nc _\nd");
  const bool firsts[] = {true, true, false, false, false, true, false};
  for (std::size_t i = 0; i < std::size(firsts); ++i) EXPECT_EQ(tokens[i].firstOnLine, firsts[i]) << i;
}

TEST(Lexer, SplitsANumberAfterAnOperandAtItsAmpersand) {
  using enum TokenKind;
  Lexer lexer(u"a&17 b");
  lexer.Next();
  const Token number = lexer.Next();
  ASSERT_EQ(number.kind, Number);
  const Token ampersand = lexer.SplitAmpersand(number);
  EXPECT_EQ(ampersand.kind, Ampersand);
  EXPECT_EQ(ampersand.position, (Position{1, 1}));
  const Token rest = lexer.Next();
  EXPECT_EQ(rest.text, u"17");
  EXPECT_EQ(rest.position, (Position{1, 2}));
  EXPECT_EQ(lexer.Next().text, u"b");
}

TEST(Lexer, ContinuesFromACopy) {
  Lexer lexer(u"a b c");
  lexer.Next();
  Lexer copy = lexer;
  copy.Next();
  EXPECT_EQ(copy.Next().text, u"c");
  EXPECT_EQ(lexer.Next().text, u"b");
}

struct ErrorRow {
  std::u16string source;
  SyntaxErrorNumber number;
  Position where;
};

TEST(Lexer, FailsForInvalidTokens) {
  using enum TokenKind;
  const std::u16string longName(256, u'n');
  const ErrorRow rows[] = {
      {u"a ?", SyntaxErrorNumber::InvalidCharacter, {1, 2}},
      {u"!", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"@", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"$", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"%", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"{", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"}", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"]", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u";", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"|", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"~", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"`", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"_a", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"a _ b", SyntaxErrorNumber::InvalidCharacter, {1, 2}},
      {u"a _", SyntaxErrorNumber::InvalidCharacter, {1, 2}},
      {u"a\u00A0b", SyntaxErrorNumber::InvalidCharacter, {1, 1}},
      {u"\u201Ca\u201D", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"\uFEFFa", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"\uFFFF", SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {std::u16string(1, u'\xD800'), SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {std::u16string(1, u'\0'), SyntaxErrorNumber::InvalidCharacter, {1, 0}},
      {u"a\n\"b", SyntaxErrorNumber::UnterminatedString, {2, 0}},
      {u"\"b\n\"", SyntaxErrorNumber::UnterminatedString, {1, 0}},
      {u"\"b\"\"", SyntaxErrorNumber::UnterminatedString, {1, 0}},
      {u"[a", SyntaxErrorNumber::ExpectedRightBracket, {1, 0}},
      {u"[a\n]", SyntaxErrorNumber::ExpectedRightBracket, {1, 0}},
      {u"#1/1/2000", SyntaxErrorNumber::SyntaxError, {1, 0}},
      {u"1e", SyntaxErrorNumber::InvalidNumber, {1, 0}},
      {u"1e+", SyntaxErrorNumber::InvalidNumber, {1, 0}},
      {u"1e-x", SyntaxErrorNumber::InvalidNumber, {1, 0}},
      {longName, SyntaxErrorNumber::IdentifierTooLong, {1, 0}},
      {u"[" + longName + u"]", SyntaxErrorNumber::IdentifierTooLong, {1, 0}},
  };
  for (const ErrorRow& row : rows) {
    try {
      Tokens(row.source);
      ADD_FAILURE() << "no error: " << Text(row.source).ToUtf8();
    } catch (const SyntaxError& error) {
      EXPECT_EQ(error.Number(), static_cast<int>(row.number)) << Text(row.source).ToUtf8();
      EXPECT_EQ(error.Where(), row.where) << Text(row.source).ToUtf8();
    }
  }
}

TEST(Lexer, AcceptsNamesOf255Characters) {
  const std::u16string name(255, u'n');
  EXPECT_EQ(Tokens(name)[0].text, name);
  EXPECT_EQ(Tokens(u"[" + name + u"]")[0].text, name);
}

TEST(Lexer, KeepsNulCharactersInTextsAndComments) {
  const std::u16string source(u"\"a\0b\" 'c\0d", 10);
  const auto tokens = Tokens(source);
  ASSERT_EQ(tokens.size(), 2u);
  EXPECT_EQ(tokens[0].text, std::u16string_view(u"\"a\0b\"", 5));
}

}  // namespace
}  // namespace cardwright::vbscript
