// SPDX-License-Identifier: MIT
#include "ProgramWriter.h"

#include <array>
#include <vector>

#include "cardwright/vbscript/builtins/Builtin.h"

namespace cardwright::vbscript {

namespace {

constexpr int kDeepest = 4, kMostNested = 3, kMostStatements = 60, kMostSources = 2;

constexpr const char16_t* kNames[] = {u"a", u"b", u"c", u"x", u"y", u"f", u"g", u"p", u"K", u"L", u"d", u"r"};

const std::vector<Builtin>& Library() {
  static const std::vector<Builtin> library = [] {
    std::vector<Builtin> all;
    for (const auto family : BuiltinFamilies()) all.insert(all.end(), family.begin(), family.end());
    return all;
  }();
  return library;
}

std::u16string Quoted(const std::u16string& source) {
  std::u16string text = u"\"";
  for (const char16_t c : source) {
    if (c == u'\n') {
      text += u":";
    } else {
      text += c;
      if (c == u'"') text += c;
    }
  }
  return text + u"\"";
}

}  // namespace

unsigned ProgramWriter::Choice(unsigned count) {
  if (m_Bytes.empty()) return 0;
  const unsigned byte = m_Bytes.front();
  m_Bytes = m_Bytes.subspan(1);
  return byte % count;
}

std::u16string ProgramWriter::Name() { return Pick(kNames); }

std::u16string ProgramWriter::Literal() {
  static constexpr const char16_t* kLiterals[] = {
      u"0",     u"1",     u"-1",     u"2",        u"32767",   u"2147483647", u"1.5",
      u"\"\"",  u"\"a\"", u"\"7\"",  u"True",     u"Empty",   u"Null",       u"Nothing",
      u"1e308", u"&HFF",  u"Now",    u"Me",       u"New K",   u"New RegExp", u"Array(1, x, \"s\")",
      u"60000", u"New L", u"-32768", u"CByte(3)", u"CCur(9)", u"#1/2/2003#", u"vbCrLf",
      u"\"K\""};
  return Pick(kLiterals);
}

std::u16string ProgramWriter::Arguments(unsigned least, unsigned most) {
  std::u16string list;
  const unsigned count = least + Choice(most - least + 1);
  for (unsigned k = 0; k < count; ++k) {
    if (k) list += u", ";
    if (Choice(12) != 11) list += Expression();
  }
  return list;
}

std::u16string ProgramWriter::LibraryCall() {
  const Builtin& function = Library()[Choice(static_cast<unsigned>(Library().size()))];
  const unsigned most = function.maxArguments == kAnyCount ? 3 : function.maxArguments;
  return std::u16string(function.name) + u"(" + Arguments(function.minArguments, most) + u")";
}

/// A program's text as an expression.
std::u16string ProgramWriter::Source() {
  if (m_Sources == kMostSources) return u"\"x\"";
  ++m_Sources;
  std::u16string outer;
  outer.swap(m_Text);
  switch (Choice(4)) {
    case 0: Procedure(Name(), false); break;
    case 1: Class(Choice(2) ? u"K" : u"L"); break;
    case 2: Line(u"Dim " + Name() + (Choice(2) ? u"(2)" : u"")); break;
    default: Simple(); break;
  }
  outer.swap(m_Text);
  --m_Sources;
  return Quoted(outer);
}

std::u16string ProgramWriter::Place() {
  switch (Choice(8)) {
    case 0: return Name() + u"(" + Expression() + u")";
    case 1: return Name() + u"(" + Expression() + u", " + Expression() + u")";
    case 2: return Name() + u"." + Name();
    case 3: return Name() + u"." + Name() + u"(" + Expression() + u")";
    case 4: return Name() + u"(" + Expression() + u")(" + Expression() + u")";
    default: return Name();
  }
}

std::u16string ProgramWriter::Operand() {
  switch (Choice(10)) {
    case 0: return Literal();
    case 1: return Place();
    case 2: return LibraryCall();
    case 3: return u"(" + Expression() + u")";
    case 4: return Name() + u"(" + Arguments(0, 2) + u")";
    case 5: return u"Eval(" + (Choice(2) ? Quoted(Expression()) : Expression()) + u")";
    case 6: return u"GetRef(\"" + Name() + u"\")";
    case 7: {
      static constexpr const char16_t* kMembers[] = {u"d.Item(",     u"d.Exists(", u"d.Keys(",    u"d.Items(",
                                                     u"r.Execute(",  u"r.Test(",   u"r.Replace(", u"d.Count(",
                                                     u"Err.Number(", u"d.HashVal("};
      return Pick(kMembers) + Arguments(0, 2) + u")";
    }
    default: return Name();
  }
}

std::u16string ProgramWriter::Expression() {
  if (++m_Depth > kDeepest) {
    --m_Depth;
    return Choice(2) ? Name() : Literal();
  }
  static constexpr const char16_t* kOperators[] = {u" + ",  u" - ",   u" * ",  u" / ",   u" \\ ",  u" Mod ",
                                                   u" ^ ",  u" & ",   u" = ",  u" <> ",  u" < ",   u" >= ",
                                                   u" Is ", u" And ", u" Or ", u" Xor ", u" Eqv ", u" Imp "};
  std::u16string text = Operand();
  switch (Choice(6)) {
    case 0: text = u"-" + text; break;
    case 1: text = u"Not " + text; break;
    case 2:
    case 3: text += Pick(kOperators) + Operand(); break;
    default: break;
  }
  --m_Depth;
  return text;
}

void ProgramWriter::Line(const std::u16string& text) { m_Text += text + u"\n"; }

void ProgramWriter::Simple() {
  static constexpr const char16_t* kDictionary[] = {u"d.Add ",      u"d.Remove ",        u"d.RemoveAll ",
                                                    u"d.Key(x) = ", u"d.CompareMode = ", u"d.Item(y) = "};
  static constexpr const char16_t* kExpression[] = {u"r.Pattern = ", u"r.Global = ", u"r.IgnoreCase = ",
                                                    u"Err.Raise ", u"Err.Clear "};
  switch (Choice(18)) {
    case 0: Line(u"Set " + Place() + u" = " + Expression()); break;
    case 1: Line(Name() + u" " + Arguments(0, 2)); break;
    case 2: Line(u"Call " + Name() + u"(" + Arguments(0, 2) + u")"); break;
    case 3: Line(u"ReDim " + Name() + u"(" + Expression() + u")"); break;
    case 4: Line(u"ReDim Preserve " + Name() + u"(" + Arguments(1, 2) + u")"); break;
    case 5: Line(u"Erase " + Name()); break;
    case 6: Line(Choice(4) ? u"On Error Resume Next" : u"On Error GoTo 0"); break;
    case 7: Line(u"Execute " + Source()); break;
    case 8: Line(u"ExecuteGlobal " + Source()); break;
    case 9: Line(Pick(kDictionary) + Arguments(0, 2)); break;
    case 10: Line(Pick(kExpression) + Arguments(0, 2)); break;
    case 11: Line(Name() + u"." + Name() + u" " + Arguments(0, 2)); break;
    case 12: Line(u"Set " + Name() + u" = Nothing"); break;
    case 13: {
      const std::u16string name = Name();
      Line(name + u" = " + name + u" & " + Expression());
      break;
    }
    case 14: Line(u"Set " + Name() + u" = New " + (Choice(2) ? u"K" : u"L")); break;
    case 15: Line(Name() + u" = Array(" + Arguments(0, 3) + u")"); break;
    default: Line(Place() + u" = " + Expression()); break;
  }
}

void ProgramWriter::Block() {
  for (unsigned count = 1 + Choice(4); count > 0; --count) Statement();
}

void ProgramWriter::Statement() {
  if (++m_Statements > kMostStatements) return;
  if (m_Nesting < kMostNested && Choice(3) == 0) {
    ++m_Nesting;
    Compound();
    --m_Nesting;
  } else {
    Simple();
  }
}

void ProgramWriter::Choose() {
  if (Choice(2)) {
    Line(u"If " + Expression() + u" Then");
    Block();
    if (Choice(2)) {
      Line(u"ElseIf " + Expression() + u" Then");
      Block();
    }
    Line(u"Else");
    Block();
    Line(u"End If");
    return;
  }
  Line(u"Select Case " + Expression());
  Line(u"Case " + Expression() + u", " + Expression());
  Block();
  Line(u"Case Else");
  Block();
  Line(u"End Select");
}

void ProgramWriter::Loop() {
  switch (Choice(5)) {
    case 0:
      Line(u"Do While " + Expression());
      Block();
      Line(Choice(2) ? u"Exit Do\nLoop" : u"Loop");
      break;
    case 1:
      Line(u"Do");
      Block();
      Line(u"Loop Until " + Expression());
      break;
    case 2:
      Line(u"While " + Expression());
      Block();
      Line(u"Wend");
      break;
    default: {
      // A variable for each level: nested loops must not share one.
      static constexpr std::array<const char16_t*, kMostNested + 1> kVariables = {u"i", u"i", u"x", u"j"};
      const std::u16string variable = kVariables[static_cast<std::size_t>(m_Nesting)];
      Line(u"For " + variable + u" = " + Expression() + u" To " + Expression() +
           (Choice(2) ? u" Step " + Expression() : u""));
      Block();
      if (Choice(4) == 0) Line(u"Exit For");
      Line(u"Next");
    }
  }
}

void ProgramWriter::Compound() {
  switch (Choice(5)) {
    case 0: Choose(); break;
    case 1: Loop(); break;
    case 2:
      Line(u"With " + Expression());
      Block();
      Line(u"." + Name() + u" = " + Expression());
      Line(u"End With");
      break;
    default:
      Line(u"For Each " + Name() + u" In " + Expression());
      Block();
      Line(u"Next");
      break;
  }
}

void ProgramWriter::Procedure(const std::u16string& name, bool isMember) {
  static constexpr const char16_t* kParameters[] = {
      u"", u"", u"x", u"ByVal x", u"x, y", u"a", u"ByRef b, ByVal c"};
  const bool isFunction = Choice(2) != 0;
  const std::u16string kind = isFunction ? u"Function " : u"Sub ";
  Line((isMember && Choice(4) == 0 ? u"Private " : u"") + kind + name + u"(" + Pick(kParameters) + u")");
  if (Choice(3) == 0) Line(u"Dim x2, y2(3)");
  Block();
  if (isFunction) Line((Choice(3) ? u"" : u"Set ") + name + u" = " + Expression());
  Line(u"End " + kind);
}

void ProgramWriter::Property(const std::u16string& name) {
  Line(u"Public Default Property Get " + name + (Choice(2) ? u"" : u"(x)"));
  const bool hasIndex = m_Text.ends_with(u"(x)\n");
  Block();
  Line((Choice(3) ? u"" : u"Set ") + name + u" = " + Expression());
  Line(u"End Property");
  if (Choice(2)) {
    Line(u"Public Property " + std::u16string(Choice(2) ? u"Let " : u"Set ") + name + u"(" +
         (hasIndex ? u"x, " : u"") + u"y)");
    Block();
    Line(u"End Property");
  }
}

void ProgramWriter::Class(const std::u16string& name) {
  Line(u"Class " + name);
  Line(u"Public a, b(2), y");
  Line(u"Private c()");
  if (Choice(2)) Property(u"p");
  if (Choice(2)) {
    Line(u"Private Sub Class_Initialize()");
    Block();
    Line(u"End Sub");
  }
  if (Choice(3)) {
    Line(u"Private Sub Class_Terminate()");
    Block();
    Line(u"End Sub");
  }
  Procedure(u"f", true);
  Line(u"End Class");
}

std::u16string ProgramWriter::Write() {
  Line(u"Dim a(3), b(), x, y");
  Line(u"Set d = CreateObject(\"Scripting.Dictionary\")");
  Line(u"Set r = New RegExp");
  if (Choice(4)) Line(u"On Error Resume Next");
  Class(u"K");
  if (Choice(2)) Class(u"L");
  for (unsigned count = Choice(3); count > 0; --count) Procedure(count == 1 ? u"f" : u"g", false);
  m_Statements = 0;
  while (m_Statements < kMostStatements && !m_Bytes.empty()) Statement();
  return std::move(m_Text);
}

}  // namespace cardwright::vbscript
