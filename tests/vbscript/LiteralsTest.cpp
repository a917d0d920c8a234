// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Literals.h"

#include <gtest/gtest.h>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/vbscript/syntax/Parser.h"

namespace cardwright::vbscript {
namespace {

const Variant& LiteralOf(const SyntaxTree& tree) {
  return *static_cast<const LiteralExpr*>(tree.expression)->value;
}

TEST(ParseExpression, GivesNumbersTheSmallestType) {
  const struct {
    const char16_t* source;
    Variant value;
  } rows[] = {
      {u"0", std::int16_t{0}},
      {u"010", std::int16_t{10}},
      {u"32767", std::int16_t{32767}},
      {u"0000000000032767", std::int16_t{32767}},
      {u"32768", std::int32_t{32768}},
      {u"999999999", std::int32_t{999999999}},
      {u"2147483647", std::int32_t{2147483647}},
      {u"2147483648", 2147483648.0},
      {u"123456789012345678901234567890", 123456789012345678901234567890.0},
      {u"1.", 1.0},
      {u".5", 0.5},
      {u"1.5", 1.5},
      {u"34e5", 34e5},
      {u"1E-2", 0.01},
      {u"1e+2", 100.0},
      {u"1e308", 1e308},
      {u"1e-94938484", 0.0},
      {u"0e99999", 0.0},
      {u"0.0e-999999999999999999999999", 0.0},
      {u"&h0", std::int16_t{0}},
      {u"&hFF", std::int16_t{255}},
      {u"&H7fff", std::int16_t{32767}},
      {u"&HFFFF", std::int16_t{-1}},
      {u"&H8000", std::int16_t{-32768}},
      {u"&HFFFF&", std::int32_t{65535}},
      {u"&h1&", std::int32_t{1}},
      {u"&H10000", std::int32_t{65536}},
      {u"&H7FFFFFFF", std::int32_t{2147483647}},
      {u"&HFFFFFFFF", std::int32_t{-1}},
      {u"&H80000000", std::int32_t{-2147483647 - 1}},
      {u"&h00000000FF", std::int16_t{255}},
      {u"&o17", std::int16_t{15}},
      {u"&17", std::int16_t{15}},
      {u"&O177777", std::int16_t{-1}},
      {u"&o177777&", std::int32_t{65535}},
      {u"&37777777777", std::int32_t{-1}},
  };
  for (const auto& row : rows) {
    const auto tree = ParseExpression(row.source);
    const Variant& value = LiteralOf(*tree);
    const std::string source = Text(row.source).ToUtf8();
    ASSERT_EQ(value.Type(), row.value.Type()) << source;
    EXPECT_EQ(ToDouble(value), ToDouble(row.value)) << source;
  }
}

TEST(ParseExpression, ReadsDoubledQuotesAsOne) {
  const struct {
    const char16_t* source;
    const char* text;
  } rows[] = {
      {u"\"\"", ""},
      {u"\"a\"", "a"},
      {u"\"\"\"\"", "\""},
      {u"\"a\"\"b\"", "a\"b"},
      {u"\"\"\"a\"\"\"", "\"a\""},
      {u"\"'#[\"", "'#["},
  };
  for (const auto& row : rows) EXPECT_EQ(LiteralOf(*ParseExpression(row.source)).String().ToUtf8(), row.text);
}

TEST(ParseExpression, ReadsDatesInTheAmericanOrder) {
  const Locale& before = Locale::Current();
  Locale::SetCurrent(*Locale::Find(u"it-it"));
  const struct {
    const char16_t* source;
    double days;
  } rows[] = {
      {u"#1/2/1900#", 3},      {u"#1/13/1900#", 14}, {u"#13/1/1900#", 14},
      {u"#12:00:00 PM#", 0.5}, {u"#18:00#", 0.75},   {u"#January 2, 1900 6:00 AM#", 3.25},
      {u"#2 Jan 1900#", 3},    {u"#1900-01-02#", 3}, {u"# 1/2/1900 #", 3},
  };
  for (const auto& row : rows) {
    const auto tree = ParseExpression(row.source);
    EXPECT_EQ(LiteralOf(*tree).Type(), VarType::Date);
    EXPECT_EQ(LiteralOf(*tree).Double(), row.days) << Text(row.source).ToUtf8();
  }
  Locale::SetCurrent(before);
}

TEST(ParseExpression, ReadsLiteralsThatAreWords) {
  EXPECT_TRUE(LiteralOf(*ParseExpression(u"True")).Boolean());
  EXPECT_FALSE(LiteralOf(*ParseExpression(u"fALSE")).Boolean());
  EXPECT_TRUE(LiteralOf(*ParseExpression(u"Null")).IsNull());
  EXPECT_TRUE(LiteralOf(*ParseExpression(u"Empty")).IsEmpty());
  const auto tree = ParseExpression(u"Nothing");
  EXPECT_TRUE(LiteralOf(*tree).IsObject());
  EXPECT_EQ(LiteralOf(*tree).ObjectPtr(), nullptr);
}

TEST(Parse, AppliesSignsOfConstants) {
  const struct {
    const char16_t* source;
    VarType type;
    double value;
  } rows[] = {
      {u"Const c = 5", VarType::Integer, 5},
      {u"Const c = -5", VarType::Integer, -5},
      {u"Const c = +(5)", VarType::Integer, 5},
      {u"Const c = - -5", VarType::Integer, 5},
      {u"Const c = -((40000))", VarType::Long, -40000},
      {u"Const c = -&H8000", VarType::Long, 32768},
      {u"Const c = -&H80000000", VarType::Double, 2147483648.0},
      {u"Const c = -.5", VarType::Double, -0.5},
  };
  for (const auto& row : rows) {
    const auto tree = Parse(row.source);
    const Variant& value = *static_cast<const ConstStmt*>(tree->body[0])->constants[0].value;
    ASSERT_EQ(value.Type(), row.type) << Text(row.source).ToUtf8();
    EXPECT_EQ(ToDouble(value), row.value) << Text(row.source).ToUtf8();
  }
}

}  // namespace
}  // namespace cardwright::vbscript
