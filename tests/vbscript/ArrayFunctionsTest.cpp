// SPDX-License-Identifier: MIT
#include "automation/Printing.h"
#include "cardwright/automation/Array.h"
#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

Variant List(std::vector<Variant> values) { return Array::FromValues(std::move(values)); }

// The values of the array that a call answers, between brackets.
std::string Listed(LibraryCalls& calls, std::u16string_view name, std::vector<Variant> args) {
  try {
    const Variant list = calls.Call(name, std::move(args));
    std::string text;
    for (const Variant& value : list.ArrayPtr()->Values()) text += "[" + ToText(value).ToUtf8() + "]";
    return text;
  } catch (const Error& error) {
    return "Error " + std::to_string(error.Number());
  }
}

struct ArrayRow {
  const char16_t* name;
  std::vector<Variant> args;
  const char* answer;
};

class ListingFunction : public testing::TestWithParam<ArrayRow> {};

TEST_P(ListingFunction, Answers) {
  LibraryCalls calls;
  EXPECT_EQ(Listed(calls, GetParam().name, GetParam().args), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    All, ListingFunction,
    testing::ValuesIn<ArrayRow>({
        {u"Array", {}, ""},
        {u"Array", {1, u"b", 2.5}, "[1][b][2.5]"},
        {u"Split", {u"a b c"}, "[a][b][c]"},
        {u"Split", {u"a,b,c", u","}, "[a][b][c]"},
        {u"Split", {u",a,", u","}, "[][a][]"},
        {u"Split", {u"a--b--c", u"--"}, "[a][b][c]"},
        {u"Split", {u"abc", u","}, "[abc]"},
        {u"Split", {u"abc", u""}, "[abc]"},
        {u"Split", {u"", u","}, ""},
        {u"Split", {Variant(), u","}, ""},
        {u"Split", {u"a b c", kMissing, 2}, "[a][b c]"},
        {u"Split", {u"a b c", u" ", -1}, "[a][b][c]"},
        {u"Split", {u"a b c", u" ", 1}, "[a b c]"},
        {u"Split", {u"a b c", u" ", 0}, ""},
        {u"Split", {u"a b c", u" ", 9}, "[a][b][c]"},
        {u"Split", {u"a b c", u" ", -2}, "Error 5"},
        {u"Split", {u"aXbxc", u"x"}, "[aXb][c]"},
        {u"Split", {u"aXbxc", u"x", -1, 1}, "[a][b][c]"},
        {u"Split", {u"aXbxc", u"x", -1, 2}, "Error 5"},
        {u"Split", {kNull}, "Error 94"},
        {u"Split", {u"a", kNull}, "Error 94"},
        {u"Split", {u"a", u",", kNull}, "Error 94"},
        {u"Split", {List({})}, "Error 13"},
        {u"Split", {10203, 0}, "[1][2][3]"},
        {u"Filter", {List({u"one", u"two", u"three"}), u"o"}, "[one][two]"},
        {u"Filter", {List({u"one", u"two", u"three"}), u"o", false}, "[three]"},
        {u"Filter", {List({u"one", u"two", u"three"}), u"O"}, ""},
        {u"Filter", {List({u"one", u"two", u"three"}), u"O", true, 1}, "[one][two]"},
        {u"Filter", {List({u"one", u"two"}), u"O", kMissing, 1}, "[one][two]"},
        {u"Filter", {List({u"one", u"two"}), u""}, "[one][two]"},
        {u"Filter", {List({12, 3, 21}), 1}, "[12][21]"},
        {u"Filter", {List({}), u"a"}, ""},
        {u"Filter", {List({u"a"}), u"a", true, 2}, "Error 5"},
        {u"Filter", {List({u"a"}), kNull}, "Error 94"},
        {u"Filter", {List({kNull}), u"a"}, "Error 94"},
        {u"Filter", {kNull, u"a"}, "Error 94"},
        {u"Filter", {u"abc", u"a"}, "Error 13"},
        {u"Filter", {MakeRef<Array>(std::vector<Bounds>{{0, 1}, {0, 1}}), u"a"}, "Error 13"},
        {u"Filter", {List({u"a"}), u"a", u"maybe"}, "Error 13"},
    }));

class ArrayFunction : public testing::TestWithParam<ArrayRow> {};

TEST_P(ArrayFunction, Answers) {
  LibraryCalls calls;
  EXPECT_EQ(calls.Answer(GetParam().name, GetParam().args), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    All, ArrayFunction,
    testing::ValuesIn<ArrayRow>({
        {u"UBound", {List({1, 2, 3})}, "Long 2"},
        {u"UBound", {List({})}, "Long -1"},
        {u"LBound", {List({1, 2, 3})}, "Long 0"},
        {u"LBound", {List({})}, "Long 0"},
        {u"UBound", {MakeRef<Array>(std::vector<Bounds>{{0, 4}, {0, 7}}), 2}, "Long 7"},
        {u"UBound", {MakeRef<Array>(std::vector<Bounds>{{0, 4}, {0, 7}})}, "Long 4"},
        {u"UBound", {MakeRef<Array>(std::vector<Bounds>{{0, 4}, {0, 7}}), kMissing}, "Long 4"},
        {u"UBound", {List({1}), 0}, "Error 9"},
        {u"UBound", {List({1}), 2}, "Error 9"},
        {u"LBound", {List({1}), -1}, "Error 9"},
        {u"UBound", {List({1}), kNull}, "Error 94"},
        {u"UBound", {List({1}), u"x"}, "Error 13"},
        {u"UBound", {MakeRef<Array>()}, "Error 9"},
        {u"UBound", {Variant()}, "Error 13"},
        {u"UBound", {kNull}, "Error 13"},
        {u"UBound", {u"abc"}, "Error 13"},
        {u"LBound", {Variant::Nothing()}, "Error 13"},
        {u"UBound", {kMissing}, "Error 13"},
        {u"Join", {List({u"a", u"b", u"c"})}, "String a b c"},
        {u"Join", {List({u"a", u"b", u"c"}), u""}, "String abc"},
        {u"Join", {List({u"a", u"b", u"c"}), u", "}, "String a, b, c"},
        {u"Join", {List({u"a", u"b"}), kMissing}, "String a b"},
        {u"Join", {List({1, 2.5, true, Variant()}), u"|"}, "String 1|2.5|True|"},
        {u"Join", {List({u"", u""}), u"-"}, "String -"},
        {u"Join", {List({})}, "String "},
        {u"Join", {List({u"a"})}, "String a"},
        {u"Join", {List({u"a", kNull})}, "Error 94"},
        {u"Join", {List({List({})})}, "Error 13"},
        {u"Join", {List({u"a"}), kNull}, "Error 94"},
        {u"Join", {kNull}, "Error 94"},
        {u"Join", {u"abc"}, "Error 13"},
        {u"Join", {Variant()}, "Error 13"},
        {u"Join", {MakeRef<Array>()}, "Error 9"},
        {u"Join", {MakeRef<Array>(std::vector<Bounds>{{0, 1}, {0, 1}})}, "Error 13"},
    }));

TEST(ArrayFunctions, LeaveTheArrayOfTheCallerAlone) {
  LibraryCalls calls;
  const Variant numbers = List({1, 2});
  EXPECT_EQ(calls.Answer(u"Join", {numbers}), "String 1 2");
  EXPECT_EQ(numbers.ArrayPtr()->Values()[0].Type(), VarType::Long);
}

TEST(ArrayFunctions, JoinWhatTheySplit) {
  LibraryCalls calls;
  std::u16string text;
  for (int i = 0; i < 10000; ++i) text += i % 3 == 0 ? u"longer piece," : u"x,";
  const Variant pieces = calls.Call(u"Split", {Text(text), u","});
  EXPECT_EQ(pieces.ArrayPtr()->Values().size(), 10001u);
  EXPECT_EQ(calls.Call(u"Join", {pieces, u","}).StringView(), text);
}

TEST(ArrayFunctions, RefuseAJoinedTextBeyondTheLimit) {
  LibraryCalls calls;
  calls.Context().maxTextUnits = 4;
  EXPECT_EQ(calls.Answer(u"Join", {List({u"ab", u"c"})}), "String ab c");
  EXPECT_EQ(calls.Answer(u"Join", {List({u"ab", u"cd"})}), "Error 14");
}

}  // namespace
}  // namespace cardwright::vbscript
