// SPDX-License-Identifier: MIT
#include "cardwright/automation/Collection.h"

#include "automation/Printing.h"

namespace cardwright {
namespace {

Ref<Collection> Letters(std::u16string_view letters) {
  auto collection = MakeRef<Collection>();
  for (const char16_t& letter : letters) {
    const Text text(std::u16string_view(&letter, 1));
    collection->Add(text, Variant(u"key " + text));
  }
  return collection;
}

std::u16string Items(Collection& collection) {
  std::u16string all;
  Variant value;
  for (const auto walk = collection.Enumerate(); walk->Next(value);) all += value.StringView();
  return all;
}

TEST(Collection, AddsBeforeAndAfter) {
  const auto c = Letters(u"abc");
  c->Add(u"1", {}, Variant(1));
  c->Add(u"2", {}, Variant(u"KEY C"));
  c->Add(u"3", {}, {}, Variant(u"key c"));
  c->Add(u"4", {}, {}, Variant(1));
  EXPECT_EQ(Items(*c), u"14ab2c3");
  EXPECT_EQ(ErrorOf([&] { c->Add(u"x", {}, Variant(1), Variant(1)); }), 5);
  EXPECT_EQ(ErrorOf([&] { c->Add(u"x", {}, Variant(8)); }), 9);
  EXPECT_EQ(c->Count(), 7);
}

TEST(Collection, FindsByPositionAndKey) {
  const auto c = Letters(u"abc");
  EXPECT_EQ(c->Item(2).String(), u"b");
  EXPECT_EQ(c->Item(2.6).String(), u"c");
  EXPECT_EQ(c->Item(u"Key B").String(), u"b");
  EXPECT_EQ(c->Find(u"none"), nullptr);
  EXPECT_EQ(ErrorOf([&] { c->Item(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { c->Item(4); }), 9);
  EXPECT_EQ(ErrorOf([&] { c->Item(u"none"); }), 5);
  EXPECT_EQ(ErrorOf([&] { c->Item(u"1"); }), 5);
}

TEST(Collection, RefusesAKeyThatExistsWhateverItsCase) {
  const auto c = Letters(u"ab");
  EXPECT_EQ(ErrorOf([&] { c->Add(u"x", Variant(u"KEY A")); }), 457);
  EXPECT_EQ(ErrorOf([&] { c->Add(u"x", Variant(5)); }), 13);
  EXPECT_EQ(c->Count(), 2);
}

TEST(Collection, TreatsAnEmptyKeyAsNone) {
  const auto c = MakeRef<Collection>();
  c->Add(1, Variant(u""));
  c->Add(2, Variant(u""));
  EXPECT_EQ(c->Count(), 2);
  EXPECT_EQ(ErrorOf([&] { c->Item(u""); }), 5);
}

TEST(Collection, RemovesByPositionAndKey) {
  const auto c = Letters(u"abcd");
  c->Remove(u"key B");
  c->Remove(3);
  EXPECT_EQ(Items(*c), u"ac");
  EXPECT_EQ(ErrorOf([&] { c->Remove(u"key b"); }), 5);
  EXPECT_EQ(ErrorOf([&] { c->Remove(3); }), 9);
  c->Add(u"again", Variant(u"key b"));
  EXPECT_EQ(c->Item(u"key b").String(), u"again");
  c->Clear();
  EXPECT_EQ(c->Count(), 0);
  EXPECT_EQ(c->Find(u"key a"), nullptr);
}

TEST(Collection, IsReachableByName) {
  const auto c = MakeRef<Collection>();
  CallMethod(*c, u"add", {u"value", u"k"});
  CallMethod(*c, u"Add", {u"first", Variant::Missing(), 1});
  EXPECT_EQ(GetProperty(*c, u"Count").Long(), 2);
  EXPECT_EQ(GetProperty(*c, u"Item", {1}).String(), u"first");
  EXPECT_EQ(GetProperty(*c, u"Item", {u"K"}).String(), u"value");
  EXPECT_EQ(c->DefaultMember(), c->FindMember(u"Item"));
  CallMethod(*c, u"Remove", {u"k"});
  EXPECT_EQ(c->Count(), 1);
}

TEST(Collection, FollowsRemovalsDuringAnEnumeration) {
  const auto c = Letters(u"abcdef");
  std::u16string met;
  Variant value;
  for (const auto walk = c->Enumerate(); walk->Next(value);) {
    met += value.StringView();
    if (value.StringView() == u"b") c->Remove(u"key b");
    if (value.StringView() == u"c") c->Remove(1);
    if (value.StringView() == u"d") c->Remove(u"key e");
  }
  EXPECT_EQ(met, u"abcdf");
}

TEST(Collection, FollowsAdditionsDuringAnEnumeration) {
  const auto c = Letters(u"ab");
  std::u16string met;
  Variant value;
  for (const auto walk = c->Enumerate(); walk->Next(value);) {
    met += value.StringView();
    if (value.StringView() == u"a") {
      c->Add(u"0", {}, Variant(1));
      c->Add(u"z");
    }
  }
  EXPECT_EQ(met, u"abz");
  EXPECT_EQ(Items(*c), u"0abz");
}

TEST(Collection, LivesAsLongAsItsEnumeration) {
  auto c = Letters(u"ab");
  const auto walk = c->Enumerate();
  c = nullptr;
  Variant value;
  EXPECT_TRUE(walk->Next(value));
  EXPECT_TRUE(walk->Next(value));
  EXPECT_FALSE(walk->Next(value));
}

TEST(Collection, EndsAnEnumerationWhenCleared) {
  const auto c = Letters(u"ab");
  const auto walk = c->Enumerate();
  Variant value;
  EXPECT_TRUE(walk->Next(value));
  c->Clear();
  EXPECT_FALSE(walk->Next(value));
}

TEST(Collection, FindsAmongThousandsOfKeys) {
  const auto c = MakeRef<Collection>();
  for (std::int32_t i = 0; i < 5000; ++i) c->Add(i, Variant(u"Item " + ToText(i)));
  for (std::int32_t i = 0; i < 5000; ++i) ASSERT_EQ(c->Item(u"ITEM " + ToText(i)).Long(), i);
}

}  // namespace
}  // namespace cardwright
