// SPDX-License-Identifier: MIT
#include <string>

#include "vbscript/OperatorSamples.h"

namespace cardwright::vbscript {
namespace {

std::string RowOf(Operation operation, const Variant& left) {
  std::string row;
  for (const Variant& right : OneOfEachType()) {
    if (!row.empty()) row += " ";
    const std::string outcome = Outcome([&] { return operation(left, right); });
    row += outcome.starts_with("error") ? "?" : outcome.substr(0, 1);
  }
  return row;
}

// The types of results, a row for each type on the left. The values are such that nothing overflows.
void ExpectTypes(Operation operation, std::initializer_list<const char*> rows) {
  const auto samples = OneOfEachType();
  ASSERT_EQ(rows.size(), samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i) {
    EXPECT_EQ(RowOf(operation, samples[i]), rows.begin()[i])
        << "with " << LetterOf(samples[i]) << " on the left";
  }
}

//  e b y i l s d c t x &

TEST(TypeOfASum, IsTheMoreExactOfTheTwo) {
  ExpectTypes(Add, {"i i y i l s d c t x &",    // Empty
                    "i i i i l s d c t x d",    // Boolean
                    "y i y i l s d c t x d",    // Byte
                    "i i i i l s d c t x d",    // Integer
                    "l l l l l d d c t x d",    // Long
                    "s s s s d s d c t x d",    // Single
                    "d d d d d d d c t x d",    // Double
                    "c c c c c c c c t x c",    // Currency
                    "t t t t t t t t t t t",    // Date
                    "x x x x x x x x t x x",    // Decimal
                    "& d d d d d d c t x &"});  // text
}

TEST(TypeOfADifference, IsTheMoreExactOfTheTwoButADistanceOfDates) {
  ExpectTypes(Subtract, {"i i i i l s d c t x d",    // Empty
                         "i i i i l s d c t x d",    // Boolean
                         "i i y i l s d c t x d",    // Byte
                         "i i i i l s d c t x d",    // Integer
                         "l l l l l d d c t x d",    // Long
                         "s s s s d s d c t x d",    // Single
                         "d d d d d d d c t x d",    // Double
                         "c c c c c c c c t x c",    // Currency
                         "t t t t t t t t d t t",    // Date
                         "x x x x x x x x t x x",    // Decimal
                         "d d d d d d d c t x d"});  // text
}

TEST(TypeOfAProduct, PutsDoubleAboveCurrency) {
  ExpectTypes(Multiply, {"i i i i l s d c d x d",    // Empty
                         "i i i i l s d c d x d",    // Boolean
                         "i i y i l s d c d x d",    // Byte
                         "i i i i l s d c d x d",    // Integer
                         "l l l l l d d c d x d",    // Long
                         "s s s s d s d c d x d",    // Single
                         "d d d d d d d d d x d",    // Double
                         "c c c c c c d c d x d",    // Currency
                         "d d d d d d d d d x d",    // Date
                         "x x x x x x x x x x x",    // Decimal
                         "d d d d d d d d d x d"});  // text
}

TEST(TypeOfAQuotient, IsDoubleButForSingles) {
  const auto one = [](const Variant& a, const Variant& b) {
    return b.IsEmpty() ? Divide(a, std::int16_t{1}) : Divide(a, b);  // nothing is divided by Empty
  };
  ExpectTypes(one, {"d d d d d s d d d x d",    // Empty
                    "d d d d d s d d d x d",    // Boolean
                    "d d d d d s d d d x d",    // Byte
                    "d d d d d s d d d x d",    // Integer
                    "d d d d d d d d d x d",    // Long
                    "s s s s d s d d d x d",    // Single
                    "d d d d d d d d d x d",    // Double
                    "d d d d d d d d d x d",    // Currency
                    "d d d d d d d d d x d",    // Date
                    "x x x x x x x x x x x",    // Decimal
                    "d d d d d d d d d x d"});  // text
}

TEST(TypeOfAWholeQuotient, IsWhole) {
  for (const Operation operation : {IntegerDivide, Modulo}) {
    ExpectTypes(operation, {"? i i i l l l l l l l",    // Empty
                            "? i i i l l l l l l l",    // Boolean
                            "? i y i l l l l l l l",    // Byte
                            "? i i i l l l l l l l",    // Integer
                            "? l l l l l l l l l l",    // Long
                            "? l l l l l l l l l l",    // Single
                            "? l l l l l l l l l l",    // Double
                            "? l l l l l l l l l l",    // Currency
                            "? l l l l l l l l l l",    // Date
                            "? l l l l l l l l l l",    // Decimal
                            "? l l l l l l l l l l"});  // text
  }
}

TEST(TypeOfAPower, IsAlwaysDouble) {
  for (const Variant& base : OneOfEachType()) {
    // Zero has no power of -1, which True is.
    EXPECT_EQ(RowOf(Power, base), base.IsEmpty() ? "d ? d d d d d d d d d" : "d d d d d d d d d d d");
  }
}

TEST(TypeOfLogic, IsBooleanForTwoBooleansAndWholeElse) {
  for (const Operation operation : {And, Or, Xor, Eqv, Imp}) {
    ExpectTypes(operation, {"i i i i l l l l l l l",    // Empty
                            "i b i i l l l l l l l",    // Boolean
                            "i i y i l l l l l l l",    // Byte
                            "i i i i l l l l l l l",    // Integer
                            "l l l l l l l l l l l",    // Long
                            "l l l l l l l l l l l",    // Single
                            "l l l l l l l l l l l",    // Double
                            "l l l l l l l l l l l",    // Currency
                            "l l l l l l l l l l l",    // Date
                            "l l l l l l l l l l l",    // Decimal
                            "l l l l l l l l l l l"});  // text
  }
}

TEST(TypeOfASingleOperand, FollowsTheOperator) {
  const auto row = [](Variant (*operation)(const Variant&)) {
    std::string letters;
    for (const Variant& value : OneOfEachType()) letters += LetterOf(operation(value)) + " ";
    return letters;
  };
  EXPECT_EQ(row(Negate), "i i i i l s d c t x d ");
  EXPECT_EQ(row(UnaryPlus), "e b y i l s d c t x & ");
  EXPECT_EQ(row(Not), "i b y i l l l l l l l ");
}

constexpr Operation kArithmetic[] = {Add, Subtract, Multiply, Divide, IntegerDivide, Modulo, Power};
constexpr Operation kAll[] = {Add,         Subtract, Multiply, Divide, IntegerDivide, Modulo, Power,
                              Concatenate, And,      Or,       Xor,    Eqv,           Imp};

TEST(Null, SpreadsThroughArithmetic) {
  for (const Operation operation : kArithmetic) {
    for (const Variant& other : OneOfEachType()) {
      EXPECT_TRUE(operation(Variant::Null(), other).IsNull());
      EXPECT_TRUE(operation(other, Variant::Null()).IsNull());
    }
    EXPECT_TRUE(operation(Variant::Null(), Variant::Null()).IsNull());
    EXPECT_TRUE(operation(Variant::Null(), u"no number").IsNull());
  }
  EXPECT_TRUE(Negate(Variant::Null()).IsNull());
  EXPECT_TRUE(UnaryPlus(Variant::Null()).IsNull());
  EXPECT_TRUE(Not(Variant::Null()).IsNull());
}

TEST(ArraysAndErrorValues, AreNoOperands) {
  for (const Variant& unfit : {SomeArray(), Variant::Missing(), Variant(ErrorValue{5})}) {
    for (const Operation operation : kAll) {
      for (const Variant& other : {Variant(std::int16_t{1}), Variant::Null(), Variant(u"a"), Variant()}) {
        EXPECT_EQ(ErrorOf([&] { operation(unfit, other); }), 13);
        EXPECT_EQ(ErrorOf([&] { operation(other, unfit); }), 13);
      }
    }
    EXPECT_EQ(ErrorOf([&] { Compare(unfit, Variant()); }), 13);
    EXPECT_EQ(ErrorOf([&] { Compare(Variant::Null(), unfit); }), 13);
    EXPECT_EQ(ErrorOf([&] { Negate(unfit); }), 13);
    EXPECT_EQ(ErrorOf([&] { UnaryPlus(unfit); }), 13);
    EXPECT_EQ(ErrorOf([&] { Not(unfit); }), 13);
    EXPECT_EQ(ErrorOf([&] { IsTrue(unfit); }), 13);
  }
}

TEST(Objects, StandForTheirDefaultValues) {
  const Variant five = ObjectOf(std::int16_t{5});
  EXPECT_EQ(Outcome([&] { return Add(five, std::int16_t{1}); }), "i 6");
  EXPECT_EQ(Outcome([&] { return Multiply(2.5, five); }), "d 12.5");
  EXPECT_EQ(Outcome([&] { return Concatenate(five, five); }), "& 55");
  EXPECT_EQ(Outcome([&] { return Negate(five); }), "i -5");
  EXPECT_EQ(Outcome([&] { return And(five, std::int16_t{4}); }), "i 4");
  EXPECT_EQ(Compare(five, std::int16_t{5}), Ordering::Equal);
  EXPECT_TRUE(IsTrue(five));
  EXPECT_EQ(Outcome([&] { return Add(ObjectOf(five), std::int16_t{1}); }), "i 6") << "an object in an object";
  EXPECT_TRUE(Add(ObjectOf(Variant::Null()), five).IsNull());
}

TEST(Objects, WithoutADefaultValueFail) {
  for (const Operation operation : kAll) {
    EXPECT_EQ(ErrorOf([&] { operation(ObjectWithoutValue(), std::int16_t{1}); }), 438);
    EXPECT_EQ(ErrorOf([&] { operation(std::int16_t{1}, ObjectWithoutValue()); }), 438);
    EXPECT_EQ(ErrorOf([&] { operation(Variant::Nothing(), std::int16_t{1}); }), 91);
    EXPECT_EQ(ErrorOf([&] { operation(std::int16_t{1}, Variant::Nothing()); }), 91);
  }
  EXPECT_EQ(ErrorOf([] { Compare(Variant::Nothing(), Variant()); }), 91);
  EXPECT_EQ(ErrorOf([] { Compare(Variant(), ObjectWithoutValue()); }), 438);
  EXPECT_EQ(ErrorOf([] { IsTrue(Variant::Nothing()); }), 91);
}

/// Its default value is itself, so it never comes to an end.
class Circle final : public Object {
 public:
  Text TypeName() const override { return u"Circle"; }
  MemberId FindMember(std::u16string_view) const override { return kNoMember; }
  MemberId DefaultMember() const override { return 0; }
  Variant Invoke(MemberId, CallKind, Args) override { return Ref<Circle>(this); }
};

TEST(Objects, WhoseDefaultValueIsACircleFail) {
  const Variant circle = MakeRef<Circle>();
  EXPECT_EQ(ErrorOf([&] { Add(circle, std::int16_t{1}); }), 438);
}

TEST(References, AreFollowed) {
  Variant five = std::int16_t{5};
  const Variant reference = Variant::ByRef(five);
  EXPECT_EQ(Outcome([&] { return Add(reference, reference); }), "i 10");
  EXPECT_EQ(Outcome([&] { return Concatenate(reference, u"x"); }), "& 5x");
  EXPECT_EQ(Outcome([&] { return UnaryPlus(reference); }), "i 5");
  EXPECT_EQ(Compare(reference, std::int16_t{5}), Ordering::Equal);
  EXPECT_TRUE(IsTrue(reference));
}

}  // namespace
}  // namespace cardwright::vbscript
