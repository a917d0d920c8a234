// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ErrorLine.h"

#include <gtest/gtest.h>

namespace cardwright::testing {
namespace {

TEST(ErrorLine, NamesTheEngineTheScriptsSourceOrTheCompiler) {
  ScriptError error{.number = 13,
                    .description = u"Type mismatch: 'x'",
                    .line = 3,
                    .column = 0,
                    .source = u"Microsoft VBScript runtime error"};
  EXPECT_EQ(ErrorLine(u"a b.vbs", u"VBScript", error),
            u"a b.vbs(3, 1) VBScript runtime error: Type mismatch: 'x'");
  error.source = u"My.Own";
  EXPECT_EQ(ErrorLine(u"a.vbs", u"VBScript", error), u"a.vbs(3, 1) My.Own: Type mismatch: 'x'");
  error.isSyntax = true;
  error.source = u"Microsoft VBScript compilation error";
  error.column = 7;
  EXPECT_EQ(ErrorLine(u"a.vbs", u"VBScript", error),
            u"a.vbs(3, 8) VBScript compilation error: Type mismatch: 'x'");
}

TEST(ErrorLine, NamesTheCompilerForCodeThatAScriptMade) {
  const ScriptError error{.number = 1006,
                          .description = u"Expected ')'",
                          .line = 2,
                          .column = 4,
                          .source = u"Microsoft VBScript compilation error"};
  EXPECT_EQ(ErrorLine(u"a.vbs", u"VBScript", error), u"a.vbs(2, 5) VBScript compilation error: Expected ')'");
}

TEST(ErrorLine, NamesTheScriptsLanguage) {
  ScriptError error{.number = 5009,
                    .description = u"'x' is undefined",
                    .line = 2,
                    .column = 0,
                    .source = u"Microsoft JScript runtime error"};
  EXPECT_EQ(ErrorLine(u"a.js", u"JScript", error), u"a.js(2, 1) JScript runtime error: 'x' is undefined");
  error.source = {};
  EXPECT_EQ(ErrorLine(u"a.js", u"JScript", error), u"a.js(2, 1) JScript runtime error: 'x' is undefined");
  error.isSyntax = true;
  EXPECT_EQ(ErrorLine(u"a.js", u"JScript", error), u"a.js(2, 1) JScript compilation error: 'x' is undefined");
}

TEST(ErrorLine, StaysOneLine) {
  const ScriptError error{.number = 1000, .description = u"one\r\ntwo", .line = 1, .source = {}};
  EXPECT_EQ(ErrorLine(u"a.vbs", u"VBScript", error), u"a.vbs(1, 1) VBScript runtime error: one  two");
}

}  // namespace
}  // namespace cardwright::testing
