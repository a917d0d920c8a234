// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "vbscript/OperatorSamples.h"

namespace cardwright::vbscript {
namespace {

struct ArithmeticCase {
  Variant left;
  Variant right;
  const char* outcome;
};

void ExpectOutcomes(Operation operation, std::initializer_list<ArithmeticCase> cases) {
  int number = 0;
  for (const ArithmeticCase& c : cases) {
    EXPECT_EQ(Outcome([&] { return operation(c.left, c.right); }), c.outcome) << "case " << number;
    ++number;
  }
}

constexpr std::int32_t kMaxLong = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMinLong = std::numeric_limits<std::int32_t>::min();
constexpr Currency kMaxCurrency{std::numeric_limits<std::int64_t>::max()};
constexpr Currency kMinCurrency{std::numeric_limits<std::int64_t>::min()};
constexpr Decimal kMaxDecimal{.low = ~std::uint64_t{0}, .high = ~std::uint32_t{0}};

TEST(Add, GrowsWhereTheTypeIsTooSmall) {
  ExpectOutcomes(Add, {{Byte{250}, Byte{5}, "y 255"},
                       {Byte{250}, Byte{6}, "i 256"},
                       {Short{32767}, Short{0}, "i 32767"},
                       {Short{32767}, Short{1}, "l 32768"},
                       {Short{-32768}, Short{-1}, "l -32769"},
                       {kMaxLong, 0, "l 2147483647"},
                       {kMaxLong, 1, "d 2147483648"},
                       {kMinLong, -1, "d -2147483649"},
                       {0x1p127F, 0x1p127F, "d 3.40282366920938E+38"},
                       {true, true, "i -2"},
                       {1e308, 1e308, "error 6"},
                       {-1e308, -1e308, "error 6"}});
}

TEST(Add, JoinsTextsAndAddsATextToANumber) {
  ExpectOutcomes(Add, {{u"1", u"2", "& 12"},
                       {u"1", Short{2}, "d 3"},
                       {Short{2}, u"1.5", "d 3.5"},
                       {u"&HFF", Short{1}, "d 256"},
                       {u"a", Short{1}, "error 13"},
                       {Short{1}, u"", "error 13"},
                       {u"True", Short{1}, "error 13"},
                       {u"a", Variant(), "& a"},
                       {Variant(), u"a", "& a"},
                       {true, u"5", "d 4"},
                       {Currency{10000}, u"0.0001", "c 1.0001"}});
}

TEST(Add, OfEmptyLeavesTheOtherSide) {
  ExpectOutcomes(Add, {{Variant(), Byte{5}, "y 5"},
                       {Variant(), 5, "l 5"},
                       {1.5, Variant(), "d 1.5"},
                       {Variant(), Variant(), "i 0"},
                       {Variant(), true, "i -1"}});
}

TEST(Add, CountsDaysOfADate) {
  ExpectOutcomes(Add, {{Date{36526}, Short{31}, "t 2/1/2000"},
                       {0.5, Date{36526}, "t 1/1/2000 12:00:00 PM"},
                       {Date{1}, Date{1}, "t 1/1/1900"},
                       {Date{36526}, u"1", "t 1/2/2000"},
                       {Date{36526}, true, "t 12/31/1999"},
                       {Date{2958465}, Short{1}, "d 2958466"},
                       {Date{1}, 1e308, "d 1E+308"}});
}

TEST(Add, OfCurrencyIsExact) {
  ExpectOutcomes(Add, {{Currency{1000}, Currency{2000}, "c 0.3"},
                       {Currency{10000}, 0.00006, "c 1.0001"},
                       {Currency{10000}, 1.5, "c 2.5"},
                       {kMaxCurrency, Currency{1}, "error 6"},
                       {kMinCurrency, Currency{-1}, "error 6"},
                       {Currency{0}, 1e20, "error 6"}});
}

TEST(Subtract, HasTheSameTypes) {
  ExpectOutcomes(Subtract,
                 {{Byte{5}, Byte{6}, "i -1"},
                  {Byte{6}, Byte{5}, "y 1"},
                  {Short{-32768}, Short{1}, "l -32769"},
                  {kMinLong, 1, "d -2147483649"},
                  {Date{36527}, Date{36526.5}, "d 0.5"},
                  {Date{36527}, Short{1}, "t 1/1/2000"},
                  {Short{1}, Date{0.5}, "t 12:00:00 PM"},
                  {u"5", u"3", "d 2"},
                  {u"5", Variant(), "d 5"},
                  {u"x", Short{1}, "error 13"},
                  {Variant(), true, "i 1"},
                  {kMinCurrency, Currency{1}, "error 6"},
                  {Decimal{.low = 1}, Decimal{.low = 1, .scale = 28}, "x 0.9999999999999999999999999999"},
                  {Decimal{.low = 1}, Decimal{.low = 1}, "x 0"}});
}

TEST(Multiply, GrowsWhereTheTypeIsTooSmall) {
  ExpectOutcomes(Multiply, {{Byte{15}, Byte{17}, "y 255"},
                            {Byte{16}, Byte{16}, "i 256"},
                            {Byte{255}, Byte{255}, "l 65025"},
                            {Short{181}, Short{181}, "i 32761"},
                            {Short{182}, Short{182}, "l 33124"},
                            {Short{-32768}, Short{-32768}, "l 1073741824"},
                            {65536, 32767, "l 2147418112"},
                            {65536, 32768, "d 2147483648"},
                            {kMinLong, kMinLong, "d 4.61168601842739E+18"},
                            {0x1p100F, -0x1p100F, "d -1.60693804425899E+60"},
                            {1e200, 1e200, "error 6"},
                            {u"6", u"7", "d 42"},
                            {true, true, "i 1"},
                            {Date{3}, Short{2}, "d 6"}});
}

TEST(Multiply, RoundsCurrencyHalfToEven) {
  ExpectOutcomes(Multiply, {{Currency{15000}, Currency{25000}, "c 3.75"},
                            {Currency{5000}, Currency{1}, "c 0"},
                            {Currency{5000}, Currency{3}, "c 0.0002"},
                            {Currency{-5000}, Currency{1}, "c 0"},
                            {Currency{-5000}, Currency{3}, "c -0.0002"},
                            {Currency{-5001}, Currency{1}, "c -0.0001"},
                            {Currency{15000}, Short{2}, "c 3"},
                            {Currency{15000}, 2.0F, "c 3"},
                            {Currency{15000}, 2.0, "d 3"},
                            {kMaxCurrency, Short{2}, "error 6"},
                            {kMinCurrency, Short{-1}, "error 6"},
                            {kMinCurrency, Short{1}, "c -922337203685477.5808"}});
}

TEST(Divide, TellsZeroByZeroFromADivisionByZero) {
  ExpectOutcomes(Divide, {{Short{7}, Short{2}, "d 3.5"},
                          {Short{6}, Short{2}, "d 3"},
                          {1.0F, 4.0F, "s 0.25"},
                          {0x1p127F, 0.5F, "d 3.40282366920938E+38"},
                          {u"9", u"2", "d 4.5"},
                          {Variant(), Short{5}, "d 0"},
                          {Short{1}, Short{0}, "error 11"},
                          {Short{-1}, 0.0, "error 11"},
                          {Short{1}, Variant(), "error 11"},
                          {Short{1}, false, "error 11"},
                          {Short{0}, Short{0}, "error 6"},
                          {Variant(), Variant(), "error 6"},
                          {1e308, 0.1, "error 6"},
                          {u"x", Short{1}, "error 13"},
                          {Decimal{.low = 1}, Decimal{.low = 3}, "x 0.3333333333333333333333333333"},
                          {Decimal{.low = 2}, Short{3}, "x 0.6666666666666666666666666667"},
                          {Decimal{.low = 1}, Decimal{}, "error 11"},
                          {Decimal{}, Decimal{}, "error 6"}});
}

TEST(IntegerDivide, RoundsItsOperandsHalfToEven) {
  ExpectOutcomes(IntegerDivide, {{Short{7}, Short{2}, "i 3"},
                                 {Short{-7}, Short{2}, "i -3"},
                                 {7.5, Short{2}, "l 4"},
                                 {6.5, Short{2}, "l 3"},
                                 {Short{7}, 2.5, "l 3"},
                                 {Short{7}, 1.5, "l 3"},
                                 {u"7.5", u"2", "l 4"},
                                 {Byte{7}, Byte{2}, "y 3"},
                                 {true, Short{2}, "i 0"},
                                 {Variant(), Short{2}, "i 0"},
                                 {Short{-32768}, Short{-1}, "l 32768"},
                                 {kMinLong, -1, "error 6"},
                                 {Short{0}, Short{0}, "error 11"},
                                 {Short{1}, 0.5, "error 11"},
                                 {1e10, Short{1}, "error 6"},
                                 {Short{1}, 1e10, "error 6"},
                                 {Date{7.2}, Short{2}, "l 3"},
                                 {Currency{75000}, Short{2}, "l 4"},
                                 {u"x", Short{2}, "error 13"}});
}

TEST(Modulo, HasTheSignOfTheDividend) {
  ExpectOutcomes(Modulo, {{Short{7}, Short{3}, "i 1"},
                          {Short{-7}, Short{3}, "i -1"},
                          {Short{7}, Short{-3}, "i 1"},
                          {Short{-7}, Short{-3}, "i -1"},
                          {5.5, Short{2}, "l 0"},
                          {6.5, Short{4}, "l 2"},
                          {Byte{7}, Byte{4}, "y 3"},
                          {kMinLong, -1, "l 0"},
                          {Short{1}, Short{0}, "error 11"},
                          {Short{0}, Short{0}, "error 11"},
                          {3e9, Short{2}, "error 6"},
                          {u"10", u"4", "l 2"}});
}

TEST(Power, IsCalculatedInDoubles) {
  ExpectOutcomes(Power, {{Short{2}, Short{10}, "d 1024"},
                         {Short{2}, Short{-2}, "d 0.25"},
                         {Short{9}, 0.5, "d 3"},
                         {Short{0}, Short{0}, "d 1"},
                         {Variant(), Variant(), "d 1"},
                         {Short{-2}, Short{3}, "d -8"},
                         {Short{-8}, 0.5, "error 5"},
                         {Short{0}, Short{-1}, "error 5"},
                         {Short{10}, Short{400}, "error 6"},
                         {Short{10}, Short{-400}, "d 0"},
                         {u"2", u"3", "d 8"},
                         {true, Short{2}, "d 1"},
                         {u"x", Short{2}, "error 13"}});
}

TEST(Concatenate, JoinsTheTextsOfAnything) {
  ExpectOutcomes(Concatenate, {{u"a", u"b", "& ab"},
                               {Short{1}, Short{2}, "& 12"},
                               {kMinLong, kMaxLong, "& -21474836482147483647"},
                               {Byte{0}, Byte{255}, "& 0255"},
                               {1.5, true, "& 1.5True"},
                               {Variant(), u"x", "& x"},
                               {Variant(), Variant(), "& "},
                               {Variant::Null(), u"x", "& x"},
                               {u"x", Variant::Null(), "& x"},
                               {Variant::Null(), Variant(), "& "},
                               {Variant::Null(), Variant::Null(), "n"},
                               {Date{36526}, u"", "& 1/1/2000"},
                               {Currency{15000}, u"", "& 1.5"}});
}

struct UnaryCase {
  Variant value;
  const char* outcome;
};

TEST(Negate, GrowsWhereTheTypeIsTooSmall) {
  const UnaryCase cases[] = {{Byte{5}, "i -5"},
                             {Short{-32768}, "l 32768"},
                             {Short{32767}, "i -32767"},
                             {kMinLong, "d 2147483648"},
                             {kMaxLong, "l -2147483647"},
                             {true, "i 1"},
                             {false, "i 0"},
                             {Variant(), "i 0"},
                             {1.5F, "s -1.5"},
                             {-1.5, "d 1.5"},
                             {u"5", "d -5"},
                             {u"x", "error 13"},
                             {Currency{-15000}, "c 1.5"},
                             {kMinCurrency, "error 6"},
                             {Date{1.5}, "t 12/29/1899 12:00:00 PM"},
                             {Date{2958465}, "d -2958465"},
                             {Decimal{.low = 15, .scale = 1}, "x -1.5"},
                             {Decimal{}, "x 0"}};
  for (const UnaryCase& c : cases) EXPECT_EQ(Outcome([&] { return Negate(c.value); }), c.outcome);
}

TEST(UnaryPlus, LeavesTheValueAsItIs) {
  const UnaryCase cases[] = {
      {u"5", "& 5"}, {u"x", "& x"}, {true, "b True"}, {Variant(), "e "}, {1.5, "d 1.5"}};
  for (const UnaryCase& c : cases) EXPECT_EQ(Outcome([&] { return UnaryPlus(c.value); }), c.outcome);
}

TEST(Decimals, AreRoundedHalfToEvenAndOverflow) {
  ExpectOutcomes(Add,
                 {{kMaxDecimal, Decimal{.low = 1}, "error 6"},
                  {kMaxDecimal, Decimal{.low = 4, .scale = 1}, "x 79228162514264337593543950335"},
                  {kMaxDecimal, Decimal{.low = 5, .scale = 1}, "error 6"},
                  {Decimal{.low = 25, .scale = 1}, Decimal{.low = 5, .scale = 1, .negative = true}, "x 2"},
                  {Decimal{.low = 1}, Short{1}, "x 2"},
                  {Decimal{.low = 1}, 0.1, "x 1.1"}});
  ExpectOutcomes(Multiply, {{kMaxDecimal, Short{1}, "x 79228162514264337593543950335"},
                            {kMaxDecimal, Short{2}, "error 6"},
                            {kMaxDecimal, kMaxDecimal, "error 6"},
                            {Decimal{.low = 1, .scale = 28}, Decimal{.low = 5, .scale = 1}, "x 0"},
                            {Decimal{.low = 3, .scale = 28}, Decimal{.low = 5, .scale = 1},
                             "x 0.0000000000000000000000000002"},
                            {Decimal{.low = 15, .scale = 1}, Decimal{.low = 4, .negative = true}, "x -6"}});
  ExpectOutcomes(Divide, {{Short{1}, Decimal{.low = 1, .scale = 28}, "x 10000000000000000000000000000"},
                          {Short{8}, Decimal{.low = 1, .scale = 28}, "error 6"},
                          {kMaxDecimal, kMaxDecimal, "x 1"}});
}

}  // namespace
}  // namespace cardwright::vbscript
