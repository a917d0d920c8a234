// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/StatementPrinter.h"

namespace cardwright::vbscript {

namespace {

constexpr std::u16string_view SpellingOf(ExitKind exit) {
  switch (exit) {
    case ExitKind::Do: return u"Do";
    case ExitKind::For: return u"For";
    case ExitKind::Sub: return u"Sub";
    case ExitKind::Function: return u"Function";
    case ExitKind::Property: return u"Property";
  }
  return {};
}

struct LoopWords {
  std::u16string_view head, tail;
  bool isTested;  ///< in the head
  bool isTestedAtTail;
};

constexpr LoopWords WordsOf(LoopKind loop) {
  switch (loop) {
    case LoopKind::Endless: return {u"Do", u"Loop", false, false};
    case LoopKind::DoWhile: return {u"Do While ", u"Loop", true, false};
    case LoopKind::DoUntil: return {u"Do Until ", u"Loop", true, false};
    case LoopKind::LoopWhile: return {u"Do", u"Loop While ", false, true};
    case LoopKind::LoopUntil: return {u"Do", u"Loop Until ", false, true};
    case LoopKind::WhileWend: return {u"While ", u"Wend", true, false};
  }
  return {};
}

}  // namespace

StatementPrinter& StatementPrinter::Line() {
  m_Text.append(m_Depth * 2, u' ');
  return *this;
}

void StatementPrinter::WriteBlock(Block block) {
  ++m_Depth;
  for (const Stmt* statement : block) WriteStatement(*statement);
  --m_Depth;
}

void StatementPrinter::WriteStatement(const Stmt& statement) {
  Line();
  switch (statement.kind) {
    case StmtKind::Dim: Write(static_cast<const DimStmt&>(statement)); break;
    case StmtKind::ReDim: Write(static_cast<const ReDimStmt&>(statement)); break;
    case StmtKind::Erase: Write(static_cast<const EraseStmt&>(statement)); break;
    case StmtKind::Const: Write(static_cast<const ConstStmt&>(statement)); break;
    case StmtKind::Assign: Write(static_cast<const AssignStmt&>(statement)); break;
    case StmtKind::Call: Write(static_cast<const CallStmt&>(statement)); break;
    case StmtKind::If: Write(static_cast<const IfStmt&>(statement)); break;
    case StmtKind::Select: Write(static_cast<const SelectStmt&>(statement)); break;
    case StmtKind::For: Write(static_cast<const ForStmt&>(statement)); break;
    case StmtKind::ForEach: Write(static_cast<const ForEachStmt&>(statement)); break;
    case StmtKind::Loop: Write(static_cast<const LoopStmt&>(statement)); break;
    case StmtKind::With: Write(static_cast<const WithStmt&>(statement)); break;
    case StmtKind::Exit: *this << u"Exit " << SpellingOf(static_cast<const ExitStmt&>(statement).exit); break;
    case StmtKind::OnError:
      *this << u"On Error "
            << (static_cast<const OnErrorStmt&>(statement).resumeNext ? u"Resume Next" : u"GoTo 0");
      break;
    case StmtKind::Stop: *this << u"Stop"; break;
  }
  EndLine();
}

void StatementPrinter::Write(const ReDimStmt& redim) {
  *this << (redim.preserve ? u"ReDim Preserve " : u"ReDim ");
  for (std::size_t i = 0; i < redim.targets.size(); ++i) {
    if (i > 0) *this << u", ";
    *this << *redim.targets[i].array << u"(";
    WriteList(redim.targets[i].bounds);
    *this << u")";
  }
}

void StatementPrinter::Write(const EraseStmt& erase) {
  *this << u"Erase ";
  WriteList(erase.arrays);
}

void StatementPrinter::Write(const AssignStmt& assign) {
  *this << (assign.isSet ? u"Set " : u"") << *assign.target << u" = " << *assign.value;
}

/// Without Call, a blank after the callee makes parentheses part of the first argument. A callee that ends in
/// parentheses of its own is followed by another pair.
void StatementPrinter::Write(const CallStmt& call) {
  const bool isWrapped = call.arguments.empty() && call.callee->kind == ExprKind::Call;
  *this << (call.hasKeyword ? u"Call " : u"") << *call.callee;
  if (isWrapped || (call.hasKeyword && !call.arguments.empty())) {
    *this << u"(";
    WriteList(call.arguments);
    *this << u")";
  } else if (!call.arguments.empty()) {
    *this << u" ";
    WriteList(call.arguments);
  }
}

void StatementPrinter::Write(const IfStmt& branches) {
  for (const IfBranch& branch : branches.branches) {
    const bool isFirst = &branch == branches.branches.data();
    if (!isFirst) Line();
    *this << (isFirst ? u"If " : u"ElseIf ") << *branch.condition << u" Then\n";
    WriteBlock(branch.body);
  }
  if (branches.hasElse) {
    Line() << u"Else\n";
    WriteBlock(branches.otherwise);
  }
  Line() << u"End If";
}

void StatementPrinter::Write(const SelectStmt& select) {
  *this << u"Select Case " << *select.subject << u"\n";
  for (const SelectCase& branch : select.cases) {
    Line() << u"Case ";
    WriteList(branch.values);
    EndLine();
    WriteBlock(branch.body);
  }
  if (select.hasElse) {
    Line() << u"Case Else\n";
    WriteBlock(select.otherwise);
  }
  Line() << u"End Select";
}

void StatementPrinter::Write(const ForStmt& loop) {
  *this << u"For " << *loop.variable << u" = " << *loop.from << u" To " << *loop.to;
  if (loop.step != nullptr) *this << u" Step " << *loop.step;
  EndLine();
  WriteBlock(loop.body);
  Line() << u"Next";
}

void StatementPrinter::Write(const ForEachStmt& loop) {
  *this << u"For Each " << *loop.variable << u" In " << *loop.collection << u"\n";
  WriteBlock(loop.body);
  Line() << u"Next";
}

void StatementPrinter::Write(const LoopStmt& loop) {
  const LoopWords words = WordsOf(loop.loop);
  *this << words.head;
  if (words.isTested) *this << *loop.condition;
  EndLine();
  WriteBlock(loop.body);
  Line() << words.tail;
  if (words.isTestedAtTail) *this << *loop.condition;
}

void StatementPrinter::Write(const WithStmt& with) {
  *this << u"With " << *with.object << u"\n";
  WriteBlock(with.body);
  Line() << u"End With";
}

}  // namespace cardwright::vbscript
