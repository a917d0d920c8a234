// SPDX-License-Identifier: MIT
#include "cardwright/automation/Variant.h"

#include "automation/Printing.h"
#include "cardwright/automation/Array.h"
#include "cardwright/automation/Collection.h"

namespace cardwright {
namespace {

TEST(Variant, CopiesShareTextsObjectsAndArrays) {
  const auto object = MakeRef<Collection>();
  const Variant values[] = {u"text", object, Array::FromValues({1, 2})};
  for (const Variant& value : values) {
    Variant copy = value;
    const Variant moved = std::move(copy);
    EXPECT_EQ(moved.Type(), value.Type());
    EXPECT_TRUE(copy.IsEmpty());
  }
  EXPECT_EQ(Variant(values[0]).StringView().data(), values[0].StringView().data());
  EXPECT_EQ(values[1].ObjectPtr(), object.get());
}

TEST(Variant, ReleasesItsOldValue) {
  const auto object = MakeRef<Collection>();
  Variant value = object;
  EXPECT_FALSE(object->IsUnique());
  value = 1;
  EXPECT_TRUE(object->IsUnique());
}

TEST(Variant, AssignsToItself) {
  Variant value = u"again";
  const Variant& same = value;
  value = same;
  EXPECT_EQ(value.String(), u"again");
}

TEST(Variant, AReferenceToAReferenceRefersToTheEnd) {
  Variant target = 5;
  Variant first = Variant::ByRef(target);
  Variant second = Variant::ByRef(first);
  second.Deref() = 7;
  EXPECT_EQ(target.Long(), 7);
  EXPECT_EQ(&second.Deref(), &target);
}

TEST(Variant, DistinguishesNothingNullAndMissing) {
  EXPECT_TRUE(Variant::Nothing().IsObject());
  EXPECT_EQ(Variant::Nothing().ObjectPtr(), nullptr);
  EXPECT_TRUE(Variant::Null().IsNull());
  EXPECT_TRUE(Variant::Missing().IsMissing());
  EXPECT_FALSE(Variant(ErrorValue{5}).IsMissing());
}

TEST(Variant, KeepsAllBitsOfADecimal) {
  const Variant value = Decimal{.low = 1, .high = 2, .scale = 3, .negative = true};
  const Decimal back = Variant(value).DecimalValue();
  EXPECT_EQ(back.low, 1u);
  EXPECT_EQ(back.high, 2u);
  EXPECT_EQ(back.scale, 3);
  EXPECT_TRUE(back.negative);
}

TEST(Array, CountsTheFirstIndexFastest) {
  Array array({{1, 2}, {0, 2}});
  array.At(std::array<std::int32_t, 2>{2, 0}) = u"second";
  array.At(std::array<std::int32_t, 2>{1, 1}) = u"third";
  EXPECT_EQ(array.Values().size(), 6u);
  EXPECT_EQ(array.Values()[1].String(), u"second");
  EXPECT_EQ(array.Values()[2].String(), u"third");
}

TEST(Array, RefusesIndicesOutside) {
  Array array({{1, 2}});
  EXPECT_EQ(ErrorOf([&] { array.At(std::array<std::int32_t, 1>{0}); }), 9);
  EXPECT_EQ(ErrorOf([&] { array.At(std::array<std::int32_t, 1>{3}); }), 9);
  EXPECT_EQ(ErrorOf([&] { array.At(std::array<std::int32_t, 2>{1, 1}); }), 9);
}

TEST(Array, RefusesImpossibleBounds) {
  EXPECT_EQ(ErrorOf([] { Array({{5, 3}}); }), 9);
  EXPECT_EQ(ErrorOf([] { Array(std::vector<Bounds>{}); }), 9);
  EXPECT_EQ(ErrorOf([] { Array(std::vector<Bounds>(61, Bounds{0, 0})); }), 9);
  EXPECT_EQ(ErrorOf([] { Array(std::vector<Bounds>(60, Bounds{0, 9})); }), 7);
  EXPECT_EQ(ErrorOf([] { Array({{0, 0x7FFFFFFE}}); }), 7);
  EXPECT_EQ(Array({{0, -1}}).Values().size(), 0u);
}

TEST(Array, IsCopiedBeforeAWriteWhereShared) {
  Variant first = Array::FromValues({1, 2});
  Variant second = first;
  Array::Writable(second).At(std::array<std::int32_t, 1>{0}) = 9;
  EXPECT_EQ(first.ArrayPtr()->Values()[0].Long(), 1);
  EXPECT_EQ(second.ArrayPtr()->Values()[0].Long(), 9);
}

TEST(Array, IsWrittenInPlaceWhereNobodyShares) {
  Variant holder = Array::FromValues({1});
  Variant reference = Variant::ByRef(holder);
  const Array* before = holder.ArrayPtr();
  EXPECT_EQ(&Array::Writable(reference), before);
  Variant number = 1;
  EXPECT_EQ(ErrorOf([&] { Array::Writable(number); }), 13);
}

TEST(Array, TakesTextsFromZero) {
  const std::vector<Text> texts{u"a", u"b"};
  const auto array = Array::FromTexts(texts);
  EXPECT_EQ(array->Dimensions()[0].lower, 0);
  EXPECT_EQ(array->Dimensions()[0].upper, 1);
  EXPECT_EQ(array->Values()[1].String(), u"b");
}

}  // namespace
}  // namespace cardwright
