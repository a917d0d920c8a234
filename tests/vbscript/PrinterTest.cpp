// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Printer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "TreeText.h"
#include "cardwright/vbscript/syntax/Parser.h"

namespace cardwright::vbscript {
namespace {

TEST(Print, WritesOneStatementALine) {
  const struct {
    const char16_t* source;
    const char* text;
  } rows[] = {
      {u"x=1:y  =  2", "x = 1\ny = 2\n"},
      {u"OPTION explicit\ndim A , b( ) ,c(1,2)", "Option Explicit\nDim A, b(), c(1, 2)\n"},
      {u"public const a=-1,B=(&hFF&)", "Public Const a = -1, B = (&hFF&)\n"},
      {u"redim preserve a(1,n),o.b(2)", "ReDim Preserve a(1, n), o.b(2)\n"},
      {u"erase a,b", "Erase a, b\n"},
      {u"set x=new C", "Set x = New C\n"},
      {u"f(1)", "f (1)\n"},
      {u"f(1),0", "f (1), 0\n"},
      {u"f ,1", "f , 1\n"},
      {u"f(1)(2)", "f(1) (2)\n"},
      {u"f(1)()", "f(1)()\n"},
      {u"f()", "f\n"},
      {u"call f", "Call f\n"},
      {u"call f(1,2)", "Call f(1, 2)\n"},
      {u"call f(1)()", "Call f(1)()\n"},
      {u"x=-a^2*(not b)&\"t\"\"\"", "x = -a ^ 2 * (Not b) & \"t\"\"\"\n"},
      {u"x=a(,1).[b c].if", "x = a(, 1).[b c].if\n"},
      {u"[if]=.x", "[if] = .x\n"},
      {u"if a then x else y", "If a Then\n  x\nElse\n  y\nEnd If\n"},
      {u"if a then\nx\nelseif b then\ny\nend if", "If a Then\n  x\nElseIf b Then\n  y\nEnd If\n"},
      {u"select case a:case 1,2:x:case else:y:end select",
       "Select Case a\nCase 1, 2\n  x\nCase Else\n  y\nEnd Select\n"},
      {u"for i=1 to 2 step 3:x:next", "For i = 1 To 2 Step 3\n  x\nNext\n"},
      {u"for each i in a:next", "For Each i In a\nNext\n"},
      {u"do:loop", "Do\nLoop\n"},
      {u"do while a:loop", "Do While a\nLoop\n"},
      {u"do until a:loop", "Do Until a\nLoop\n"},
      {u"do:loop while a", "Do\nLoop While a\n"},
      {u"do:exit do:loop until a", "Do\n  Exit Do\nLoop Until a\n"},
      {u"while a:wend", "While a\nWend\n"},
      {u"with o:.x=1:f .y:end with", "With o\n  .x = 1\n  f .y\nEnd With\n"},
      {u"on error resume next:on error goto 0:stop", "On Error Resume Next\nOn Error GoTo 0\nStop\n"},
      {u"x\nprivate function f(byval a,byref b,c())\nexit function\nend function",
       "Private Function f(ByVal a, b, c())\n  Exit Function\nEnd Function\nx\n"},
      {u"class C:public a,b(3):public default property get x:end property:end class",
       "Class C\n  Public a, b(3)\n  Public Default Property Get x()\n  End Property\nEnd Class\n"},
      {u"", ""},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Print(*Parse(row.source)).ToUtf8(), row.text) << Text(row.source).ToUtf8();
}

TEST(Print, WritesAnExpression) {
  EXPECT_EQ(Print(*ParseExpression(u"a=b  or\tnot c")).ToUtf8(), "a = b Or Not c");
}

TEST(Print, ParsesBackToTheSameProgram) {
  int programs = 0;
  for (const auto& file :
       std::filesystem::recursive_directory_iterator(CARDWRIGHT_SOURCE_DIR "/tests/vbscript")) {
    if (file.path().extension() != ".vbs") continue;
    std::ostringstream source;
    source << std::ifstream(file.path(), std::ios::binary).rdbuf();
    std::unique_ptr<SyntaxTree> tree;
    try {
      tree = Parse(Text::FromUtf8(source.str()));
    } catch (const SyntaxError&) {
      continue;  // a program about an error
    }
    const Text printed = Print(*tree);
    const auto again = Parse(printed);
    EXPECT_EQ(TreeText(*again), TreeText(*tree)) << file.path();
    EXPECT_EQ(Print(*again), printed) << file.path();
    ++programs;
  }
  EXPECT_GT(programs, 50);
}

}  // namespace
}  // namespace cardwright::vbscript
