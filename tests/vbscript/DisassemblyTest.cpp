// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace cardwright::vbscript {
namespace {

bool Holds(const Text& list, std::u16string_view part) {
  return list.View().find(part) != std::u16string_view::npos;
}

TEST(Disassembly, ListsEachProcedureUnderItsName) {
  const Text list = Disassemble(
      u"Class Well\n"
      u"Public Function Depth()\nDepth = 12.5\nEnd Function\n"
      u"Public Property Get Name\nName = \"W\"\nEnd Property\n"
      u"End Class\n"
      u"Sub Deepen(well, metres)\nEnd Sub\n");
  EXPECT_TRUE(Holds(list, u"outside procedures: 0 parameters"));
  EXPECT_TRUE(Holds(list, u"Deepen: 2 parameters"));
  EXPECT_TRUE(Holds(list, u"Well.Depth: 0 parameters"));
  EXPECT_TRUE(Holds(list, u"Well.Name: 0 parameters"));
  EXPECT_TRUE(Holds(list, u"12.5"));
}

TEST(Disassembly, NamesVariablesSymbolsMembersAndJumpTargets) {
  const Text list = Disassemble(
      u"Dim total\n"
      u"For i = 1 To 10\n"
      u"  total = total + grid(i, 2)\n"
      u"  If total > 5 Then log.Write total Xor 1\n"
      u"Next\n");
  for (const std::u16string_view part :
       {u" line 3\n", u"Add", u"total", u"grid", u".Write", u"Xor", u"ForNext", u"-> "})
    EXPECT_TRUE(Holds(list, part)) << Text(part).ToUtf8() << " in\n" << list.ToUtf8();
}

TEST(Disassembly, ShowsConstantIndices) {
  const Text list =
      Disassemble(u"Dim grid(3, 3)\nSub S(i)\nDim own(3, 3)\nown(i, 2) = grid(i, 3)\nEnd Sub\n");
  EXPECT_TRUE(Holds(list, u"GetSymbolElement r3 i grid 3\n")) << list.ToUtf8();
  EXPECT_TRUE(Holds(list, u"SetElement2 r2 own i 2\n")) << list.ToUtf8();
}

TEST(Disassembly, FailsForAnInvalidProgram) { EXPECT_THROW(Disassemble(u"If"), Error); }

}  // namespace
}  // namespace cardwright::vbscript
