// SPDX-License-Identifier: MIT
#include "jscript/JScriptSample.h"

namespace cardwright::jscript {
namespace {

std::u16string Repeated(std::u16string_view part, std::size_t times) {
  std::u16string text;
  text.reserve(part.size() * times);
  for (std::size_t k = 0; k < times; ++k) text += part;
  return text;
}

using EngineLimits = EngineTest;

TEST_F(EngineLimits, DeepSourcesCompileOrFailCleanly) {
  constexpr std::size_t kDeep = 200'000;
  for (const std::u16string_view part :
       {u"(", u"[", u"{", u"function f() {", u"a(", u"++", u"!", u"`${", u"a.", u"/*@cc_on @if (1) ", u"-",
        u"new ", u"x = function n() { ", u"a(1)", u"try {", u"@if (", u"1 + "}) {
    const std::u16string source = Repeated(part, kDeep);
    EXPECT_NE(ErrorOfCode(source), 0) << Text(part).ToUtf8();
    EXPECT_EQ(Value(u"1 + 1"), "2");
  }
}

TEST_F(EngineLimits, LargeSourcesCompileInTime) {
  Add(Repeated(u"function f(a, b) { if (a > b) { return a - b; } else { return b; } }\n", 50'000));
  EXPECT_EQ(m_Engine->Procedures({}).size(), 1u);
  Add(Repeated(u"var v = {m: function named(a) { return a / 2; }};\n", 20'000));
  Add(u"var t = '" + Repeated(u"x", 10'000'000) + u"'; Host.Say(t.length);");
  EXPECT_EQ(Said(), "10000000");
}

}  // namespace
}  // namespace cardwright::jscript
