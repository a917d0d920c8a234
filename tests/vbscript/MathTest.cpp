// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

void ExpectResults(std::initializer_list<CallCase> cases) { ExpectCalls(cases); }

TEST(MathFunctions, OfTheRealsGiveDoubles) {
  ExpectResults({{u"Atn", {Short{1}}, "d 0.785398163397448"},
                 {u"Cos", {Short{0}}, "d 1"},
                 {u"Sin", {Variant()}, "d 0"},
                 {u"Tan", {Short{1}}, "d 1.5574077246549"},
                 {u"Exp", {Short{1}}, "d 2.71828182845905"},
                 {u"Log", {Short{10}}, "d 2.30258509299405"},
                 {u"Sqr", {u"9"}, "d 3"},
                 {u"Sqr", {Currency{160000}}, "d 4"},
                 {u"Cos", {true}, "d 0.54030230586814"},
                 {u"Exp", {Short{-1000}}, "d 0"}});
}

TEST(MathFunctions, FailWhereThereIsNoValue) {
  ExpectResults({{u"Sqr", {Short{-1}}, "error 5"},
                 {u"Log", {Short{0}}, "error 5"},
                 {u"Log", {Variant()}, "error 5"},
                 {u"Log", {Short{-1}}, "error 5"},
                 {u"Exp", {Short{710}}, "error 6"},
                 {u"Sin", {std::numeric_limits<double>::infinity()}, "error 5"}});
  for (const char16_t* name :
       {u"Atn", u"Cos", u"Exp", u"Log", u"Sgn", u"Sin", u"Sqr", u"Tan", u"Rnd", u"Randomize"}) {
    ExpectResults({{name, {kNull}, "error 94"},
                   {name, {u"x"}, "error 13"},
                   {name, {u""}, "error 13"},
                   {name, {SomeArray()}, "error 13"},
                   {name, {Variant::Nothing()}, "error 91"}});
  }
  for (const char16_t* name : {u"Abs", u"Atn", u"Cos", u"Exp", u"Log", u"Sgn", u"Sin", u"Sqr", u"Tan"}) {
    ExpectResults({{name, {Variant::Missing()}, "error 13"}});
  }
}

TEST(Abs, KeepsTheType) {
  ExpectResults({{u"Abs", {Short{-5}}, "i 5"},
                 {u"Abs", {Short{5}}, "i 5"},
                 {u"Abs", {Byte{5}}, "y 5"},
                 {u"Abs", {Short{-32768}}, "l 32768"},
                 {u"Abs", {std::numeric_limits<std::int32_t>::min()}, "d 2147483648"},
                 {u"Abs", {-1.5F}, "s 1.5"},
                 {u"Abs", {-1.5}, "d 1.5"},
                 {u"Abs", {Currency{-15000}}, "c 1.5"},
                 {u"Abs", {Currency{std::numeric_limits<std::int64_t>::min()}}, "error 6"},
                 {u"Abs", {true}, "i 1"},
                 {u"Abs", {false}, "i 0"},
                 {u"Abs", {Variant()}, "i 0"},
                 {u"Abs", {u"-5"}, "d 5"},
                 {u"Abs", {u"5"}, "d 5"},
                 {u"Abs", {u"x"}, "error 13"},
                 {u"Abs", {kNull}, "n"},
                 {u"Abs", {Date{-1.5}}, "t 12/31/1899 12:00:00 PM"},
                 {u"Abs", {Decimal{.low = 5, .negative = true}}, "x 5"},
                 {u"Abs", {ObjectOf(Short{-3})}, "i 3"},
                 {u"Abs", {SomeArray()}, "error 13"}});
}

TEST(Sgn, IsAnInteger) {
  ExpectResults({{u"Sgn", {-0.1}, "i -1"},
                 {u"Sgn", {Variant()}, "i 0"},
                 {u"Sgn", {1e300}, "i 1"},
                 {u"Sgn", {true}, "i -1"},
                 {u"Sgn", {u"12"}, "i 1"}});
}

TEST(Rgb, CutsItsPartsAt255) {
  ExpectResults({{u"RGB", {Short{1}, Short{2}, Short{3}}, "l 197121"},
                 {u"RGB", {Short{300}, Short{0}, Short{0}}, "l 255"},
                 {u"RGB", {Short{255}, Short{255}, Short{255}}, "l 16777215"},
                 {u"RGB", {Short{0}, Short{-1}, Short{0}}, "error 5"},
                 {u"RGB", {Short{0}, Short{0}, 40000}, "error 6"},
                 {u"RGB", {kNull, Short{0}, Short{0}}, "error 94"},
                 {u"RGB", {u"x", Short{0}, Short{0}}, "error 13"},
                 {u"RGB", {Variant(), u"16", 0.5}, "l 4096"}});
}

TEST(Rnd, HasTheSequenceThatScriptsKnow) {
  for (const CallCase& first :
       {CallCase{u"Rnd", {}, "s 0.7055475"}, CallCase{u"Rnd", {Short{-1}}, "s 0.224007"},
        CallCase{u"Rnd", {Short{0}}, "s 1.953125E-02"}}) {
    ExpectResults({first});
  }
  LibraryCalls calls;
  EXPECT_EQ(calls.Try(u"Rnd", {}), "s 0.7055475");
  EXPECT_EQ(calls.Try(u"Rnd", {Short{1}}), "s 0.533424");
  EXPECT_EQ(calls.Try(u"Rnd", {Variant::Missing()}), "s 0.5795186");
  EXPECT_EQ(calls.Try(u"Rnd", {Short{0}}), "s 0.5795186") << "the latest one again";
  EXPECT_EQ(calls.Try(u"Rnd", {}), "s 0.2895625");
}

TEST(Rnd, GoesOnFromANegativeNumber) {
  LibraryCalls a;
  LibraryCalls b;
  b.Call(u"Rnd", {});
  a.Call(u"Rnd", {Short{-5}});
  b.Call(u"Rnd", {Short{-5}});
  for (int i = 0; i < 5; ++i) EXPECT_EQ(a.Try(u"Rnd", {}), b.Try(u"Rnd", {}));
}

TEST(Rnd, StaysBelowOne) {
  LibraryCalls calls;
  for (int i = 0; i < 10000; ++i) {
    const float value = calls.Call(u"Rnd", {}).Single();
    ASSERT_GE(value, 0.0F);
    ASSERT_LT(value, 1.0F);
  }
}

TEST(Randomize, WithANumberIsRepeatedOnlyAfterANegativeRnd) {
  LibraryCalls calls;
  const auto sequence = [&] {
    std::string texts;
    for (int i = 0; i < 3; ++i) texts += calls.Try(u"Rnd", {}) + " ";
    return texts;
  };
  const auto repeated = [&] {
    calls.Call(u"Rnd", {Short{-1}});
    EXPECT_TRUE(calls.Call(u"Randomize", {Short{42}}).IsEmpty());
    return sequence();
  };
  const std::string first = repeated();
  EXPECT_EQ(repeated(), first);
  calls.Call(u"Randomize", {Short{42}});
  EXPECT_NE(sequence(), first) << "the lowest byte of the state stays";
}

TEST(Randomize, FoldsTheUpperHalfOfTheNumberIntoTheState) {
  LibraryCalls calls;
  calls.Context().randomSeed = 0xABCDEF;
  calls.Call(u"Randomize", {Short{1}});  // 1 as a Double is 3FF00000 00000000
  EXPECT_EQ(calls.Context().randomSeed, 0x3FF0EFU);
}

TEST(Randomize, WithoutANumberTakesTheTime) {
  LibraryCalls calls;
  EXPECT_TRUE(calls.Call(u"Randomize", {}).IsEmpty());
  EXPECT_EQ(calls.Context().randomSeed & 0xFF, 0U);
  EXPECT_LE(calls.Context().randomSeed, 0xFFFFFFU);
}

}  // namespace
}  // namespace cardwright::vbscript
