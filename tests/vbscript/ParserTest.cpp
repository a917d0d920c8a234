// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/Parser.h"

#include <gtest/gtest.h>

#include "TreeText.h"

namespace cardwright::vbscript {
namespace {

struct TreeRow {
  const char16_t* source;
  const char* tree;
};

void ExpectTrees(std::span<const TreeRow> rows) {
  for (const TreeRow& row : rows) {
    try {
      EXPECT_EQ(TreeText(*Parse(row.source)), row.tree) << Text(row.source).ToUtf8();
    } catch (const SyntaxError& error) {
      ADD_FAILURE() << Text(row.source).ToUtf8() << ": " << error.what() << " at " << error.Where().line
                    << ":" << error.Where().column;
    }
  }
}

TEST(ParseExpression, GroupsByPrecedence) {
  const TreeRow rows[] = {
      {u"1 + 2 * 3", "{1 + {2 * 3}}"},
      {u"1 * 2 + 3", "{{1 * 2} + 3}"},
      {u"1 - 2 - 3", "{{1 - 2} - 3}"},
      {u"1 - 2 + 3", "{{1 - 2} + 3}"},
      {u"8 / 4 * 2", "{{8 / 4} * 2}"},
      {u"8 \\ 4 * 2", "{8 \\ {4 * 2}}"},
      {u"8 Mod 4 \\ 2", "{8 Mod {4 \\ 2}}"},
      {u"8 + 4 Mod 2", "{8 + {4 Mod 2}}"},
      {u"2 ^ 3 ^ 2", "{{2 ^ 3} ^ 2}"},
      {u"-3 ^ 2", "{{neg 3} ^ 2}"},
      {u"2 ^ -3 ^ 2", "{{2 ^ {neg 3}} ^ 2}"},
      {u"2 * -3", "{2 * {neg 3}}"},
      {u"-a.b(1)", "{neg a.b[1]}"},
      {u"- - 1", "{neg {neg 1}}"},
      {u"+1 - +2", "{{plus 1} - {plus 2}}"},
      {u"a & b + c & d", "{{a & {b + c}} & d}"},
      {u"a & b = c & d", "{{a & b} = {c & d}}"},
      {u"a = b <> c", "{{a = b} <> c}"},
      {u"a < b > c <= d >= e", "{{{{a < b} > c} <= d} >= e}"},
      {u"a Is Nothing = b", "{{a Is Nothing} = b}"},
      {u"Not a = b", "{Not {a = b}}"},
      {u"Not a And b", "{{Not a} And b}"},
      {u"Not Not a", "{Not {Not a}}"},
      {u"a = Not b", "{a = {Not b}}"},
      {u"a And Not b = c Or d", "{{a And {Not {b = c}}} Or d}"},
      {u"Not -a", "{Not {neg a}}"},
      {u"a Or b And c", "{a Or {b And c}}"},
      {u"a Xor b Or c", "{a Xor {b Or c}}"},
      {u"a Eqv b Xor c", "{a Eqv {b Xor c}}"},
      {u"a Imp b Eqv c", "{a Imp {b Eqv c}}"},
      {u"a Imp b Imp c", "{{a Imp b} Imp c}"},
      {u"1 Imp 2 Eqv 3 Xor 4 Or 5 And 6 = 7 & 8 + 9 Mod 10 \\ 11 * 12 ^ 13",
       "{1 Imp {2 Eqv {3 Xor {4 Or {5 And {6 = {7 & {8 + {9 Mod {10 \\ {11 * {12 ^ 13}}}}}}}}}}}}"},
      {u"(1 + 2) * 3", "{<{1 + 2}> * 3}"},
      {u"((a))", "<<a>>"},
      {u"a =< b => c >< d", "{{{a <= b} >= c} <> d}"},
      {u"a&1", "{a & 1}"},
      {u"a &1", "{a & 1}"},
      {u"1&2&3", "{{1 & 2} & 3}"},
      {u"a & &17", "{a & &17}"},
      {u"&17 + &hFF&", "{&17 + &hFF&}"},
      {u"\"a\"&height", "{\"a\" & height}"},
      {u"New C", "New C"},
      {u"New [C d]", "New C d"},
      {u"(New C).Run(1)", "<New C>.Run[1]"},
      {u"Me", "Me"},
      {u"Me.x", "Me.x"},
      {u"a.b.c", "a.b.c"},
      {u"a(1)(2).b(3)", "a[1][2].b[3]"},
      {u".a.b", ".a.b"},
      {u"a . b", "a.b"},
      {u"a _\n.b", "a.b"},
      {u"a.if.End.[x y]", "a.if.End.x y"},
      {u"f()", "f[]"},
      {u"f(1, 2)", "f[1, 2]"},
      {u"f(, 2)", "f[_, 2]"},
      {u"f(1, , 3)", "f[1, _, 3]"},
      {u"f((a), b)", "f[<a>, b]"},
      {u"f(a = b)", "f[{a = b}]"},
      {u"f (a)", "f[a]"},
      {u"f(_\n1, _\n2)", "f[1, 2]"},
      {u"[a b] + [+]", "{a b + +}"},
      {u"step + error * default", "{step + {error * default}}"},
      {u"True And False Or Null Is Empty", "{{True And False} Or {Null Is Empty}}"},
      {u"1 + 2\n\n", "{1 + 2}"},
      {u"#1/2/2003# + 1", "{#1/2/2003# + 1}"},
  };
  for (const TreeRow& row : rows) {
    EXPECT_EQ(TreeText(*ParseExpression(row.source)), row.tree) << Text(row.source).ToUtf8();
  }
}

TEST(Parse, DistinguishesAssignmentsFromCalls) {
  const TreeRow rows[] = {
      {u"x = 1", "x := 1"},
      {u"x = y = z", "x := {y = z}"},
      {u"x.y = 1", "x.y := 1"},
      {u"x(1) = 2", "x[1] := 2"},
      {u"x (1) = 2", "x[1] := 2"},
      {u"arr (0) = 2 xor -2", "arr[0] := {2 Xor {neg 2}}"},
      {u"x(1, 2).y(3) = 4", "x[1, 2].y[3] := 4"},
      {u"x() = 1", "x[] := 1"},
      {u"[x y] = 1", "x y := 1"},
      {u".x = 1", ".x := 1"},
      {u"Me.x = 1", "Me.x := 1"},
      {u"Me(1) = 2", "Me[1] := 2"},
      {u"Set x = y", "Set x := y"},
      {u"Set x(1).y = New C", "Set x[1].y := New C"},
      {u"Set Me.x = y", "Set Me.x := y"},
      {u"step = property", "step := property"},
      {u"erase = 1", "erase := 1"},
      {u"erase(1) = 2", "erase[1] := 2"},
      {u"property = 1", "property := 1"},
      {u"f", "f![]"},
      {u"f()", "f![]"},
      {u"f ()", "f![]"},
      {u"f 1", "f![1]"},
      {u"f 1, 2", "f![1, 2]"},
      {u"f (1)", "f![<1>]"},
      {u"f(1)", "f![<1>]"},
      {u"f(1),0", "f![<1>, 0]"},
      {u"f (a), b", "f![<a>, b]"},
      {u"f (a), (b)", "f![<a>, <b>]"},
      {u"f (a), , b", "f![<a>, _, b]"},
      {u"f (a) + 1, b", "f![{<a> + 1}, b]"},
      {u"f (a) * 2 + 1 = 3 And b", "f![{{{{<a> * 2} + 1} = 3} And b}]"},
      {u"f (a) &1", "f![{<a> & 1}]"},
      {u"f &17", "f![&17]"},
      {u"f &hFF", "f![&hFF]"},
      {u"f -1", "f![{neg 1}]"},
      {u"f - 1", "f![{neg 1}]"},
      {u"f + 1", "f![{plus 1}]"},
      {u"f Not a", "f![{Not a}]"},
      {u"f New C", "f![New C]"},
      {u"f 1 = 1, 2", "f![{1 = 1}, 2]"},
      {u"f , 2", "f![_, 2]"},
      {u"f 1, , 3", "f![1, _, 3]"},
      {u"f \"a\"", "f![\"a\"]"},
      {u"f\"a\"", "f![\"a\"]"},
      {u"f .5", "f![.5]"},
      {u"f Me", "f![Me]"},
      {u"f Nothing", "f![Nothing]"},
      {u"f(1)(2)", "f[1]![<2>]"},
      {u"f(1)()", "f[1]![]"},
      {u"f(1, 2)(3)", "f[1, 2]![<3>]"},
      {u"f(1, 2).g 3", "f[1, 2].g![3]"},
      {u"f(1).g(2), 3", "f[1].g![<2>, 3]"},
      {u"o.f 1", "o.f![1]"},
      {u"o.f (1)", "o.f![<1>]"},
      {u"o.if", "o.if![]"},
      {u".f 1", ".f![1]"},
      {u"erase", "erase![]"},
      {u"error 5", "error![5]"},
      {u"With o : f .x : End With", "With o { f![.x] }"},
      {u"With o : f.x : End With", "With o { f.x![] }"},
      {u"With o : f .x, .y.z : End With", "With o { f![.x, .y.z] }"},
      {u"With o : y = f .x : End With", "With o { y := f.x }"},
      {u"f .x", "f.x![]"},
      {u"Call f", "Call f![]"},
      {u"Call f()", "Call f![]"},
      {u"Call f(1)", "Call f![1]"},
      {u"Call f((1))", "Call f![<1>]"},
      {u"Call f(1, 2)", "Call f![1, 2]"},
      {u"Call f(, 2)", "Call f![_, 2]"},
      {u"Call o.f(1).g(2)", "Call o.f[1].g![2]"},
      {u"Call f(1)()", "Call f[1]![]"},
      {u"Call .f(1)", "Call .f![1]"},
      {u"f: g : h", "f![]; g![]; h![]"},
      {u"f\ng\rh\r\ni", "f![]; g![]; h![]; i![]"},
      {u": : f : : g :", "f![]; g![]"},
      {u"f ' comment\nRem all this\ng : Rem more", "f![]; g![]"},
      {u"f 1, _\n  2", "f![1, 2]"},
      {u"", ""},
      {u"\n\n", ""},
  };
  ExpectTrees(rows);
}

TEST(Parse, ReadsDeclarationsOfVariables) {
  const TreeRow rows[] = {
      {u"Dim a", "Dim a"},
      {u"Dim a, b(), c(3), d(4, 5)", "Dim a b() c(3,) d(4,5,)"},
      {u"Dim a(&hF), b(&17&)", "Dim a(15,) b(15,)"},
      {u"Public a, b", "Public a b"},
      {u"Private a", "Private a"},
      {u"Public default", "Public default"},
      {u"Public property, step", "Public property step"},
      {u"Private property", "Private property"},
      {u"Dim step, error, explicit, erase", "Dim step error explicit erase"},
      {u"Const a = 1", "Const a = 1"},
      {u"Const a = -1, b = +2, c = (3), d = -(-(4))",
       "Const a = {neg 1} b = {plus 2} c = <3> d = {neg <{neg <4>}>}"},
      {u"Const a = True, b = \"x\", c = #1/1/2000#, d = Null, e = Nothing, f = Empty",
       "Const a = True b = \"x\" c = #1/1/2000# d = Null e = Nothing f = Empty"},
      {u"Public Const a = 1", "Public a = 1"},
      {u"Private Const a = 1", "Private a = 1"},
      {u"ReDim a(n)", "ReDim a[n]"},
      {u"ReDim Preserve a(n, m + 1), b(2)", "ReDim Preserve a[n, {m + 1}] b[2]"},
      {u"ReDim o.a(1)", "ReDim o.a[1]"},
      {u"ReDim o(1).a(2)", "ReDim o[1].a[2]"},
      {u"ReDim .a(1)", "ReDim .a[1]"},
      {u"Erase a", "Erase a"},
      {u"Erase a, o.b, c(1)", "Erase a, o.b, c[1]"},
      {u"With o : Erase .a : End With", "With o { Erase .a }"},
      {u"Option Explicit\nDim a", "Explicit\nDim a"},
      {u"\n' first\n: Option Explicit : Dim a", "Explicit\nDim a"},
  };
  ExpectTrees(rows);
}

TEST(Parse, ReadsIfs) {
  const TreeRow rows[] = {
      {u"If a Then\nEnd If", "If a {  }"},
      {u"If a Then\nx\nEnd If", "If a { x![] }"},
      {u"If a Then ' comment\nx\nEnd If", "If a { x![] }"},
      {u"If a Then : : \nx\nEnd If", "If a { x![] }"},
      {u"If a Then\nx\nElseIf b Then\ny\nElse\nz\nEnd If", "If a { x![] } ElseIf b { y![] } Else { z![] }"},
      {u"If a Then\nElseIf b Then y\nElse z\nEnd If", "If a {  } ElseIf b { y![] } Else { z![] }"},
      {u"If a Then\nElse: z\nEnd If", "If a {  } Else { z![] }"},
      {u"If a Then\nElse If b Then\ny\nEnd If\nEnd If", "If a {  } Else { If b { y![] } }"},
      {u"If a Then\n: End If", "If a {  }"},
      {u"If a Then\nIf b Then\nEnd If\nEnd If", "If a { If b {  } }"},
      {u"If a Then x", "If a { x![] }"},
      {u"If a Then x : y\nz", "If a { x![]; y![] }; z![]"},
      {u"If a Then : x : : y", "If a { x![]; y![] }"},
      {u"If a Then x Else y", "If a { x![] } Else { y![] }"},
      {u"If a Then x : y Else z : w", "If a { x![]; y![] } Else { z![]; w![] }"},
      {u"If a Then x : Else : y", "If a { x![] } Else { y![] }"},
      {u"If a Then Else y", "If a {  } Else { y![] }"},
      {u"If a Then x Else", "If a { x![] } Else {  }"},
      {u"If a Then x = 1 End If", "If a { x := 1 }"},
      {u"If a Then x End If", "If a { x![] }"},
      {u"If a Then x : End If : y", "If a { x![] }; y![]"},
      {u"If a Then x Else y End If\nz", "If a { x![] } Else { y![] }; z![]"},
      {u"If a Then x ElseIf b Then y Else z", "If a { x![] } ElseIf b { y![] } Else { z![] }"},
      {u"If a Then If b Then x Else y", "If a { If b { x![] } Else { y![] } }"},
      {u"If a Then If b Then x Else y Else z", "If a { If b { x![] } Else { y![] } } Else { z![] }"},
      {u"If a Then If b Then x End If Else z", "If a { If b { x![] } } Else { z![] }"},
      {u"If a Then x Else If b Then y Else z", "If a { x![] } Else { If b { y![] } Else { z![] } }"},
      {u"If a Then x 1 Else y(2)", "If a { x![1] } Else { y![<2>] }"},
      {u"If a Then x(1) Else y = 2", "If a { x![<1>] } Else { y := 2 }"},
      {u"For Each x In y : If a Then Exit For Else z\nNext",
       "ForEach x In y { If a { Exit For } Else { z![] } }"},
      {u"If a Then For i = 1 To 2 : x : Next Else y", "If a { For i 1 To 2 { x![] } } Else { y![] }"},
      {u"If a Then Do : x : Loop While b", "If a { LoopWhile b { x![] } }"},
      {u"If a Then x=1Else x=2", "If a { x := 1 } Else { x := 2 }"},
      {u"If a Then Dim x", "If a { Dim x }"},
  };
  ExpectTrees(rows);
}

TEST(Parse, ReadsLoops) {
  const TreeRow rows[] = {
      {u"For i = 1 To 2\nx\nNext", "For i 1 To 2 { x![] }"},
      {u"For i = a To b + 1 Step -c\nNext", "For i a To {b + 1} Step {neg c} {  }"},
      {u"For i = 1 To 2 : x : Next : y", "For i 1 To 2 { x![] }; y![]"},
      {u"For step = 1 To 3 Step step : Next", "For step 1 To 3 Step step {  }"},
      {u"For i = 1 To 2 : For j = 1 To 2 : Next : Next", "For i 1 To 2 { For j 1 To 2 {  } }"},
      {u"For i = 1 To 2 : Next : For i = 1 To 2 : Next", "For i 1 To 2 {  }; For i 1 To 2 {  }"},
      {u"For i = 1 To 2\nExit For\nNext", "For i 1 To 2 { Exit For }"},
      {u"For Each x In y\nz\nNext", "ForEach x In y { z![] }"},
      {u"For Each x In o.Items(1) : Exit For : Next", "ForEach x In o.Items[1] { Exit For }"},
      {u"Do\nx\nLoop", "Do { x![] }"},
      {u"Do : Exit Do : Loop", "Do { Exit Do }"},
      {u"Do While a\nLoop", "DoWhile a {  }"},
      {u"Do Until a\nLoop", "DoUntil a {  }"},
      {u"Do\nLoop While a", "LoopWhile a {  }"},
      {u"Do\nLoop Until a", "LoopUntil a {  }"},
      {u"Do : For Each x In y : Exit Do : Next : Loop", "Do { ForEach x In y { Exit Do } }"},
      {u"For i = 1 To 2 : Do : Exit For : Loop : Next", "For i 1 To 2 { Do { Exit For } }"},
      {u"While a\nx\nWend", "While a { x![] }"},
      {u"While a : Wend", "While a {  }"},
      {u"While a x = 1\nWend", "While a { x := 1 }"},
      {u"While a x = 1 : Wend", "While a { x := 1 }"},
  };
  ExpectTrees(rows);
}

TEST(Parse, ReadsSelectWithAndTheRest) {
  const TreeRow rows[] = {
      {u"Select Case a\nEnd Select", "Select a"},
      {u"Select Case a\n\nCase 1\nx\nCase 2, b + 1\ny\nCase Else\nz\nEnd Select",
       "Select a Case 1 { x![] } Case 2, {b + 1} { y![] } Else { z![] }"},
      {u"Select Case a : Case 1 : x : Case Else : y : End Select", "Select a Case 1 { x![] } Else { y![] }"},
      {u"Select Case a\nCase 1, 2 x = 2\nCase Else x = 3\nEnd Select",
       "Select a Case 1, 2 { x := 2 } Else { x := 3 }"},
      {u"Select Case a\nCase Else\nEnd Select", "Select a Else {  }"},
      {u"Select Case a\nCase 1\nCase 2\nEnd Select", "Select a Case 1 {  } Case 2 {  }"},
      {u"With o\n.x = .y\n.z 1\nEnd With", "With o { .x := .y; .z![1] }"},
      {u"With New C : .x = 1 End With", "With New C { .x := 1 }"},
      {u"With o : With .p : .x : End With : End With", "With o { With .p { .x![] } }"},
      {u"On Error Resume Next : On Error GoTo 0", "ResumeNext; GoTo0"},
      {u"Stop", "Stop"},
  };
  ExpectTrees(rows);
}

TEST(Parse, ReadsProcedures) {
  const TreeRow rows[] = {
      {u"Sub s\nEnd Sub", " Sub s() {  }\n"},
      {u"Sub s()\nx\nEnd Sub", " Sub s() { x![] }\n"},
      {u"Sub s(a, ByVal b, ByRef c, d())\nEnd Sub", " Sub s(a,ByVal b,c,d(),) {  }\n"},
      {u"Function f(a) : f = a : End Function", " Function f(a,) { f := a }\n"},
      {u"Sub s() x = 1 End Sub", " Sub s() { x := 1 }\n"},
      {u"Sub s() x = 1\nEnd Sub", " Sub s() { x := 1 }\n"},
      {u"Function f() f = 1 End Function", " Function f() { f := 1 }\n"},
      {u"Sub s : f 1 End Sub", " Sub s() { f![1] }\n"},
      {u"Public Sub s()\nEnd Sub", "Public Sub s() {  }\n"},
      {u"Private Function f\nEnd Function", "Private Function f() {  }\n"},
      {u"Sub step(error)\nEnd Sub", " Sub step(error,) {  }\n"},
      {u"Sub [a b]\nEnd Sub", " Sub a b() {  }\n"},
      {u"Sub s\nExit Sub\nEnd Sub", " Sub s() { Exit Sub }\n"},
      {u"Function f\nExit Function\nEnd Function", " Function f() { Exit Function }\n"},
      {u"x\nSub s\nEnd Sub\ny", " Sub s() {  }\nx![]; y![]"},
      {u"If a Then\nSub s\nEnd Sub\nx\nEnd If", " Sub s() {  }\nIf a { x![] }"},
      {u"Sub s\nEnd Sub\nSub S(a)\nEnd Sub", " Sub s() {  }\n Sub S(a,) {  }\n"},
      {u"Sub s\nEnd Sub\nFunction s\nEnd Function", " Sub s() {  }\n Function s() {  }\n"},
      {u"Function f(f)\nEnd Function", " Function f(f,) {  }\n"},
      {u"Dim x\nSub s\nDim x\nEnd Sub\nSub t(x)\nEnd Sub", " Sub s() { Dim x }\n Sub t(x,) {  }\nDim x"},
      {u"Sub s\nFor i = 1 To 2 : Next\nEnd Sub\nFor i = 1 To 2 : Next",
       " Sub s() { For i 1 To 2 {  } }\nFor i 1 To 2 {  }"},
  };
  ExpectTrees(rows);
}

TEST(Parse, ReadsClasses) {
  const TreeRow rows[] = {
      {u"Class C\nEnd Class", "Class C\n"},
      {u"Class C : End Class", "Class C\n"},
      {u"Class C\nPublic x End Class", "Class C\nPublic x\n"},
      {u"Class C\nDim a, b()\nPublic c(3)\nPrivate d\nEnd Class",
       "Class C\nDim a b()\nPublic c(3,)\nPrivate d\n"},
      {u"Class C\nPublic Default Property Get x(i)\nEnd Property\nProperty Let x(i, v)\nEnd Property\n"
       u"Private Property Set x(i, v)\nExit Property\nEnd Property\nEnd Class",
       "Class C\nPublic Default Get x(i,) {  }\n Let x(i,v,) {  }\nPrivate Set x(i,v,) { Exit Property }\n"},
      {u"Class C\nPublic Default Sub x\nEnd Sub\nEnd Class", "Class C\nPublic Default Sub x() {  }\n"},
      {u"Class C\nPublic Default Function x\nEnd Function\nEnd Class",
       "Class C\nPublic Default Function x() {  }\n"},
      {u"Class C\nSub Class_Initialize\nEnd Sub\nSub Class_Terminate()\nEnd Sub\nEnd Class",
       "Class C\n Sub Class_Initialize() {  }\n Sub Class_Terminate() {  }\n"},
      {u"Class C\nProperty Let x(v) y = v End Property\nEnd Class", "Class C\n Let x(v,) { y := v }\n"},
      {u"Class C\nPublic default\nPrivate property\nEnd Class",
       "Class C\nPublic default\nPrivate property\n"},
      {u"Dim x\nClass C\nPublic x\nSub s\nDim x\nEnd Sub\nEnd Class",
       "Class C\nPublic x\n Sub s() { Dim x }\nDim x"},
      {u"Class C\nEnd Class\nClass D\nEnd Class", "Class C\nClass D\n"},
  };
  ExpectTrees(rows);
}

TEST(Parse, KeepsThePositionsOfNodes) {
  const auto tree = Parse(
      u"' one\n"
      u"x = a + _\n"
      u"  o.name(2)\n"
      u"For i = 1 To 2\n"
      u"  f (1) + 2 : g\n"
      u"Next\n"
      u"Public Sub s(a, b)\n"
      u"End Sub\n");
  const auto& assign = static_cast<const AssignStmt&>(*tree->body[0]);
  EXPECT_EQ(assign.position, (Position{2, 0}));
  EXPECT_EQ(assign.value->position, (Position{2, 6}));
  const auto& call = static_cast<const CallExpr&>(*static_cast<const BinaryExpr&>(*assign.value).right);
  EXPECT_EQ(call.position, (Position{3, 2}));
  EXPECT_EQ(static_cast<const MemberExpr&>(*call.callee).namePosition, (Position{3, 4}));
  const auto& loop = static_cast<const ForStmt&>(*tree->body[1]);
  EXPECT_EQ(loop.position, (Position{4, 0}));
  EXPECT_EQ(loop.nextPosition, (Position{6, 0}));
  const auto& first = static_cast<const CallStmt&>(*loop.body[0]);
  EXPECT_EQ(first.position, (Position{5, 2}));
  EXPECT_EQ(static_cast<const BinaryExpr&>(*first.arguments[0]).left->position, (Position{5, 4}));
  EXPECT_EQ(loop.body[1]->position, (Position{5, 14}));
  const ProcedureDecl& sub = *tree->procedures[0];
  EXPECT_EQ(sub.position, (Position{7, 0}));
  EXPECT_EQ(sub.namePosition, (Position{7, 11}));
  EXPECT_EQ(sub.parameters[1].position, (Position{7, 16}));
  EXPECT_EQ(sub.endPosition, (Position{8, 0}));
}

TEST(Parse, OwnsTheSourceOfItsNodes) {
  std::unique_ptr<SyntaxTree> tree;
  {
    Text source = u"Dim veryLongNameThatNoSmallStringHolds";
    tree = Parse(source);
    source += u" and more";
  }
  EXPECT_EQ(TreeText(*tree), "Dim veryLongNameThatNoSmallStringHolds");
}

}  // namespace
}  // namespace cardwright::vbscript
