// SPDX-License-Identifier: MIT
#include "scripting/RegExpRows.h"

namespace cardwright::scripting {
namespace {

TEST(RegExpClass, HoldsCharactersAndRanges) {
  CheckRows({
      {u"[abc]", "g", u"xcbz", "1:c 2:b"},
      {u"[a-c]+", "", u"xabcd", "1:abc"},
      {u"[^a-c]+", "", u"abxyc", "2:xy"},
      {u"[a-cx-z]+", "", u"mayz", "1:ayz"},
      {u"[-a]+", "", u"b-a", "1:-a"},
      {u"[a-]+", "", u"b-a", "1:-a"},
      {u"[^-a]", "", u"-ab", "2:b"},
      {u"[a-a]", "", u"a", "0:a"},
      {u"[--/]+", "", u"a-./b", "1:-./"},
      {u"[+--]+", "", u"a+,-b", "1:+,-"},
      {u"[.*+?]+", "", u"a.*+?b", "1:.*+?"},
      {u"[a^]+", "", u"b^a", "1:^a"},
      {u"[(]", "", u"(", "0:("},
      {u"[|)]+", "", u"a|)b", "1:|)"},
      {u"[[]", "", u"[", "0:["},
      {u"[[a]+", "", u"[a[", "0:[a["},
      {u"[a[]", "", u"[", "0:["},
      {u"[\\]]", "", u"]", "0:]"},
      {u"[\\[\\]]+", "", u"a[]", "1:[]"},
      {u"[$]", "", u"a$", "1:$"},
      {u"[\\^a]+", "", u"^a", "0:^a"},
      {u"[\\\\]", "", u"\\", "0:\\"},
      {u"[\\-]", "", u"-", "0:-"},
      {u"[a\\-z]+", "", u"m-az", "1:-az"},
      {u"[{}]", "", u"}", "0:}"},
      {u"[ -~]+", "", u"\x1F !~\x7F", "1: !~"},
      {u"[\u0400-\u04FF]+", "", u"ab\u0414\u0434", "2:\u0414\u0434"},
      {u"[^\\uFFFF]", "", u"\uFFFF", "-"},
      {u"[\\uD800-\\uDFFF]", "g", u"\U0001F600", "0:\xEF\xBF\xBD 1:\xEF\xBF\xBD"},
  });
}

TEST(RegExpClass, MayBeEmptyOrAll) {
  CheckRows({
      {u"[]", "", u"a]", "-"},
      {u"[]a", "", u"a", "-"},
      {u"x[]*", "", u"x", "0:x"},
      {u"[]|b", "", u"ab", "1:b"},
      {u"[^]", "", u"\n", "0:\n"},
      {u"a[^]b", "", u"a\nb", "0:a\nb"},
      {u"[^]+", "", u"a\r\n\u2028b", "0:a\r\n\u2028b"},
      {u"[]]", "", u"]", "-"},
      {u"[^]]", "", u"x]", "0:x]"},
  });
}

TEST(RegExpClass, TakesASetBesideADashLiterally) {
  CheckRows({
      {u"[\\w-.]+", "", u"!a-b.c!", "1:a-b.c"},
      {u"[\\w-\\.]+", "", u"!a-b.c!", "1:a-b.c"},
      {u"[a-\\d]+", "", u"b-a1", "1:-a1"},
      {u"[\\d-z]+", "", u"a1-zb", "1:1-z"},
      {u"[\\d-\\w]+", "", u"!a-1", "1:a-1"},
      {u"[\\s-]+", "", u"a - b", "1: - "},
      {u"[\\w-a-z]+", "", u"!a-z", "1:a-z"},
      {u"^[\\w-\\.]+@([\\w-]+\\.)+[\\w-]{2,4}$", "", u"j.doe-x@mail.example.com",
       "0:j.doe-x@mail.example.com(example.)"},
  });
}

TEST(RegExpClass, HasItsOwnMeaningOfSomeEscapes) {
  CheckRows({
      {u"[\\b]", "", u"a\b", "1:\b"},
      {u"[a-c\\b]+", "", u"\bab", "0:\bab"},
      {u"[\\B]", "", u"B", "0:B"},
      {u"[\\c]+", "", u"\\c", "0:\\c"},
      {u"[\\Qa]+", "", u"Qa", "0:Qa"},
      {u"[\\E]", "", u"E", "0:E"},
      {u"[\\R\\N\\X]+", "", u"RNX", "0:RNX"},
      {u"[\\p{L}]+", "", u"{Lp}x", "0:{Lp}"},
      {u"[[:alpha:]]", "", u":]", "0::]"},
      {u"[[:alpha:]]", "", u"b]", "-"},
      {u"[[.a.]]", "", u".]", "0:.]"},
      {u"[[=a=]]", "", u"=]", "0:=]"},
      {u"[[:digit:]", "", u"5d", "1:d"},
      {u"[\\x4-]+", "", u"x4-", "0:x4-"},
  });
}

TEST(RegExpAssertion, AnchorsAtTheEndsOfTheText) {
  CheckRows({
      {u"^a", "", u"aa", "0:a"},
      {u"^a", "g", u"aa", "0:a"},
      {u"a$", "", u"aa", "1:a"},
      {u"a$", "", u"a\n", "-"},
      {u"a$", "", u"a\r\n", "-"},
      {u"^b", "", u"a\nb", "-"},
      {u"^$", "", u"", "0:"},
      {u"^$", "", u"\n", "-"},
      {u"^", "g", u"a\nb", "0:"},
      {u"$", "g", u"a\nb", "3:"},
      {u"a^b", "", u"a^b", "-"},
      {u"a$b", "", u"a$b", "-"},
      {u"(^a)", "", u"a", "0:a(a)"},
      {u"(?:^|,)x", "g", u"x,x", "0:x 1:,x"},
      {u"x(?:$|,)", "g", u"x,x", "0:x, 2:x"},
      {u"^^a$$", "", u"a", "0:a"},
  });
}

TEST(RegExpAssertion, AnchorsAtEachLineWithMultiLine) {
  CheckRows({
      {u"^.", "gm", u"ab\ncd", "0:a 3:c"},
      {u".$", "gm", u"ab\ncd", "1:b 4:d"},
      {u"^.*$", "gm", u"one\ntwo\n", "0:one 4:two 8:"},
      {u"^b", "m", u"a\rb", "2:b"},
      {u"^b", "m", u"a\u2028b", "2:b"},
      {u"^b", "m", u"a\u2029b", "2:b"},
      {u"^b", "m", u"a\u0085b", "-"},
      {u"a$", "m", u"a\r\n", "0:a"},
      {u"a$", "m", u"a\u2028", "0:a"},
      {u"^\\w+$", "gm", u"one\r\ntwo\r\n", "0:one 5:two"},
      {u"^$", "gm", u"a\n\nb", "2:"},
      {u"^", "gm", u"a\nb\n", "0: 2: 4:"},
      {u"$", "gm", u"a\nb", "1: 3:"},
      {u"^", "gm", u"a\r\nb", "0: 2: 3:"},
  });
}

TEST(RegExpAssertion, BoundariesAreThoseOfAsciiWords) {
  CheckRows({
      {u"\\bis\\b", "g", u"this is his", "5:is"},
      {u"\\b", "g", u"ab c", "0: 2: 3: 4:"},
      {u"\\B", "g", u"abc", "1: 2:"},
      {u"\\B", "g", u"", "0:"},
      {u"\\b", "", u"", "-"},
      {u"\\b", "g", u"a\u00E9b", "0: 1: 2: 3:"},
      {u"\\ba", "", u"\u0431a", "1:a"},
      {u"\\Ba", "g", u"aba", "2:a"},
      {u"a\\b\\b", "", u"a", "0:a"},
      {u"\\b\\w", "gi", u"Ab cD", "0:A 3:c"},
      {u"\\b(\\w)\\1\\b", "gi", u"aA \u00E9b bB aab", "0:aA(a) 6:bB(b)"},
      {u"\\b(\\w)\\B\\1", "gi", u"aA", "0:aA(a)"},
      {u"(a)\\b\u00E9\\1", "i", u"A\u00C9a", "0:A\u00C9a(A)"},
  });
}

TEST(RegExpAssertion, LooksAhead) {
  CheckRows({
      {u"a(?=b)", "g", u"abac", "0:a"},
      {u"a(?!b)", "g", u"abac", "2:a"},
      {u"(?=(a+))", "", u"baaabac", "1:(aaa)"},
      {u"(?=.*\\d)(?=.*[a-z])\\w{4,}", "", u"ab12", "0:ab12"},
      {u"(?!.*\\d)\\w+", "", u"ab12", "-"},
      {u"(?!)", "", u"a", "-"},
      {u"(?=)", "", u"a", "0:"},
      {u"(?!foo)...", "", u"foobar", "1:oob"},
      {u"\\w+(?=;)", "g", u"ab;cd;ef", "0:ab 3:cd"},
      {u"(?=a(?=b))ab", "", u"ab", "0:ab"},
      {u"(?!(a)b)a", "", u"abac", "2:a(~)"},
      {u"\\B(?=(\\d{3})+$)", "g", u"1234567", "1:(567) 4:(567)"},
      {u"(?=a)?b", "", u"b", "0:b"},
      {u"(?=a){2}a", "", u"a", "0:a"},
  });
}

TEST(RegExpIgnoreCase, CoversLettersBeyondAscii) {
  CheckRows({
      {u"abc", "i", u"xABc", "1:ABc"},
      {u"[a-c]+", "i", u"xABc", "1:ABc"},
      {u"[^a-c]+", "i", u"AxBc", "1:x"},
      {u"[B-c]+", "i", u"zbCz", "0:zbCz"},
      {u"\u00E9", "i", u"\u00C9", "0:\u00C9"},
      {u"\u00C9", "i", u"\u00E9", "0:\u00E9"},
      {u"\u00E9", "", u"\u00C9", "-"},
      {u"[\u00E0-\u00F6]+", "i", u"x\u00C0\u00D6\u00E9", "1:\u00C0\u00D6\u00E9"},
      {u"[^\u00E9]", "i", u"\u00C9", "-"},
      {u"\u043F\u0440\u0438\u0432\u0435\u0442", "i", u"\u041F\u0420\u0418\u0412\u0415\u0422",
       "0:\u041F\u0420\u0418\u0412\u0415\u0422"},
      {u"[\u0430-\u044F]+", "i", u"\u0414\u0416", "0:\u0414\u0416"},
      {u"\u03C3", "gi", u"\u03A3\u03C3\u03C2", "0:\u03A3 1:\u03C3 2:\u03C2"},
      {u"[\u03C2]", "i", u"\u03A3", "0:\u03A3"},
      {u"\u00FF", "i", u"\u0178", "0:\u0178"},
      {u"k", "gi", u"K\u212A", "0:K"},
      {u"s", "gi", u"S\u017F", "0:S"},
      {u"\u0131", "i", u"I", "-"},
      {u"\u00DF", "i", u"SS", "-"},
      {u"\\x41", "i", u"a", "0:a"},
      {u"\\u00c9", "i", u"\u00E9", "0:\u00E9"},
      {u"[\\x41]", "i", u"a", "0:a"},
      {u"(a)\\1", "i", u"aA", "0:aA(a)"},
      {u"(\u00E9)\\1", "i", u"\u00E9\u00C9", "0:\u00E9\u00C9(\u00E9)"},
      {u"(\u0434)\\1", "i", u"\u0434\u0414", "0:\u0434\u0414(\u0434)"},
      {u"([a-z])\\1x", "gi", u"aAX bbx cdx", "0:aAX(a) 4:bbx(b)"},
      {u"(a)\\1", "", u"aA", "-"},
      {u"_", "i", u"_", "0:_"},
      {u"[@-`]+", "i", u"amz", "0:amz"},
      {u"[Z-a]", "gi", u"z_A", "0:z 1:_ 2:A"},
  });
}

TEST(RegExpErrors, HaveTheLanguagesNumbers) {
  CheckRows({
      {u"*", "", u"", "error 5018"},
      {u"+a", "", u"", "error 5018"},
      {u"?", "", u"", "error 5018"},
      {u"a**", "", u"", "error 5018"},
      {u"a++", "", u"", "error 5018"},
      {u"a*+", "", u"", "error 5018"},
      {u"a?+", "", u"", "error 5018"},
      {u"a???", "", u"", "error 5018"},
      {u"a{1}{2}", "", u"", "error 5018"},
      {u"a{1}+", "", u"", "error 5018"},
      {u"{1}", "", u"", "error 5018"},
      {u"a|*", "", u"", "error 5018"},
      {u"(*a)", "", u"", "error 5018"},
      {u"^*", "", u"", "error 5018"},
      {u"$+", "", u"", "error 5018"},
      {u"\\b*", "", u"", "error 5018"},
      {u"\\B{2}", "", u"", "error 5018"},
      {u"(", "", u"", "error 5020"},
      {u"(a", "", u"", "error 5020"},
      {u"(a(b)", "", u"", "error 5020"},
      {u"(?:a", "", u"", "error 5020"},
      {u"(?=a", "", u"", "error 5020"},
      {u"a)", "", u"", "error 5017"},
      {u")", "", u"", "error 5017"},
      {u"(a))", "", u"", "error 5017"},
      {u"[a", "", u"", "error 5019"},
      {u"[", "", u"", "error 5019"},
      {u"[^", "", u"", "error 5019"},
      {u"[a-", "", u"", "error 5019"},
      {u"[a\\", "", u"", "error 5019"},
      {u"[a\\]", "", u"", "error 5019"},
      {u"([)", "", u"", "error 5019"},
      {u"[z-a]", "", u"", "error 5021"},
      {u"[b-a", "", u"", "error 5021"},
      {u"[\\x42-\\x41]", "", u"", "error 5021"},
      {u"[a--]", "", u"", "error 5021"},
      {u"\\", "", u"", "error 5017"},
      {u"a\\", "", u"", "error 5017"},
      {u"a{2,1}", "", u"", "error 5017"},
      {u"a{65536}", "", u"", "error 7"},
      {u"a{99999999999999999999}", "", u"", "error 7"},
  });
}

TEST(RegExpErrors, RefuseWhatOtherDialectsKnow) {
  CheckRows({
      {u"(?<=a)b", "", u"ab", "error 5018"},   {u"(?<!a)b", "", u"ab", "error 5018"},
      {u"(?<name>a)", "", u"a", "error 5018"}, {u"(?P<name>a)", "", u"a", "error 5018"},
      {u"(?'name'a)", "", u"a", "error 5018"}, {u"(?i)a", "", u"A", "error 5018"},
      {u"(?i:a)", "", u"A", "error 5018"},     {u"(?>a)", "", u"a", "error 5018"},
      {u"(?|a)", "", u"a", "error 5018"},      {u"(?#comment)a", "", u"a", "error 5018"},
      {u"(?R)", "", u"a", "error 5018"},       {u"(?1)(a)", "", u"a", "error 5018"},
      {u"(?(1)a|b)", "", u"a", "error 5018"},  {u"(?C)a", "", u"a", "error 5018"},
      {u"(?", "", u"", "error 5018"},          {u"(*FAIL)", "", u"", "error 5018"},
      {u"(*UTF)a", "", u"a", "error 5018"},    {u"(*LIMIT_MATCH=1)a", "", u"a", "error 5018"},
      {u"(*ACCEPT)", "", u"", "error 5018"},
  });
}

}  // namespace
}  // namespace cardwright::scripting
