// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/SyntaxErrors.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "cardwright/vbscript/syntax/Parser.h"

namespace cardwright::vbscript {
namespace {

struct ErrorRow {
  std::u16string source;
  int number;
  Position where;
};

void ExpectError(const ErrorRow& row) {
  const std::string shown = Text(row.source.substr(0, 200)).ToUtf8();
  try {
    Parse(row.source);
    ADD_FAILURE() << "no error: " << shown;
  } catch (const SyntaxError& error) {
    EXPECT_EQ(error.Number(), row.number) << shown;
    EXPECT_EQ(error.Where(), row.where)
        << shown << " is at " << error.Where().line << ":" << error.Where().column;
    EXPECT_EQ(error.Source(), u"Microsoft VBScript compilation error");
    EXPECT_EQ(error.Description(), StandardErrorText(row.number));
  }
}

// The programs of compile-errors/ cover each error once; these are further forms of them.
TEST(SyntaxError, HasNumberAndPosition) {
  const ErrorRow rows[] = {
      {u"x = ", 1002, {1, 4}},
      {u"x = )", 1002, {1, 4}},
      {u"x = 1 And", 1002, {1, 9}},
      {u"x = a Is", 1002, {1, 8}},
      {u"x = (", 1002, {1, 5}},
      {u"x = ()", 1002, {1, 5}},
      {u"x = f(1,,)", 1002, {1, 9}},
      {u"x = & 1", 1002, {1, 4}},
      {u"f 1, ", 1002, {1, 5}},
      {u"f (1), ", 1002, {1, 7}},
      {u"While", 1002, {1, 5}},
      {u"With", 1002, {1, 4}},
      {u"Do While", 1002, {1, 8}},
      {u"For i = ", 1002, {1, 8}},
      {u"For i = 1 To", 1002, {1, 12}},
      {u"For i = 1 To 2 Step", 1002, {1, 19}},
      {u"For Each i In", 1002, {1, 13}},
      {u"Select Case", 1002, {1, 11}},
      {u"Select Case 1\nCase", 1002, {2, 4}},
      {u"If a Then\nElseIf Then", 1002, {2, 7}},
      {u"On x", 1002, {1, 3}},
      {u"On Error x", 1002, {1, 9}},
      {u"On Error GoTo 1", 1002, {1, 14}},
      {u"On Error GoTo", 1002, {1, 13}},
      {u"Option Strict", 1002, {1, 7}},
      {u"ReDim a()", 1002, {1, 6}},
      {u"ReDim a(1)(2)", 1002, {1, 6}},
      {u"ReDim a(, 1)", 1002, {1, 8}},
      {u"Function f\nPrivate Sub s\nEnd Sub\nEnd Function", 1002, {2, 0}},
      {u"Sub s\nProperty Get x\nEnd Property\nEnd Sub", 1002, {2, 0}},
      {u"Do\nFunction f\nEnd Function\nLoop", 1002, {2, 0}},
      {u"While a\nClass C\nEnd Class\nWend", 1002, {2, 0}},
      {u"Class C\nClass D\nEnd Class\nEnd Class", 1002, {2, 0}},
      {u"Class C\nConst a = 1\nEnd Class", 1002, {2, 0}},
      {u"Sub s\nPrivate x\nEnd Sub", 1002, {2, 0}},
      {u"Sub s\nPublic Const x = 1\nEnd Sub", 1002, {2, 0}},
      {u"ReDim Preserve a", 1005, {1, 16}},
      {u"ReDim a.b", 1005, {1, 9}},
      {u"x = f(1 2)", 1006, {1, 8}},
      {u"x = f(1", 1006, {1, 7}},
      {u"ReDim a(1 To 2)", 1006, {1, 10}},
      {u"Dim a(1", 1006, {1, 7}},
      {u"Sub s(a b)\nEnd Sub", 1006, {1, 8}},
      {u"Sub s(Optional a)\nEnd Sub", 1006, {1, 15}},
      {u"Const a = (1", 1006, {1, 12}},
      {u"x = f(New C())", 1006, {1, 11}},
      {u"Dim", 1010, {1, 3}},
      {u"Dim a,", 1010, {1, 6}},
      {u"Dim If", 1010, {1, 4}},
      {u"Dim a.b", 1025, {1, 5}},
      {u"Sub", 1010, {1, 3}},
      {u"Sub If", 1010, {1, 4}},
      {u"Function 1", 1010, {1, 9}},
      {u"Sub s(", 1010, {1, 6}},
      {u"Sub s(a,)", 1010, {1, 8}},
      {u"Sub s(ByVal)", 1010, {1, 11}},
      {u"Public", 1010, {1, 6}},
      {u"Public Class C", 1010, {1, 7}},
      {u"Const", 1010, {1, 5}},
      {u"ReDim 1", 1010, {1, 6}},
      {u"Erase a, 1", 1010, {1, 9}},
      {u"Call", 1010, {1, 4}},
      {u"Call 1", 1010, {1, 5}},
      {u"Call (f)", 1010, {1, 5}},
      {u"Set 1 = x", 1010, {1, 4}},
      {u"For 1 = 2 To 3", 1010, {1, 4}},
      {u"For Each 1 In x", 1010, {1, 9}},
      {u"x.", 1010, {1, 2}},
      {u"x = a.1", 1025, {1, 5}},
      {u"x.(1)", 1010, {1, 2}},
      {u"Class 1", 1010, {1, 6}},
      {u"Class C\nProperty Get\nEnd Property\nEnd Class", 1010, {2, 12}},
      {u"Class C\nPublic Const a = 1\nEnd Class", 1010, {2, 7}},
      {u"Const a", 1011, {1, 7}},
      {u"Set x", 1011, {1, 5}},
      {u"For i", 1011, {1, 5}},
      {u"If a Then\nEnd", 1012, {2, 3}},
      {u"If a Then\nEnd Select", 1012, {2, 4}},
      {u"For i = 1", 1013, {1, 9}},
      {u"If a Then", 1014, {1, 9}},
      {u"If a Then\nElse", 1014, {2, 4}},
      {u"If a Then\nElse\nElse\nEnd If", 1014, {3, 0}},
      {u"If a Then\nElse\nElseIf b Then\nEnd If", 1014, {3, 0}},
      {u"If a Then\nWend", 1014, {2, 0}},
      {u"If a Then\nCase 1", 1014, {2, 0}},
      {u"Sub s\n\n", 1014, {3, 0}},
      {u"Class C\n", 1014, {2, 0}},
      {u"Class C\nSub s\nEnd Sub", 1014, {3, 7}},
      {u"Function f\nEnd", 1015, {2, 3}},
      {u"Sub s\nEnd If", 1016, {2, 4}},
      {u"If a", 1017, {1, 4}},
      {u"If a b Then", 1017, {1, 5}},
      {u"While a\nEnd If", 1018, {2, 0}},
      {u"Do\nWend", 1019, {2, 0}},
      {u"For i = 1 To 2\nWend", 1020, {2, 0}},
      {u"On Error Resume", 1020, {1, 15}},
      {u"Select", 1021, {1, 6}},
      {u"Select Case 1\nEnd", 1022, {2, 3}},
      {u"ElseIf a Then", 1024, {1, 0}},
      {u"Case 1", 1024, {1, 0}},
      {u"Then", 1024, {1, 0}},
      {u"Sub s\nElse\nEnd Sub", 1024, {2, 0}},
      {u"Sub s\nWend\nEnd Sub", 1024, {2, 0}},
      {u"= 1", 1024, {1, 0}},
      {u", 1", 1024, {1, 0}},
      {u"New C", 1024, {1, 0}},
      {u"Not a", 1024, {1, 0}},
      {u"Nothing = 1", 1024, {1, 0}},
      {u"#1/1/2000#", 1024, {1, 0}},
      {u"If a Then 5", 1024, {1, 10}},
      {u"Resume Next", 1024, {1, 0}},
      {u"GoTo 1", 1024, {1, 0}},
      {u"x = 1 y = 2", 1025, {1, 6}},
      {u"x = \"a\" \"b\"", 1025, {1, 8}},
      {u"x = 12abc", 1025, {1, 6}},
      {u"x = a b", 1025, {1, 6}},
      {u"x = 1, 2", 1025, {1, 5}},
      {u"x = 1)", 1025, {1, 5}},
      {u"x (1) = 1, 2", 1025, {1, 9}},
      {u"f 1 2", 1025, {1, 4}},
      {u"f )", 1025, {1, 2}},
      {u"f & 1", 1025, {1, 2}},
      {u"f (1) 2", 1025, {1, 6}},
      {u"f()g", 1025, {1, 3}},
      {u"f() = 1 2", 1025, {1, 8}},
      {u"x = 0 End If", 1025, {1, 6}},
      {u"x = 0 End Sub", 1025, {1, 6}},
      {u"Sub s\nx = 0 End Function\nEnd Sub", 1025, {2, 6}},
      {u"Sub s\nIf a Then\nx = 0 End Sub", 1025, {3, 6}},
      {u"Sub s\nExit Sub End Sub", 1025, {2, 9}},
      {u"Sub s x = 1\nEnd Sub", 1025, {1, 6}},
      {u"Sub s() Next\nEnd Sub", 1025, {1, 8}},
      {u"Sub s()\nEnd Sub x", 1025, {2, 8}},
      {u"Function f() As Integer\nEnd Function", 1025, {1, 13}},
      {u"Class C\nEnd Class x", 1025, {2, 10}},
      {u"Class C x", 1025, {1, 8}},
      {u"Class C\nPublic x y", 1025, {2, 9}},
      {u"Class C\nDim x = 1", 1025, {2, 6}},
      {u"Class C\nSub s\nEnd Sub End Class", 1025, {3, 8}},
      {u"Do While a x = 1\nLoop", 1025, {1, 11}},
      {u"While a Wend", 1025, {1, 8}},
      {u"Select Case 1 Case 1", 1025, {1, 14}},
      {u"Do\nLoop While a b", 1025, {2, 13}},
      {u"For Each a In b c", 1025, {1, 16}},
      {u"If a Then x : End Sub", 1025, {1, 14}},
      {u"For Each a In b : If c Then d : Next", 1025, {1, 32}},
      {u"Option Explicit x", 1025, {1, 16}},
      {u"Set x = New C.d", 1025, {1, 13}},
      {u"Call f(1) + 2", 1025, {1, 10}},
      {u"Stop 1", 1025, {1, 5}},
      {u"On Error Resume Next x", 1025, {1, 21}},
      {u"Dim a(\"1\")", 1026, {1, 6}},
      {u"Dim a(2147483648)", 1026, {1, 6}},
      {u"Dim a(&hFFFF)", 1026, {1, 6}},
      {u"Dim a(1,)", 1026, {1, 8}},
      {u"Dim a(1 + 1)", 1006, {1, 8}},
      {u"Do Loop", 1028, {1, 3}},
      {u"With o\nEnd", 1029, {2, 3}},
      {u"x = &hFFFFFFFFF", 1031, {1, 4}},
      {u"x = &40000000000", 1031, {1, 4}},
      {u"x = &hFFx", 1031, {1, 4}},
      {u"x = &o9", 1031, {1, 4}},
      {u"x = 1.8e308", 1031, {1, 4}},
      {u"x = 1000000000e300", 1031, {1, 4}},
      {u"Dim ?", 1032, {1, 4}},
      {u"f 1 ' é \"\nf 2 ? 3", 1032, {2, 4}},
      {u"f 1, \"a", 1033, {1, 5}},
      {u"Me", 1037, {1, 0}},
      {u"Me()", 1037, {1, 0}},
      {u"Me(1), 2", 1037, {1, 0}},
      {u"Me 1", 1037, {1, 0}},
      {u"Call Me", 1037, {1, 5}},
      {u"Call Me(1)", 1037, {1, 5}},
      {u"Sub s\nLoop\nEnd Sub", 1038, {2, 0}},
      {u"While a\nLoop", 1038, {2, 0}},
      {u"With o\nLoop", 1038, {2, 0}},
      {u"Select Case 1\nCase 1\nLoop", 1038, {3, 0}},
      {u"Exit Do", 1039, {1, 5}},
      {u"Exit For", 1039, {1, 5}},
      {u"Exit Function", 1039, {1, 5}},
      {u"Exit Property", 1039, {1, 5}},
      {u"Exit If", 1039, {1, 5}},
      {u"Do : Exit For : Loop", 1039, {1, 10}},
      {u"For i = 1 To 2 : Exit Do : Next", 1039, {1, 22}},
      {u"Sub s\nExit Function\nEnd Sub", 1039, {2, 5}},
      {u"Class C\nProperty Get x\nExit Sub", 1039, {3, 5}},
      {u"For o.x = 1 To 2", 1040, {1, 4}},
      {u"For .x = 1 To 2", 1040, {1, 4}},
      {u"For Each a(1) In b", 1040, {1, 9}},
      {u"For i = 1 To 2 : For j = 1 To 2 : For [I] = 1 To 2", 1040, {1, 38}},
      {u"Dim a, a", 1041, {1, 7}},
      {u"Dim a\nIf x Then\nDim [A]\nEnd If", 1041, {3, 4}},
      {u"Const a = 1, A = 2", 1041, {1, 13}},
      {u"Dim s\nSub s\nEnd Sub", 1041, {2, 4}},
      {u"Sub s\nEnd Sub\nDim s", 1041, {3, 4}},
      {u"Class c\nEnd Class\nSub c\nEnd Sub", 1041, {3, 4}},
      {u"Sub s(a, A)\nEnd Sub", 1041, {1, 9}},
      {u"Sub s\nConst a = 1\nDim a\nEnd Sub", 1041, {3, 4}},
      {u"Class C\nDim a, a\nEnd Class", 1041, {2, 7}},
      {u"Class C\nSub a\nEnd Sub\nPublic a\nEnd Class", 1041, {4, 7}},
      {u"Class C\nSub a\nEnd Sub\nSub a\nEnd Sub\nEnd Class", 1041, {4, 4}},
      {u"Class C\nSub a\nEnd Sub\nProperty Get a\nEnd Property\nEnd Class", 1041, {4, 13}},
      {u"Class C\nProperty Get a\nEnd Property\nFunction a\nEnd Function\nEnd Class", 1041, {4, 9}},
      {u"Class C\nProperty Get a\nDim a\nEnd Property\nEnd Class", 1041, {3, 4}},
      {u"If a Then\nx : ElseIf b Then\nEnd If", 1042, {2, 4}},
      {u"If a Then\nElse x : End If", 1042, {2, 9}},
      {u"f()(1, 2)", 1044, {1, 9}},
      {u"f (1, 2)  ", 1044, {1, 8}},
      {u"f(1, 2), 3", 1044, {1, 7}},
      {u"f(1, 2) + 3", 1044, {1, 7}},
      {u"f(, 2)", 1044, {1, 6}},
      {u"f(), 1", 1044, {1, 3}},
      {u"If a Then f(1, 2) Else g", 1044, {1, 17}},
      {u"f(g(1, 2), h(3))", 1044, {1, 16}},
      {u"Const a", 1011, {1, 7}},
      {u"Const a =", 1045, {1, 9}},
      {u"Const a = -\"1\"", 1045, {1, 11}},
      {u"Const a = -b", 1045, {1, 11}},
      {u"Const a = Not 1", 1045, {1, 10}},
      {u"Const a = 1 & 2", 1045, {1, 12}},
      {u"Const a = (1 + 2)", 1045, {1, 13}},
      {u"Const a = New C", 1045, {1, 10}},
      {u"For Each a", 1046, {1, 10}},
      {u"Class C\nEnd", 1047, {2, 3}},
      {u"Private Property Let x(a)\nEnd Property", 1048, {1, 8}},
      {u"Class C\nPublic Property x\nEnd Class", 1049, {2, 16}},
      {u"Class C\nProperty Get x\nEnd Sub\nEnd Class", 1050, {3, 4}},
      {u"Class C\nProperty Let x(a, b)\nEnd Property\nProperty Get x\nEnd Property\nEnd Class",
       1051,
       {4, 13}},
      {u"Class C\nProperty Let x(a)\nEnd Property\nProperty Set x(a, b)\nEnd Property\nEnd Class",
       1051,
       {4, 13}},
      {u"Class C\nSub Class_Terminate(a)\nEnd Sub\nEnd Class", 1053, {2, 4}},
      {u"Class C\nProperty Set x\nEnd Property\nEnd Class", 1054, {2, 13}},
      {u"Sub s\nNext\nEnd Sub", 1055, {2, 0}},
      {u"Do\nNext", 1055, {2, 0}},
      {u"Select Case 1\nCase 1\nNext", 1055, {3, 0}},
      {u"Class C\nPublic Default Dim x\nEnd Class", 1056, {2, 15}},
      {u"Class C\nDefault Property Get x\nEnd Property\nEnd Class", 1057, {2, 0}},
      {u"Class C\nPublic Default Property Set x(a)\nEnd Property\nEnd Class", 1058, {2, 24}},
  };
  for (const ErrorRow& row : rows) ExpectError(row);
}

TEST(SyntaxError, HasATextForEachNumber) {
  std::set<std::u16string> texts;
  int numbers = 0;
  for (int number = 1001; number <= 1058; ++number) {
    const bool isGap = number == 1004 || number == 1008 || number == 1009 || number == 1035 || number == 1036;
    EXPECT_EQ(StandardErrorText(number) == u"Unknown runtime error", isGap) << number;
    if (isGap) continue;
    ++numbers;
    texts.insert(std::u16string(StandardErrorText(number).View()));
  }
  EXPECT_EQ(static_cast<int>(texts.size()), numbers);
}

TEST(ParseExpression, FailsForAnythingButOneExpression) {
  const ErrorRow rows[] = {
      {u"", 1002, {1, 0}},          {u"1 2", 1025, {1, 2}},  {u"1 : 2", 1025, {1, 2}},
      {u"x = 1 : y", 1025, {1, 6}}, {u"1\n2", 1025, {2, 0}}, {u"Dim x", 1002, {1, 0}},
      {u"f 1", 1025, {1, 2}},       {u"(1", 1006, {1, 2}},   {u"1 + \n 2", 1002, {1, 4}},
  };
  for (const ErrorRow& row : rows) {
    try {
      ParseExpression(row.source);
      ADD_FAILURE() << Text(row.source).ToUtf8();
    } catch (const SyntaxError& error) {
      EXPECT_EQ(error.Number(), row.number) << Text(row.source).ToUtf8();
      EXPECT_EQ(error.Where(), row.where) << Text(row.source).ToUtf8();
    }
  }
}

}  // namespace
}  // namespace cardwright::vbscript
