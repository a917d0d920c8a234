// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "cardwright/vbscript/syntax/Parser.h"
#include "cardwright/vbscript/syntax/Printer.h"

namespace cardwright::vbscript {
namespace {

std::u16string Times(std::u16string_view part, int times) {
  std::u16string text;
  for (int i = 0; i < times; ++i) text += part;
  return text;
}

TEST(ParserLimits, FailsForNestingBeyondTheLimit) {
  const std::u16string_view parts[] = {
      u"If a Then\n", u"If a Then ", u"Do\n", u"While a\n", u"With a\n", u"Select Case a\nCase b\n",
  };
  for (const std::u16string_view part : parts) {
    try {
      Parse(Times(part, 200000));
      ADD_FAILURE() << Text(part).ToUtf8();
    } catch (const SyntaxError& error) {
      EXPECT_EQ(error.Number(), 1001) << Text(part).ToUtf8();
    }
  }
  const std::u16string_view operands[] = {u"(",     u"-",      u"Not ", u"f(",
                                          u"f(1, ", u"a.b(-(", u"(a)(", u"1 ^ -("};
  for (const std::u16string_view operand : operands) {
    for (const std::u16string_view start : {u"x = ", u"f ", u"Call f(", u"If ", u"ReDim a("}) {
      try {
        Parse(std::u16string(start) + Times(operand, 200000));
        ADD_FAILURE() << Text(operand).ToUtf8();
      } catch (const SyntaxError& error) {
        EXPECT_EQ(error.Number(), 1001) << Text(operand).ToUtf8();
      }
    }
  }
}

TEST(ParserLimits, FailsForChainsThatMakeTheTreeTooDeep) {
  for (const std::u16string_view link : {u".b", u"(1)", u".b(1).c"}) {
    for (const std::u16string_view start : {u"x = a", u"a", u"Set a"}) {
      try {
        Parse(std::u16string(start) + Times(link, 200000));
        ADD_FAILURE() << Text(link).ToUtf8();
      } catch (const SyntaxError& error) {
        EXPECT_EQ(error.Number(), 1001) << Text(link).ToUtf8();
      }
    }
  }
  // Chains in the arguments of chains add up.
  std::u16string source = u"x = ";
  for (int i = 0; i < 20; ++i) source += u"f(";
  source += u"1";
  for (int i = 0; i < 20; ++i) source += u")" + Times(u".m", 20);
  EXPECT_THROW(Parse(source), SyntaxError);
}

TEST(ParserLimits, AcceptsNestingUpToTheLimit) {
  const std::u16string opened = Times(u"(", 200) + u"1" + Times(u")", 200);
  const auto parenthesised = Parse(u"x = " + opened);
  EXPECT_EQ(Print(*parenthesised), Text(u"x = " + opened + u"\n"));
  const auto blocks = Parse(Times(u"If a Then\n", 200) + Times(u"End If\n", 200));
  EXPECT_FALSE(Print(*blocks).IsEmpty());
  EXPECT_NO_THROW(Parse(u"x = a" + Times(u".b", 200)));
  EXPECT_NO_THROW(Parse(Times(u"If a Then ", 200) + u"x"));
}

TEST(ParserLimits, AcceptsLongFlatSources) {
  const auto sum = Parse(u"x = 1" + Times(u" + 1", 1000000));
  EXPECT_EQ(Print(*sum).Size(), 6u + 4u * 1000000u);
  EXPECT_NO_THROW(Parse(u"If a Then\n" + Times(u"ElseIf b Then\n", 100000) + u"End If"));
  EXPECT_NO_THROW(Parse(u"Select Case a\n" + Times(u"Case 1\n", 100000) + u"End Select"));
  EXPECT_NO_THROW(Parse(u"f 1" + Times(u", 1", 100000)));
  EXPECT_NO_THROW(Parse(u"x = 1" + Times(u" _\n", 100000)));
  EXPECT_NO_THROW(Parse(Times(u":\n", 100000)));
  EXPECT_NO_THROW(Parse(u"x = 0." + Times(u"1", 100000)));
  const auto text = Parse(u"x = \"" + Times(u"0123456789", 1000000) + u"\"");
  const auto& value =
      *static_cast<const LiteralExpr*>(static_cast<const AssignStmt*>(text->body[0])->value)->value;
  EXPECT_EQ(value.StringView().size(), 10000000u);
}

TEST(ParserLimits, IsSafeForAnyCharacters) {
  // All kinds of characters, after beginnings that put the lexer into each of its states.
  const std::u16string_view starts[] = {u"",    u"x = ", u"a",  u"1", u"1.", u"1e", u"&",
                                        u"&h",  u"&hF",  u"\"", u"#", u"[",  u"'",  u"_",
                                        u"a _", u"x.",   u"<",  u">", u"=",  u"Rem"};
  for (const std::u16string_view start : starts) {
    for (unsigned unit = 0; unit <= 0xFFFF; unit += unit < 0x300 ? 1 : 251) {
      try {
        const auto tree = Parse(std::u16string(start) + static_cast<char16_t>(unit));
        Parse(Print(*tree));
      } catch (const SyntaxError& error) {
        ASSERT_EQ(error.Where().line, 1);
      }
    }
  }
}

}  // namespace
}  // namespace cardwright::vbscript
