// SPDX-License-Identifier: MIT
#include <cmath>

#include "vbscript/OperatorSamples.h"

namespace cardwright::vbscript {
namespace {

char SignOf(Ordering order) {
  switch (order) {
    case Ordering::Less: return '<';
    case Ordering::Equal: return '=';
    case Ordering::Greater: return '>';
    default: return '?';
  }
}

struct ComparisonCase {
  Variant left;
  char sign;
  Variant right;
};

void ExpectOrder(std::initializer_list<ComparisonCase> cases, LiteralSide literals = LiteralSide::None) {
  int number = 0;
  for (const ComparisonCase& c : cases) {
    EXPECT_EQ(SignOf(Compare(c.left, c.right, literals)), c.sign) << "case " << number;
    if (literals == LiteralSide::None) {
      const char reversed = c.sign == '<' ? '>' : c.sign == '>' ? '<' : c.sign;
      EXPECT_EQ(SignOf(Compare(c.right, c.left)), reversed) << "case " << number << " reversed";
    }
    ++number;
  }
}

TEST(Compare, TakesNumbersOfAllTypesByTheirValue) {
  ExpectOrder({{Short{1}, '=', 1},
               {Byte{2}, '>', Short{1}},
               {Short{-1}, '=', true},
               {Short{0}, '=', false},
               {true, '<', false},
               {Short{1}, '<', 1.5},
               {Date{1}, '=', Short{1}},
               {Date{1}, '<', Date{1.5}},
               {Variant(), '=', Short{0}},
               {Variant(), '=', false},
               {Variant(), '<', 0.1},
               {Variant(), '=', Variant()},
               {Variant(), '=', Date{0}},
               {2147483647, '<', 2147483648.0},
               {-0.0, '=', 0.0}});
}

TEST(Compare, RoundsADoubleToASingle) {
  ExpectOrder({{0.1F, '=', 0.1},
               {0.1F, '<', 0.2},
               {0.1F, '=', Decimal{.low = 1, .scale = 1}},
               {1e30F, '<', 1e300},
               {16777216.0F, '<', 16777217}});
}

TEST(Compare, RoundsANumberToCurrency) {
  ExpectOrder({{Currency{1000}, '=', 0.1},
               {Currency{1000}, '=', 0.1F},
               {Currency{10000}, '=', 1.00001},
               {Currency{10000}, '<', 1.00006},
               {Currency{10000}, '=', Short{1}},
               {Currency{10000}, '<', 1e300},
               {Currency{10000}, '>', -1e300},
               {Currency{std::numeric_limits<std::int64_t>::max()}, '>',
                Currency{std::numeric_limits<std::int64_t>::max() - 1}},
               {Currency{-1}, '<', Variant()}});
}

TEST(Compare, IsExactForDecimals) {
  ExpectOrder({{Decimal{.low = 10, .scale = 1}, '=', Short{1}},
               {Decimal{.low = 1, .scale = 28}, '>', Variant()},
               {Decimal{.low = 1, .scale = 28, .negative = true}, '<', Variant()},
               {Decimal{.negative = true}, '=', Decimal{.scale = 5}},
               {Decimal{.low = 5, .negative = true}, '<', Decimal{.low = 4, .negative = true}},
               {Decimal{.low = 1}, '<', 1e300},
               {Decimal{.low = 1, .scale = 1}, '=', 0.1},
               {Decimal{.low = 15, .scale = 1}, '=', Currency{15000}}});
}

TEST(Compare, TakesTextsByTheCodesOfTheirCharacters) {
  ExpectOrder({{u"a", '=', u"a"},
               {u"A", '<', u"a"},
               {u"a", '<', u"aa"},
               {u"", '<', u"a"},
               {u"10", '<', u"9"},
               {u"Z", '<', u"a"},
               {u"\u00E9", '>', u"z"},
               {std::u16string_view(u"a\0a", 3), '<', std::u16string_view(u"a\0b", 3)},
               {Variant(), '=', u""},
               {Variant(), '<', u"a"}});
}

TEST(Compare, PutsAVariableNumberBelowAVariableText) {
  for (const Variant& number : {Variant(Short{10}), Variant(true), Variant(1e300), Variant(Date{1}),
                                Variant(Currency{1}), Variant(Decimal{.low = 1})}) {
    ExpectOrder({{number, '<', u"10"}, {number, '<', u""}, {number, '<', u"-5"}});
  }
}

TEST(Compare, MakesATextANumberForALiteralNumber) {
  ExpectOrder({{u"10", '=', Short{10}},
               {u" 1e1 ", '=', Short{10}},
               {u"9", '<', Short{10}},
               {u"&HA", '=', 10.0},
               {u"1/1/2000", '=', Date{36526}}},
              LiteralSide::Right);
  ExpectOrder({{Short{10}, '=', u"10"}, {Short{10}, '>', u"9"}}, LiteralSide::Left);
  for (const char16_t* text : {u"ten", u""}) {
    EXPECT_EQ(ErrorOf([&] { Compare(text, Short{10}, LiteralSide::Right); }), 13);
    EXPECT_EQ(ErrorOf([&] { Compare(Short{10}, text, LiteralSide::Left); }), 13);
  }
}

TEST(Compare, MakesANumberATextForALiteralText) {
  ExpectOrder({{Short{10}, '=', u"10"},
               {Short{10}, '<', u"9"},
               {Short{10}, '>', u" 10"},
               {true, '=', u"True"},
               {1.5, '=', u"1.5"},
               {Date{36526}, '=', u"1/1/2000"},
               {Short{10}, '<', u"ten"}},
              LiteralSide::Right);
  ExpectOrder({{u"10", '=', Short{10}}, {u"9", '>', Short{10}}}, LiteralSide::Left);
}

TEST(Compare, OfTwoLiteralsGoesByTheNumber) {
  ExpectOrder({{Short{1}, '=', u"1"}, {u"1.0", '=', Short{1}}, {u"9", '<', Short{10}}, {true, '=', u"True"}},
              LiteralSide::Both);
  EXPECT_EQ(ErrorOf([] { Compare(Short{1}, u"x", LiteralSide::Both); }), 13);
}

TEST(Compare, DoesNotConvertATextForATruthValue) {
  ExpectOrder({{u"True", '>', true}, {u"-1", '>', true}}, LiteralSide::Right);
}

TEST(Compare, KnowsNothingOfNull) {
  for (const Variant& other : OneOfEachType()) ExpectOrder({{Variant::Null(), '?', other}});
  ExpectOrder({{Variant::Null(), '?', Variant::Null()}});
}

TEST(IsSameObject, ComparesReferences) {
  const Variant a = ObjectOf(std::int16_t{1});
  const Variant b = ObjectOf(std::int16_t{1});
  const Variant again = a;
  EXPECT_TRUE(IsSameObject(a, again));
  EXPECT_FALSE(IsSameObject(a, b));
  EXPECT_FALSE(IsSameObject(a, Variant::Nothing()));
  EXPECT_TRUE(IsSameObject(Variant::Nothing(), Variant::Nothing()));
  for (const Variant& none : {Variant(), Variant::Null(), Variant(u"a"), Variant(Short{1}), SomeArray()}) {
    EXPECT_EQ(ErrorOf([&] { IsSameObject(none, a); }), 424);
    EXPECT_EQ(ErrorOf([&] { IsSameObject(a, none); }), 424);
  }
}

TEST(Apply, DoesWhatTheTreeNames) {
  using enum BinaryOperator;
  const std::pair<BinaryOperator, const char*> cases[] = {
      {Power, "d 49"},     {BinaryOperator::Multiply, "i 14"},
      {Divide, "d 3.5"},   {BinaryOperator::IntegerDivide, "i 3"},
      {Modulo, "i 1"},     {BinaryOperator::Add, "i 9"},
      {Subtract, "i 5"},   {BinaryOperator::Concatenate, "& 72"},
      {Equal, "b False"},  {BinaryOperator::NotEqual, "b True"},
      {Less, "b False"},   {BinaryOperator::LessOrEqual, "b False"},
      {Greater, "b True"}, {BinaryOperator::GreaterOrEqual, "b True"},
      {Is, "error 424"},   {BinaryOperator::And, "i 2"},
      {Or, "i 7"},         {BinaryOperator::Xor, "i 5"},
      {Eqv, "i -6"},       {BinaryOperator::Imp, "i -6"}};
  for (const auto& [op, outcome] : cases) {
    EXPECT_EQ(Outcome([&] { return Apply(op, Short{7}, Short{2}); }), outcome) << static_cast<int>(op);
  }
  EXPECT_EQ(Outcome([] { return Apply(LessOrEqual, Short{2}, Short{2}); }), "b True");
  EXPECT_EQ(Outcome([] { return Apply(GreaterOrEqual, Short{2}, Short{2}); }), "b True");
  EXPECT_EQ(Outcome([] { return Apply(Equal, u"1", Short{1}, LiteralSide::Right); }), "b True");
  for (const BinaryOperator op : {Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual}) {
    EXPECT_EQ(Outcome([&] { return Apply(op, Variant::Null(), Short{1}); }), "n");
  }
}

}  // namespace
}  // namespace cardwright::vbscript
