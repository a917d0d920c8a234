// SPDX-License-Identifier: MIT
#include <string_view>

#include "scripting/RegExpRows.h"

namespace cardwright::scripting {
namespace {

using namespace std::string_view_literals;

TEST(RegExpSyntax, MatchesPlainCharacters) {
  CheckRows({
      {u"b", "", u"abcb", "1:b"},
      {u"b", "g", u"abcb", "1:b 3:b"},
      {u"bc", "", u"abcb", "1:bc"},
      {u"x", "", u"abc", "-"},
      {u"", "", u"abc", "0:"},
      {u"", "g", u"ab", "0: 1: 2:"},
      {u"", "g", u"", "0:"},
      {u"a", "", u"", "-"},
      {u"B", "", u"abc", "-"},
      {u"B", "i", u"abc", "1:b"},
      {u"a b", "", u"a b", "0:a b"},
      {u"a#b", "", u"a#b", "0:a#b"},
      {u"aa", "g", u"aaaaa", "0:aa 2:aa"},
      {u"-_=!@%&:;,<>~\"'/`", "", u"-_=!@%&:;,<>~\"'/`", "0:-_=!@%&:;,<>~\"'/`"},
      {u"\u20AC\xD83D", "", u"1\u20AC\xD83D\xDE00", "1:\u20AC\xEF\xBF\xBD"},
  });
}

TEST(RegExpSyntax, FullStopMatchesAllButLineFeeds) {
  CheckRows({
      {u".", "g", u"a\nb", "0:a 2:b"},
      {u"a.b", "", u"a\nb", "-"},
      {u"a.b", "", u"a\rb", "0:a\rb"},
      {u"a.b", "", u"a\u2028b", "0:a\u2028b"},
      {u"a.b", "", u"a\u2029b", "0:a\u2029b"},
      {u"a.b", "", u"a\vb", "0:a\vb"},
      {u"a.b", "", u"a\fb", "0:a\fb"},
      {u"a.b", "", u"a\u0085b", "0:a\u0085b"},
      {u"a.b", "", u"a\u00E9b", "0:a\u00E9b"},
      {u"a.b", "", u"a\0b"sv, "0:a\0b"sv},
      {u"^..$", "", u"\U0001F600", "0:\U0001F600"},
      {u".*", "", u"one\r\ntwo", "0:one\r"},
  });
}

TEST(RegExpSyntax, AlternativesAreTriedFromTheLeft) {
  CheckRows({
      {u"a|ab", "", u"abc", "0:a"},
      {u"ab|a", "", u"abc", "0:ab"},
      {u"((a)|(ab))((c)|(bc))", "", u"abc", "0:abc(a|a|~|bc|~|bc)"},
      {u"a|b|c", "g", u"cab", "0:c 1:a 2:b"},
      {u"|a", "g", u"a", "0: 1:"},
      {u"a|", "g", u"ab", "0:a 1: 2:"},
      {u"(|a)b", "", u"ab", "0:ab(a)"},
      {u"(?:foo|ba[rz])+", "", u"xfoobarbaz", "1:foobarbaz"},
      {u"x|^a|b$", "g", u"aab", "0:a 2:b"},
  });
}

TEST(RegExpSyntax, QuantifiersTakeAsManyAsTheyCan) {
  CheckRows({
      {u"a*", "", u"aaab", "0:aaa"},
      {u"a*", "", u"b", "0:"},
      {u"a*", "g", u"baac", "0: 1:aa 3: 4:"},
      {u"a+", "g", u"aabaaa", "0:aa 3:aaa"},
      {u"a?", "g", u"ab", "0:a 1: 2:"},
      {u"ab?c", "g", u"acabc", "0:ac 2:abc"},
      {u"a{2}", "g", u"aaaaa", "0:aa 2:aa"},
      {u"a{2,}", "", u"aaaaa", "0:aaaaa"},
      {u"a{2,3}", "g", u"aaaaa", "0:aaa 3:aa"},
      {u"a{0}", "", u"a", "0:"},
      {u"a{0,0}b", "", u"ab", "1:b"},
      {u"a{1}", "", u"a", "0:a"},
      {u"a{03}", "", u"aaaa", "0:aaa"},
      {u"(ab){2}", "", u"ababab", "0:abab(ab)"},
      {u"[ab]{3}", "", u"cabba", "1:abb"},
      {u"\\d{4}-\\d{2}", "", u"on 2026-05-01", "3:2026-05"},
      {u"a[a-z]{2,4}", "", u"abcdefghi", "0:abcde"},
      {u".{2}", "g", u"abcde", "0:ab 2:cd"},
      {u"(a*)b", "", u"aab", "0:aab(aa)"},
      {u"(?=a)*", "", u"b", "0:"},
  });
}

TEST(RegExpSyntax, LazyQuantifiersTakeAsFewAsTheyCan) {
  CheckRows({
      {u"a*?", "", u"aaa", "0:"},
      {u"a+?", "", u"aaa", "0:a"},
      {u"a??b", "", u"ab", "0:ab"},
      {u"a??", "", u"a", "0:"},
      {u"a[a-z]{2,4}?", "", u"abcdefghi", "0:abc"},
      {u"a{2}?", "", u"aaa", "0:aa"},
      {u"a{2,}?", "", u"aaaa", "0:aa"},
      {u"<.+?>", "g", u"<b>x</b>", "0:<b> 4:</b>"},
      {u"<.+>", "g", u"<b>x</b>", "0:<b>x</b>"},
      {u"(a+?)(a*)", "", u"aaa", "0:aaa(a|aa)"},
      {u"(.*?)a(?!(a+)b\\2c)\\2(.*)", "", u"baaabaac", "0:baaabaac(ba|~|abaac)"},
      {u"(?:ab)*?c", "", u"ababc", "0:ababc"},
  });
}

TEST(RegExpSyntax, BracesThatAreNoCountAreCharacters) {
  CheckRows({
      {u"a{", "", u"a{", "0:a{"},
      {u"{", "", u"a{b", "1:{"},
      {u"a{}", "", u"a{}", "0:a{}"},
      {u"a{,5}", "", u"a{,5}", "0:a{,5}"},
      {u"a{1", "", u"a{1", "0:a{1"},
      {u"a{1,", "", u"a{1,", "0:a{1,"},
      {u"a{1,2", "", u"a{1,2", "0:a{1,2"},
      {u"a{x}", "", u"a{x}", "0:a{x}"},
      {u"a{ 2}", "", u"a{ 2}", "0:a{ 2}"},
      {u"a{2 }", "", u"a{2 }", "0:a{2 }"},
      {u"a{-1}", "", u"a{-1}", "0:a{-1}"},
      {u"a{1,2,3}", "", u"a{1,2,3}", "0:a{1,2,3}"},
      {u"}", "", u"}", "0:}"},
      {u"{}", "", u"{}", "0:{}"},
      {u"{+", "", u"{{{", "0:{{{"},
      {u"]", "", u"]", "0:]"},
      {u"a]", "", u"a]", "0:a]"},
  });
}

TEST(RegExpSyntax, GroupsKeepWhatTheyMatched) {
  CheckRows({
      {u"(a)(b)?", "", u"ac", "0:a(a|~)"},
      {u"(a)|(b)", "g", u"ab", "0:a(a|~) 1:b(~|b)"},
      {u"(\\w+)@(\\w+)\\.com", "", u"to me@here.com!", "3:me@here.com(me|here)"},
      {u"(?:a)(b)", "", u"ab", "0:ab(b)"},
      {u"((a)(b))", "", u"ab", "0:ab(ab|a|b)"},
      {u"()", "", u"a", "0:()"},
      {u"(a)*", "", u"aa", "0:aa(a)"},
      {u"(a)*", "", u"b", "0:(~)"},
      {u"(a|b)+", "", u"aba", "0:aba(a)"},
      {u"(((((((((((a)))))))))))", "", u"a", "0:a(a|a|a|a|a|a|a|a|a|a|a)"},
      {u"(a)(?:b)(c)", "", u"abc", "0:abc(a|c)"},
      {u"(?:)", "", u"a", "0:"},
      {u"(\\(+)", "", u"a((b", "1:((((()"},
  });
}

TEST(RegExpSyntax, BackReferencesMatchWhatTheGroupDid) {
  CheckRows({
      {u"(a)\\1", "", u"aa", "0:aa(a)"},
      {u"(.)\\1", "g", u"aabbc", "0:aa(a) 2:bb(b)"},
      {u"(a)|\\1b", "", u"b", "0:b(~)"},
      {u"\\1(a)", "", u"aa", "0:a(a)"},
      {u"(a\\1)", "", u"aa", "0:a(a)"},
      {u"(?:(a)|b)\\1", "", u"b", "0:b(~)"},
      {u"(['\"]).*?\\1", "", u"x='it\"s' y", "2:'it\"s'(')"},
      {u"\\b(\\w+) \\1\\b", "", u"is this this one", "3:this this(this)"},
      {u"(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)\\10", "", u"abcdefghijj", "0:abcdefghijj(a|b|c|d|e|f|g|h|i|j)"},
      {u"(a)\\10", "", u"aa0", "0:aa0(a)"},
      {u"(a)\\11", "", u"aa1", "0:aa1(a)"},
      {u"(a)\\1{2}", "", u"aaaa", "0:aaa(a)"},
      {u"(ab)\\1*", "", u"abababx", "0:ababab(ab)"},
      {u"(?=(a+))a*b\\1", "", u"baaabac", "3:aba(a)"},
      {u"(?!(a))\\1b", "", u"b", "0:b(~)"},
  });
}

TEST(RegExpSyntax, NumbersOfNoGroupAreOctal) {
  CheckRows({
      {u"\\1", "", u"\x01", "0:\x01"},
      {u"\\2(a)", "",
       u"\x02"
       u"a",
       "0:\x02"
       "a(a)"},
      {u"\\101", "", u"A", "0:A"},
      {u"\\60", "", u"0", "0:0"},
      {u"\\377", "", u"\u00FF", "0:\u00FF"},
      {u"\\400", "", u" 0", "0: 0"},
      {u"\\0", "", u"a\0b"sv, "1:\0"sv},
      {u"\\012", "", u"\n", "0:\n"},
      {u"\\08", "",
       u"\0"
       u"8"sv,
       "0:\0"
       "8"sv},
      {u"\\8", "", u"8", "0:8"},
      {u"\\9", "", u"9", "0:9"},
      {u"[\\101]", "", u"A", "0:A"},
      {u"[\\1]", "", u"\x01", "0:\x01"},
      {u"(a)[\\1]", "", u"a\x01", "0:a\x01(a)"},
      {u"[\\8]", "", u"8", "0:8"},
      {u"[\\0]", "", u"\0"sv, "0:\0"sv},
  });
}

TEST(RegExpSyntax, EscapesNameCharacters) {
  CheckRows({
      {u"\\t\\n\\v\\f\\r", "", u"\t\n\v\f\r", "0:\t\n\v\f\r"},
      {u"\\x41", "", u"A", "0:A"},
      {u"\\xe9", "", u"\u00E9", "0:\u00E9"},
      {u"\\xE9", "", u"\u00E9", "0:\u00E9"},
      {u"\\u0041", "", u"A", "0:A"},
      {u"\\u20ac", "", u"\u20AC", "0:\u20AC"},
      {u"\\u20AC+", "", u"\u20AC\u20AC", "0:\u20AC\u20AC"},
      {u"\\cA", "", u"\x01", "0:\x01"},
      {u"\\cz", "", u"\x1A", "0:\x1A"},
      {u"\\cM\\cJ", "", u"\r\n", "0:\r\n"},
      {u"\\x4", "", u"x4", "0:x4"},
      {u"\\x", "", u"x", "0:x"},
      {u"\\xg1", "", u"xg1", "0:xg1"},
      {u"\\u004", "", u"u004", "0:u004"},
      {u"\\u00zz", "", u"u00zz", "0:u00zz"},
      {u"\\u{41}", "", u"A", "-"},
      {u"\\x{41}", "", u"A", "-"},
      {u"\\c1", "", u"\\c1", "0:\\c1"},
      {u"\\c", "", u"\\c", "0:\\c"},
      {u"[\\cA]", "", u"\x01", "0:\x01"},
      {u"[\\x41-\\x43]+", "", u"xABCD", "1:ABC"},
      {u"[\\u0430-\\u044F]+", "", u"x\u0430\u0431", "1:\u0430\u0431"},
      {u"\\.\\*\\+\\?\\(\\)\\[\\]\\{\\}\\|\\^\\$\\\\\\/", "", u".*+?()[]{}|^$\\/", "0:.*+?()[]{}|^$\\/"},
      {u"\\-\\_\\#\\ ", "", u"-_# ", "0:-_# "},
      {u"\\\u00E9", "", u"\u00E9", "0:\u00E9"},
  });
}

TEST(RegExpSyntax, EscapesOfOtherDialectsAreTheirLetters) {
  CheckRows({
      {u"\\A", "", u"xA", "1:A"},
      {u"\\Z", "", u"xZ", "1:Z"},
      {u"\\z", "", u"xz", "1:z"},
      {u"\\G", "", u"xG", "1:G"},
      {u"\\a\\e", "", u"ae", "0:ae"},
      {u"\\Qa.b\\E", "", u"QaxbE", "0:QaxbE"},
      {u"\\p{L}", "", u"p{L}", "0:p{L}"},
      {u"\\P", "", u"P", "0:P"},
      {u"\\K", "", u"aK", "1:K"},
      {u"\\R", "", u"\nR", "1:R"},
      {u"\\X\\C\\N", "", u"XCN", "0:XCN"},
      {u"\\h\\H\\V", "", u"hHV", "0:hHV"},
      {u"\\k<a>", "", u"k<a>", "0:k<a>"},
      {u"\\g1", "", u"g1", "0:g1"},
      {u"\\o{x}", "", u"o{x}", "0:o{x}"},
      {u"\\l\\L\\U", "", u"lLU", "0:lLU"},
      {u"\\i\\j\\m\\q\\y", "", u"ijmqy", "0:ijmqy"},
  });
}

TEST(RegExpSyntax, SetsHaveEscapes) {
  CheckRows({
      {u"\\d+", "", u"ab123", "2:123"},
      {u"\\d", "", u"\u0661", "-"},
      {u"\\D+", "", u"12\u0661a3", "2:\u0661a"},
      {u"\\w+", "", u"-aZ_09-", "1:aZ_09"},
      {u"\\w+", "", u"caf\u00E9s", "0:caf"},
      {u"\\W+", "", u"ab \u00E9-c", "2: \u00E9-"},
      {u"\\s+", "", u"a \t\n\v\f\r\u00A0b", "1: \t\n\v\f\r\u00A0"},
      {u"\\s+", "", u"a\u1680\u2000\u200A\u2028\u2029\u202F\u205F\u3000b",
       "1:\u1680\u2000\u200A\u2028\u2029\u202F\u205F\u3000"},
      {u"\\s", "", u"\u200B\u0085\uFEFF", "-"},
      {u"\\S+", "", u" ab\u200B ", "1:ab\u200B"},
      {u"[\\s\\S]+", "", u"a\nb", "0:a\nb"},
      {u"[\\d\\D]", "", u"\uFFFF", "0:\uFFFF"},
      {u"[^\\d]", "", u"1a", "1:a"},
      {u"[^\\D]", "", u"a1", "1:1"},
      {u"[\\w.]+", "", u"-a.b-", "1:a.b"},
      {u"[\\s,]+", "", u"a , b", "1: , "},
      {u"[^\\s\\w]", "", u"a b;", "3:;"},
      {u"\\W", "i", u"kKsS\u212A\u017F", "4:\u212A"},
      {u"\\w", "i", u"\u212A\u017F", "-"},
  });
}

}  // namespace
}  // namespace cardwright::scripting
