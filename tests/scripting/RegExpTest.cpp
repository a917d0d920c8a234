// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExp.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "cardwright/automation/MemoryBudget.h"
#include "scripting/RegExpRows.h"

namespace cardwright::scripting {
namespace {

TEST(RegExpReplace, KnowsTheSignsOfTheReplacement) {
  CheckRows({
      {u"b", "", u"abcb", u"x", "axcb"},
      {u"b", "g", u"abcb", u"x", "axcx"},
      {u"b", "g", u"abcb", u"", "ac"},
      {u"z", "g", u"abcb", u"x", "abcb"},
      {u"", "", u"ab", u"-", "-ab"},
      {u"", "g", u"ab", u"-", "-a-b-"},
      {u"x*", "g", u"abc", u"-", "-a-b-c-"},
      {u"a*", "g", u"baac", u"-", "-b--c-"},
      {u"$", "", u"ab", u"!", "ab!"},
      {u"(\\w+) (\\w+)", "", u"John Smith", u"$2, $1", "Smith, John"},
      {u"b", "", u"abc", u"[$&]", "a[b]c"},
      {u"b", "", u"abc", u"[$`]", "a[a]c"},
      {u"b", "", u"abc", u"[$']", "a[c]c"},
      {u"b", "", u"abc", u"$$", "a$c"},
      {u"b", "", u"abc", u"$$1", "a$1c"},
      {u"b", "", u"abc", u"$$$&", "a$bc"},
      {u"b", "", u"abc", u"$", "a$c"},
      {u"b", "", u"abc", u"$x", "a$xc"},
      {u"b", "", u"abc", u"$ $", "a$ $c"},
      {u"b", "", u"abc", u"$0", "a$0c"},
      {u"b", "", u"abc", u"$00", "a$00c"},
      {u"b", "", u"abc", u"$1", "a$1c"},
      {u"(b)", "", u"abc", u"$2", "a$2c"},
      {u"(b)", "", u"abc", u"$01", "abc"},
      {u"(b)", "", u"abc", u"$10", "ab0c"},
      {u"(b)", "", u"abc", u"$001", "a$001c"},
      {u"(b)", "", u"abc", u"$99", "a$99c"},
      {u"(b)", "", u"abc", u"$1$1", "abbc"},
      {u"(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)(k)", "", u"abcdefghijk", u"$11-$10-$1-$2", "k-j-a-b"},
      {u"(a)|(b)", "g", u"ab", u"[$1|$2]", "[a|][|b]"},
      {u"b", "", u"abc", u"$_$+", "a$_$+c"},
      {u"b", "", u"abc", u"\\1\\n", "a\\1\\nc"},
      {u"b", "", u"abc", u"${1}$<x>", "a${1}$<x>c"},
      {u"\\s+", "g", u"  a  b ", u" ", " a b "},
      {u"^\\s+|\\s+$", "g", u"  trim me  ", u"", "trim me"},
      {u"^", "gm", u"a\nb", u"> ", "> a\n> b"},
      {u"\\B(?=(\\d{3})+$)", "g", u"1234567", u",", "1,234,567"},
      {u"<[^>]*>", "g", u"<b>bold</b>", u"", "bold"},
      {u"(\\d+)/(\\d+)/(\\d+)", "g", u"1/2/2026", u"$3-$1-$2", "2026-1-2"},
      {u"b", "gi", u"aBcb", u"<$&>", "a<B>c<b>"},
      {u"(", "", u"a", u"x", "error 5020"},
  });
}

TEST(RegExpReplace, KeepsToTheLimitOfTexts) {
  const auto expression = MakeRef<RegExp>(100);
  expression->SetPattern(u"a");
  expression->SetGlobal(true);
  EXPECT_EQ(expression->Replace(u"aaaaaaaaaa", u"1234567890").Size(), 100u);
  try {
    expression->Replace(u"aaaaaaaaaab", u"1234567890");
    FAIL() << "no error";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 14);
  }
}

TEST(RegExpObject, HasItsMembersByName) {
  const Ref<Object> expression = MakeRef<RegExp>();
  EXPECT_EQ(expression->TypeName(), u"IRegExp2");
  EXPECT_EQ(GetProperty(*expression, u"Pattern").String(), u"");
  EXPECT_FALSE(GetProperty(*expression, u"Global").Boolean());
  EXPECT_FALSE(GetProperty(*expression, u"IgnoreCase").Boolean());
  EXPECT_FALSE(GetProperty(*expression, u"Multiline").Boolean());
  LetProperty(*expression, u"pattern", u"(b)(c)?");
  LetProperty(*expression, u"global", 1);
  LetProperty(*expression, u"ignorecase", u"True");
  EXPECT_TRUE(GetProperty(*expression, u"Global").Boolean());
  EXPECT_TRUE(CallMethod(*expression, u"Test", {u"aBc"}).Boolean());

  const Variant matches = CallMethod(*expression, u"Execute", {u"aBcb"});
  EXPECT_EQ(matches.ObjectPtr()->TypeName(), u"IMatchCollection2");
  EXPECT_EQ(GetProperty(*matches.ObjectPtr(), u"Count").Long(), 2);
  const Variant match = GetProperty(*matches.ObjectPtr(), u"Item", {1});
  EXPECT_EQ(match.ObjectPtr()->TypeName(), u"IMatch2");
  EXPECT_EQ(DefaultValue(match).String(), u"b");
  EXPECT_EQ(GetProperty(*match.ObjectPtr(), u"FirstIndex").Long(), 3);
  EXPECT_EQ(GetProperty(*match.ObjectPtr(), u"Length").Long(), 1);
  const Variant groups = GetProperty(*match.ObjectPtr(), u"SubMatches");
  EXPECT_EQ(groups.ObjectPtr()->TypeName(), u"ISubMatches");
  EXPECT_EQ(GetProperty(*groups.ObjectPtr(), u"Count").Long(), 2);
  EXPECT_EQ(GetProperty(*match.ObjectPtr(), u"SubMatches", {0}).String(), u"b");
  EXPECT_TRUE(GetProperty(*match.ObjectPtr(), u"SubMatches", {1}).IsEmpty());
  EXPECT_EQ(CallMethod(*expression, u"Replace", {u"abc", u"x"}).String(), u"ax");
}

int ErrorOf(const Ref<Object>& object, std::u16string_view name, std::initializer_list<Variant> args) {
  try {
    std::vector<Variant> values(args);
    object->Invoke(object->FindMember(name), CallKind::MethodOrGet, values);
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(RegExpObject, ConvertsItsArguments) {
  const Ref<Object> expression = MakeRef<RegExp>();
  LetProperty(*expression, u"Pattern", 12);
  EXPECT_TRUE(CallMethod(*expression, u"Test", {3123}).Boolean());
  EXPECT_FALSE(CallMethod(*expression, u"Test", {Variant()}).Boolean());
  EXPECT_EQ(CallMethod(*expression, u"Replace", {312, 4}).String(), u"34");
  EXPECT_EQ(ErrorOf(expression, u"Test", {Variant::Null()}), 94);
  EXPECT_EQ(ErrorOf(expression, u"Test", {Variant::Nothing()}), 91);
  EXPECT_EQ(ErrorOf(expression, u"Test", {MakeRef<Array>()}), 13);
  EXPECT_EQ(ErrorOf(expression, u"Test", {expression}), 438);
  EXPECT_EQ(ErrorOf(expression, u"Test", {}), 450);
  EXPECT_EQ(ErrorOf(expression, u"Test", {1, 2}), 450);
  EXPECT_EQ(ErrorOf(expression, u"Replace", {u"a"}), 450);
  EXPECT_EQ(ErrorOf(expression, u"Replace", {u"a", Variant::Null()}), 94);
  EXPECT_EQ(ErrorOf(expression, u"Match", {u"a"}), 438);
  EXPECT_THROW(LetProperty(*expression, u"Global", u"yes"), Error);
}

TEST(RegExpObject, AnswersMatchesOutsideWithError5) {
  const auto matches = Make(u"(a)", "")->Execute(u"a");
  const Ref<Object> groups = matches->Item(0)->SubMatches();
  for (const int index : {-2147483647, -1, 1, 2147483647}) {
    EXPECT_EQ(ErrorOf(matches, u"Item", {index}), 5);
    EXPECT_EQ(ErrorOf(groups, u"Item", {index}), 5);
  }
}

TEST(RegExpObject, ReadsItsPatternWhenItIsUsed) {
  const auto expression = MakeRef<RegExp>();
  expression->SetPattern(u"(");
  EXPECT_EQ(expression->Pattern(), u"(");
  EXPECT_THROW(expression->Test(u"("), Error);
  EXPECT_THROW(expression->Execute(u"("), Error);
  EXPECT_THROW(expression->Replace(u"(", u""), Error);
  expression->SetPattern(u"\\(");
  EXPECT_TRUE(expression->Test(u"("));
}

TEST(RegExpObject, FollowsEveryChangeOfPatternAndFlags) {
  const auto expression = Make(u"^a", "");
  EXPECT_FALSE(expression->Test(u"B\nA"));
  expression->SetIgnoreCase(true);
  EXPECT_FALSE(expression->Test(u"B\nA"));
  expression->SetMultiLine(true);
  EXPECT_TRUE(expression->Test(u"B\nA"));
  expression->SetIgnoreCase(false);
  EXPECT_FALSE(expression->Test(u"B\nA"));
  expression->SetPattern(u"^A");
  EXPECT_TRUE(expression->Test(u"B\nA"));
  expression->SetMultiLine(false);
  EXPECT_FALSE(expression->Test(u"B\nA"));
}

TEST(RegExpObject, StartsEachSearchAtTheStart) {
  const auto expression = Make(u"a", "g");
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(expression->Test(u"ba"));
    EXPECT_EQ(expression->Execute(u"ba")->Count(), 1);
  }
}

TEST(RegExpObject, KeepsMatchesWhenItChanges) {
  auto expression = Make(u"\\w(\\d)", "g");
  const auto matches = expression->Execute(u"a1 b2");
  expression->SetPattern(u"x");
  expression->Execute(u"xxx");
  expression = nullptr;
  EXPECT_EQ(matches->Count(), 2);
  EXPECT_EQ(ShowMatch(*matches->Item(1)), "3:b2(2)");
}

TEST(RegExpObject, AnswersTheSameMatchEachTime) {
  const auto matches = Make(u"a", "g")->Execute(u"aa");
  EXPECT_EQ(matches->Item(1), matches->Item(1));
  EXPECT_NE(matches->Item(0), matches->Item(1));
}

TEST(RegExpObject, GoesThroughMatchesAndGroups) {
  const auto matches = Make(u"(\\w)(\\d)?", "g")->Execute(u"a1 b");
  std::string shown;
  Variant match;
  for (const auto walk = matches->Enumerate(); walk->Next(match);) {
    shown += ToText(match).ToUtf8() + '[';
    Variant group;
    const auto groups = static_cast<RegExpMatch&>(*match.ObjectPtr()).SubMatches();
    for (const auto inner = groups->Enumerate(); inner->Next(group);) shown += ToText(group).ToUtf8() + ';';
    shown += ']';
  }
  EXPECT_EQ(shown, "a1[a;1;]b[b;;]");
}

Text Repeated(std::u16string_view part, std::size_t count) {
  Text result;
  for (std::size_t i = 0; i < count; ++i) result += part;
  return result;
}

TEST(RegExpLimits, GiveUpSearchesThatWouldNotEnd) {
  const Text many = Repeated(u"a", 50000);
  const struct {
    Text pattern;
    Text text;
  } rows[] = {
      {u"(a+)+$", Repeated(u"a", 40) + u"b"},
      {u"(a|aa)+$", Repeated(u"a", 80) + u"b"},
      {u"(\\w+\\s?)*$", Repeated(u"word ", 20) + u"!"},
      {u"(a*)*[bc]", many},
      {u"a*a*a*[bc]", many},
      {Repeated(u"a?", 28) + Repeated(u"a", 28), Repeated(u"a", 28)},
      {u"(.*)\\1\\1[bc]", many},
      {u"(?=(a*)*b)", many},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.pattern.ToUtf8());
    EXPECT_EQ(Matches(row.pattern, "g", row.text), "error 17");
  }
}

TEST(RegExpLimits, StopAfterAboutASecond) {
  const auto expression = Make(u"a*a*[bc]", "g");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_THROW(expression->Execute(Repeated(u"a", 1000000)), Error);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(RegExpLimits, AllowLongRunsOfGroups) {
  const Text text = u"\"" + Repeated(u"ab\\\"", 50000) + u"\"";
  const auto matches = Make(u"\"(?:[^\"\\\\]|\\\\.)*\"", "")->Execute(text);
  ASSERT_EQ(matches->Count(), 1);
  EXPECT_EQ(matches->Item(0)->Length(), 200002);
}

TEST(RegExpLimits, RefusePatternsThatAreTooLarge) {
  EXPECT_EQ(Matches(Repeated(u"a", 70000), "", u"a"), "error 7");
  EXPECT_EQ(Matches(Repeated(u"[a-c]", 13000), "i", u"a"), "error 7");
  EXPECT_EQ(Matches(Repeated(u"(", 1000) + Repeated(u")", 1000), "", u"a"), "error 7");
  EXPECT_EQ(Matches(u"(((a{99}){99}){99}){99}", "", u"a"), "error 7");
  EXPECT_EQ(Matches(Repeated(u"(", 200) + Repeated(u")", 200), "", u"a").substr(0, 3), "0:(");
}

TEST(RegExpLimits, CountMemoryAgainstTheBudget) {
  const std::size_t before = MemoryBudget::Used();
  {
    const auto expression = Make(u"", "g");
    const auto matches = expression->Execute(Repeated(u"a", 1000));
    EXPECT_EQ(matches->Count(), 1001);
    EXPECT_GT(MemoryBudget::Used(), before + 8000);
    const Text text = Repeated(u"a", 30000);
    const MemoryBudget::Limit limit(100000);
    EXPECT_EQ(Matches(u"", "g", text), "error 7");
  }
  EXPECT_EQ(MemoryBudget::Used(), before);
}

}  // namespace
}  // namespace cardwright::scripting
