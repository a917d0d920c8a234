// SPDX-License-Identifier: MIT
#include "cardwright/scripting/Dictionary.h"

#include "automation/Printing.h"
#include "cardwright/automation/Collection.h"

namespace cardwright::scripting {
namespace {

std::string Listed(const Variant& list) {
  std::string text;
  for (const Variant& value : list.ArrayPtr()->Values()) text += "[" + ToText(value).ToUtf8() + "]";
  return text;
}

TEST(Dictionary, KeepsTheOrderOfItsKeys) {
  const auto dictionary = MakeRef<Dictionary>();
  dictionary->Add(u"b", 1);
  dictionary->Add(u"a", 2);
  dictionary->LetItem(u"c", 3);
  dictionary->LetItem(u"b", 4);
  EXPECT_EQ(Listed(dictionary->Keys()), "[b][a][c]");
  EXPECT_EQ(Listed(dictionary->Items()), "[4][2][3]");
  dictionary->Remove(u"b");
  dictionary->Add(u"b", 5);
  EXPECT_EQ(Listed(dictionary->Keys()), "[a][c][b]");
  EXPECT_EQ(dictionary->Count(), 3);
}

struct Pair {
  const char* what;
  Variant a, b;
  bool same;
};

class DictionaryKeys : public testing::TestWithParam<Pair> {};

TEST_P(DictionaryKeys, AreTheSameOrNot) {
  const auto dictionary = MakeRef<Dictionary>();
  dictionary->Add(GetParam().a, 1);
  EXPECT_EQ(dictionary->Exists(GetParam().b), GetParam().same) << GetParam().what;
  if (GetParam().same) {
    EXPECT_EQ(dictionary->HashVal(GetParam().a), dictionary->HashVal(GetParam().b));
  }
}

const Ref<Object> kObject = MakeRef<Collection>();

INSTANTIATE_TEST_SUITE_P(All, DictionaryKeys,
                         testing::ValuesIn<Pair>({
                             {"number and text", 1, u"1", false},
                             {"Integer and Long", std::int16_t{1}, std::int32_t{1}, true},
                             {"Long and Double", 1, 1.0, true},
                             {"Byte and Single", std::uint8_t{7}, 7.0f, true},
                             {"Double and Currency", 0.5, Currency{5000}, true},
                             {"Currency and Decimal", Currency{15000}, Decimal{.low = 15, .scale = 1}, true},
                             {"the two zeros", 0.0, -0.0, true},
                             {"amounts beyond the digits of a Double", Currency{9223372036854775807},
                              Currency{9223372036854775806}, false},
                             {"different numbers", 1, 2, false},
                             {"whole and fraction", 1, 1.5, false},
                             {"Boolean and number", true, -1, false},
                             {"Booleans", true, true, true},
                             {"different Booleans", true, false, false},
                             {"date and number", Date{36526}, 36526.0, false},
                             {"dates", Date{36526}, Date{36526}, true},
                             {"Empty and empty text", Variant(), u"", false},
                             {"Empty and zero", Variant(), 0, false},
                             {"Empty", Variant(), Variant(), true},
                             {"Null", Variant::Null(), Variant::Null(), true},
                             {"Null and Empty", Variant::Null(), Variant(), false},
                             {"one object", kObject, kObject, true},
                             {"two objects", kObject, MakeRef<Collection>(), false},
                             {"Nothing", Variant::Nothing(), Variant::Nothing(), true},
                             {"case", u"Key", u"key", false},
                             {"texts", u"a longer key", u"a longer key", true},
                             {"texts that differ at the end", u"a longer key", u"a longer kez", false},
                             {"texts with NUL at the end", Text(std::u16string_view(u"a\0", 2)), u"a", false},
                             {"empty texts", u"", u"", true},
                         }));

TEST(Dictionary, RefusesArraysAndErrorValuesAsKeys) {
  const auto dictionary = MakeRef<Dictionary>();
  for (const Variant& key : {Variant(Array::FromValues({})), Variant::Missing()}) {
    EXPECT_EQ(ErrorOf([&] { dictionary->Add(key, 1); }), 5);
    EXPECT_EQ(ErrorOf([&] { dictionary->Exists(key); }), 5);
    EXPECT_EQ(ErrorOf([&] { dictionary->Remove(key); }), 5);
  }
  EXPECT_EQ(dictionary->Count(), 0);
}

TEST(Dictionary, RaisesTheErrorsOfTheDocumentation) {
  const auto dictionary = MakeRef<Dictionary>();
  dictionary->Add(u"a", 1);
  dictionary->Add(u"b", 2);
  EXPECT_EQ(ErrorOf([&] { dictionary->Add(u"a", 2); }), 457);
  EXPECT_EQ(ErrorOf([&] { dictionary->Remove(u"x"); }), 32811);
  EXPECT_EQ(ErrorOf([&] { dictionary->LetKey(u"x", u"y"); }), 32811);
  EXPECT_EQ(ErrorOf([&] { dictionary->LetKey(u"a", u"b"); }), 457);
  EXPECT_EQ(ErrorOf([&] { dictionary->LetKey(u"a", u"a"); }), 457);
  EXPECT_EQ(ErrorOf([&] { dictionary->SetCompareMode(1); }), 5);
  EXPECT_EQ(Listed(dictionary->Items()), "[1][2]");
}

TEST(Dictionary, AddsAKeyThatIsRead) {
  const auto dictionary = MakeRef<Dictionary>();
  EXPECT_TRUE(dictionary->Item(u"new").IsEmpty());
  EXPECT_TRUE(dictionary->Exists(u"new"));
  EXPECT_FALSE(dictionary->Exists(u"other"));
  EXPECT_EQ(dictionary->Count(), 1);
}

TEST(Dictionary, RenamesAKeyInItsPlace) {
  const auto dictionary = MakeRef<Dictionary>();
  for (const char16_t* key : {u"a", u"b", u"c"}) dictionary->Add(key, key);
  dictionary->LetKey(u"b", 2);
  EXPECT_EQ(Listed(dictionary->Keys()), "[a][2][c]");
  EXPECT_FALSE(dictionary->Exists(u"b"));
  EXPECT_EQ(dictionary->Item(2).StringView(), u"b");
}

TEST(Dictionary, StaysWholeUnderManyRenamings) {
  const auto dictionary = MakeRef<Dictionary>();
  dictionary->Add(0, u"value");
  for (std::int32_t i = 0; i < 1000; ++i) dictionary->LetKey(i, i + 1);
  EXPECT_EQ(Listed(dictionary->Keys()), "[1000]");
  EXPECT_EQ(dictionary->Item(1000).StringView(), u"value");
}

TEST(Dictionary, IgnoresCaseWhereItWasToldTo) {
  for (const std::int32_t mode : {1, 2}) {
    const auto dictionary = MakeRef<Dictionary>();
    dictionary->SetCompareMode(mode);
    dictionary->Add(u"Übermut-Key", 1);
    EXPECT_TRUE(dictionary->Exists(u"ÜBERMUT-KEY"));
    EXPECT_EQ(ErrorOf([&] { dictionary->Add(u"übermut-key", 2); }), 457);
    EXPECT_EQ(Listed(dictionary->Keys()), "[Übermut-Key]");
    EXPECT_EQ(dictionary->CompareMode(), mode);
  }
}

TEST(Dictionary, ChangesItsModeOnlyWhileEmpty) {
  const auto dictionary = MakeRef<Dictionary>();
  EXPECT_EQ(ErrorOf([&] { dictionary->SetCompareMode(3); }), 5);
  EXPECT_EQ(ErrorOf([&] { dictionary->SetCompareMode(-1); }), 5);
  dictionary->Add(u"a", 1);
  dictionary->RemoveAll();
  dictionary->SetCompareMode(1);
  dictionary->Add(u"b", 1);
  dictionary->Remove(u"B");
  dictionary->SetCompareMode(0);
  dictionary->Add(u"b", 1);
  EXPECT_FALSE(dictionary->Exists(u"B"));
}

TEST(Dictionary, EnumeratesTheKeysOfTheMoment) {
  const auto dictionary = MakeRef<Dictionary>();
  dictionary->Add(u"a", 1);
  dictionary->Add(u"b", 2);
  const auto walk = dictionary->Enumerate();
  dictionary->RemoveAll();
  dictionary->Add(u"c", 3);
  Variant key;
  ASSERT_TRUE(walk->Next(key));
  EXPECT_EQ(key.StringView(), u"a");
  ASSERT_TRUE(walk->Next(key));
  EXPECT_EQ(key.StringView(), u"b");
  EXPECT_FALSE(walk->Next(key));
}

TEST(Dictionary, HoldsManyKeysThroughAdditionsAndRemovals) {
  const auto dictionary = MakeRef<Dictionary>();
  constexpr std::int32_t kCount = 20000;
  const auto key = [](std::int32_t i) { return Variant(u"key" + Text(ToText(Variant(i)))); };
  for (std::int32_t i = 0; i < kCount; ++i) dictionary->Add(i % 2 == 0 ? Variant(i) : key(i), i);
  for (std::int32_t i = 0; i < kCount; i += 3) dictionary->Remove(i % 2 == 0 ? Variant(i) : key(i));
  for (std::int32_t i = kCount; i < kCount + 5000; ++i) dictionary->Add(i, i);
  for (std::int32_t i = 0; i < kCount; ++i) {
    EXPECT_EQ(dictionary->Exists(i % 2 == 0 ? Variant(i) : key(i)), i % 3 != 0);
  }
  const Variant items = dictionary->Items();
  EXPECT_EQ(items.ArrayPtr()->Values().size(), static_cast<std::size_t>(dictionary->Count()));
  for (std::size_t i = 1; i < items.ArrayPtr()->Values().size(); ++i) {
    EXPECT_LT(items.ArrayPtr()->Values()[i - 1].Long(), items.ArrayPtr()->Values()[i].Long());
  }
}

TEST(Dictionary, ServesAQueueWithoutGrowing) {
  const auto dictionary = MakeRef<Dictionary>();
  for (std::int32_t i = 0; i < 100000; ++i) {
    dictionary->Add(i, i);
    if (i >= 10) dictionary->Remove(i - 10);
  }
  EXPECT_EQ(dictionary->Count(), 10);
  EXPECT_EQ(Listed(dictionary->Keys()).substr(0, 7), "[99990]");
}

// An object that looks at the dictionary, and changes it, when it ends.
class Meddler final : public TableObject {
 public:
  explicit Meddler(Dictionary& dictionary) : m_Dictionary(dictionary) {}
  ~Meddler() override { m_Dictionary.LetItem(u"ended", m_Dictionary.Count()); }
  Text TypeName() const override { return u"Meddler"; }

 protected:
  const MemberTable& Members() const override {
    static const MemberTable table({});
    return table;
  }

 private:
  Dictionary& m_Dictionary;
};

TEST(Dictionary, IsWholeWhenAValueEndsAndComesBack) {
  const auto dictionary = MakeRef<Dictionary>();
  dictionary->Add(u"a", MakeRef<Meddler>(*dictionary));
  dictionary->Remove(u"a");
  EXPECT_EQ(dictionary->Item(u"ended").Long(), 0);
  dictionary->LetItem(u"b", MakeRef<Meddler>(*dictionary));
  dictionary->LetItem(u"b", 1);
  EXPECT_EQ(dictionary->Item(u"ended").Long(), 2);
  dictionary->LetItem(u"b", MakeRef<Meddler>(*dictionary));
  dictionary->RemoveAll();
  EXPECT_EQ(Listed(dictionary->Keys()), "[ended]");
}

TEST(Dictionary, IsReachedByName) {
  const Ref<Object> object = MakeRef<Dictionary>();
  CallMethod(*object, u"add", {u"a", 1});
  LetProperty(*object, u"Item", 2, {u"b"});
  LetProperty(*object, u"Key", u"c", {u"a"});
  EXPECT_EQ(Listed(CallMethod(*object, u"KEYS")), "[c][b]");
  EXPECT_EQ(GetProperty(*object, u"Count").Type(), VarType::Long);
  EXPECT_TRUE(CallMethod(*object, u"Exists", {u"b"}).Boolean());
  EXPECT_EQ(object->DefaultMember(), object->FindMember(u"Item"));
  EXPECT_EQ(object->TypeName(), u"Dictionary");
  EXPECT_EQ(ErrorOf([&] { CallMethod(*object, u"Add", {u"x"}); }), 450);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*object, u"Exists"); }), 450);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*object, u"Key", {u"c"}); }), 438);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*object, u"Keys", {0}); }), 450);
}

}  // namespace
}  // namespace cardwright::scripting
