// SPDX-License-Identifier: MIT
#include "vbscript/OperatorSamples.h"

namespace cardwright::vbscript {
namespace {

// F, N, T for False, Null, True: the results of the nine pairs, left operand first.
std::string TruthTable(Operation operation) {
  const Variant values[] = {false, Variant::Null(), true};
  std::string table;
  for (const Variant& left : values) {
    for (const Variant& right : values) {
      const Variant result = operation(left, right);
      table += result.IsNull() ? 'N' : result.Boolean() ? 'T' : 'F';
    }
    table += ' ';
  }
  return table;
}

TEST(Logic, HasThreeValues) {
  EXPECT_EQ(TruthTable(And), "FFF FNN FNT ");
  EXPECT_EQ(TruthTable(Or), "FNT NNT TTT ");
  EXPECT_EQ(TruthTable(Xor), "FNT NNN TNF ");
  EXPECT_EQ(TruthTable(Eqv), "TNF NNN FNT ");
  EXPECT_EQ(TruthTable(Imp), "TTT NNT FNT ");
}

struct LogicCase {
  Operation operation;
  Variant left;
  Variant right;
  const char* outcome;
};

TEST(Logic, WorksOnBits) {
  const LogicCase cases[] = {{And, Short{6}, Short{3}, "i 2"},  {Or, Short{6}, Short{3}, "i 7"},
                             {Xor, Short{6}, Short{3}, "i 5"},  {Eqv, Short{6}, Short{3}, "i -6"},
                             {Imp, Short{6}, Short{3}, "i -5"}, {Eqv, Byte{6}, Byte{3}, "y 250"},
                             {Imp, Byte{6}, Byte{3}, "y 251"},  {And, 70000, true, "l 70000"},
                             {And, Byte{5}, true, "i 5"},       {Or, Variant(), true, "i -1"},
                             {And, 6.5, Short{7}, "l 6"},       {And, 7.5, Short{15}, "l 8"},
                             {And, 3e9, Short{1}, "error 6"},   {And, u"6", Short{3}, "l 2"},
                             {And, u"6", u"3", "l 2"},          {And, u"True", true, "b True"},
                             {And, u"false", true, "b False"},  {And, u"maybe", true, "error 13"},
                             {And, u"", true, "error 13"},      {Xor, Currency{20000}, Short{3}, "l 1"},
                             {Or, Date{2}, Short{1}, "l 3"}};
  for (const LogicCase& c : cases) {
    EXPECT_EQ(Outcome([&] { return c.operation(c.left, c.right); }), c.outcome) << c.outcome;
  }
}

TEST(Logic, KnowsTheResultWhereTheSideThatIsNotNullDecidesAlone) {
  const Variant null = Variant::Null();
  const LogicCase cases[] = {
      {And, null, Short{0}, "i 0"},  {And, Byte{0}, null, "y 0"},   {And, null, Short{5}, "n"},
      {And, Variant(), null, "i 0"}, {Or, null, Short{5}, "i 5"},   {Or, 70000, null, "l 70000"},
      {Or, null, Short{0}, "n"},     {Or, Variant(), null, "n"},    {Imp, Short{5}, null, "i -6"},
      {Imp, Short{-1}, null, "n"},   {Imp, null, Short{5}, "i 5"},  {Imp, null, Short{0}, "n"},
      {Imp, Byte{255}, null, "n"},   {Imp, Byte{1}, null, "y 254"}, {Imp, 0, null, "l -1"}};
  for (const LogicCase& c : cases) {
    EXPECT_EQ(Outcome([&] { return c.operation(c.left, c.right); }), c.outcome) << c.outcome;
  }
}

TEST(Not, TurnsEveryBit) {
  EXPECT_EQ(Outcome([] { return Not(true); }), "b False");
  EXPECT_EQ(Outcome([] { return Not(Variant()); }), "i -1");
  EXPECT_EQ(Outcome([] { return Not(Byte{1}); }), "y 254");
  EXPECT_EQ(Outcome([] { return Not(Short{5}); }), "i -6");
  EXPECT_EQ(Outcome([] { return Not(70000); }), "l -70001");
  EXPECT_EQ(Outcome([] { return Not(2.5); }), "l -3");
  EXPECT_EQ(Outcome([] { return Not(u"5"); }), "l -6");
  EXPECT_EQ(Outcome([] { return Not(u"True"); }), "b False");
  EXPECT_EQ(Outcome([] { return Not(u"x"); }), "error 13");
  EXPECT_EQ(Outcome([] { return Not(1e10); }), "error 6");
}

TEST(IsTrue, TakesWhatIsNotZero) {
  const Variant trueValues[] = {
      true,    Byte{1}, Short{-1}, 7,    0.1F, 0.1, Currency{1}, Date{0.5}, Decimal{.low = 1, .scale = 28},
      u"True", u"true", u"0.1",    u"-1"};
  for (const Variant& value : trueValues) EXPECT_TRUE(IsTrue(value)) << ToText(value).ToUtf8();
  const Variant falseValues[] = {false, Variant(),   Variant::Null(), Byte{0},   Short{0}, 0,   0.0F,
                                 -0.0,  Currency{0}, Date{0},         Decimal{}, u"False", u"0"};
  for (const Variant& value : falseValues) EXPECT_FALSE(IsTrue(value));
  for (const Variant& value : {Variant(u""), Variant(u"yes")}) EXPECT_EQ(ErrorOf([&] { IsTrue(value); }), 13);
}

}  // namespace
}  // namespace cardwright::vbscript
