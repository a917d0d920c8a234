// SPDX-License-Identifier: MIT
#include "cardwright/shared/ScriptText.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"

namespace cardwright {
namespace {

TEST(BuildEventName, JoinsNameAndEvent) {
  EXPECT_EQ(BuildEventName(u"Form", u"BeforeOkClick"), u"Form_BeforeOkClick");
  EXPECT_EQ(BuildEventName(u"", u"OnClick"), u"OnClick");
}

TEST(BuildProcedureHeader, DependsOnTheLanguage) {
  EXPECT_EQ(BuildProcedureHeader(u"P", u"VBScript"), u"\r\nSub P(");
  EXPECT_EQ(BuildProcedureHeader(u"P", u"vbSCRIPT"), u"\r\nSub P(");
  EXPECT_EQ(BuildProcedureHeader(u"P", u"JScript"), u"\r\nfunction P(");
  EXPECT_EQ(BuildProcedureHeader(u"P", u"Other"), u"\r\n");
  EXPECT_EQ(BuildProcedureHeader(u"P", u""), u"\r\n");
  EXPECT_EQ(BuildProcedureHeader(u"", u"VBScript"), u"");
}

TEST(FindProcedure, GivesThePositionOfTheHeader) {
  const struct {
    const char16_t* script;
    const char16_t* name;
    const char16_t* language;
    std::size_t position;
  } rows[] = {
      {u"Sub P()\r\nEnd Sub", u"P", u"VBScript", 1},
      {u"sub p(\r\n", u"P", u"VBScript", 1},
      {u"x = 1\r\nSUB p()\r\nEnd Sub", u"P", u"VBScript", 6},
      {u"Sub P()\r\nEnd Sub\r\nSub P()", u"P", u"VBScript", 17},
      {u"x\nSub P()", u"P", u"VBScript", 0},
      {u"\r\n Sub P()", u"P", u"VBScript", 0},
      {u"\r\nSub  P()", u"P", u"VBScript", 0},
      {u"\r\nSub P ()", u"P", u"VBScript", 0},
      {u"\r\nSub P2()", u"P", u"VBScript", 0},
      {u"\r\nFunction P()", u"P", u"VBScript", 0},
      {u"function P(){}", u"p", u"JScript", 1},
      {u"x\r\nfunction P(){}", u"P", u"jscript", 2},
      {u"\r\nSub P()", u"P", u"", 0},
      {u"\r\nSub P()", u"P", u"Other", 0},
      {u"", u"P", u"VBScript", 0},
      {u"Sub P()", u"", u"VBScript", 0},
      {u"Su", u"P", u"VBScript", 0},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FindProcedure(row.script, row.name, row.language), row.position) << Text(row.script).ToUtf8();
  }
}

const Text kUserNames[] = {u"Form", u"txtDepth"};

TEST(ComposeScript, DeclaresAndBindsTheControlsInVBScript) {
  const ComposedScript composed = ComposeScript(u"x = 1\r\n", u"VBSCRIPT", kUserNames);
  EXPECT_EQ(composed.code, u"Dim Form\r\nDim txtDepth\r\nx = 1\r\n");
  EXPECT_EQ(composed.mainCode,
            u"\r\nSub Main()\r\n    \r\n    Set Form = Controls(\"Form\")\r\n"
            u"    Set txtDepth = Controls(\"txtDepth\")\r\n    \r\nEnd Sub\r\n");
  EXPECT_EQ(composed.lineOffset, 2);
}

TEST(ComposeScript, DeclaresAndBindsTheControlsInJScript) {
  const ComposedScript composed = ComposeScript(u"x = 1;", u"JScript", kUserNames);
  EXPECT_EQ(composed.code, u"var Form;\r\nvar txtDepth;\r\nx = 1;");
  EXPECT_EQ(composed.mainCode,
            u"\r\nfunction Main(){\r\n    Form = Controls(\"Form\");\r\n    txtDepth = "
            u"Controls(\"txtDepth\");\r\n}\r\n");
  EXPECT_EQ(composed.lineOffset, 2);
}

TEST(ComposeScript, KeepsOptionExplicitFirst) {
  EXPECT_EQ(ComposeScript(u"OPTION Explicit\r\nx = 1", u"VBScript", kUserNames).code,
            u"OPTION Explicit\r\nDim Form\r\nDim txtDepth\r\nx = 1");
  EXPECT_EQ(ComposeScript(u"option explicit", u"VBScript", {}).code, u"option explicit");
  EXPECT_EQ(ComposeScript(u"option explicit\nx", u"VBScript", kUserNames).code,
            u"Dim Form\r\nDim txtDepth\r\noption explicit\nx");
  EXPECT_EQ(ComposeScript(u"x\r\noption explicit\r\n", u"VBScript", kUserNames).code,
            u"Dim Form\r\nDim txtDepth\r\nx\r\noption explicit\r\n");
}

TEST(ComposeScript, AddsNothingInAnotherLanguage) {
  const ComposedScript composed = ComposeScript(u"option explicit\r\nx", u"Other", kUserNames);
  EXPECT_EQ(composed.code, u"option explicit\r\nx");
  EXPECT_EQ(composed.mainCode, u"");
  EXPECT_EQ(composed.lineOffset, 0);
}

}  // namespace
}  // namespace cardwright
