// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/syntax/ExpressionPrinter.h"

namespace cardwright::vbscript {

std::u16string_view SpellingOf(BinaryOperator op) {
  using enum BinaryOperator;
  switch (op) {
    case Power: return u"^";
    case Multiply: return u"*";
    case Divide: return u"/";
    case IntegerDivide: return u"\\";
    case Modulo: return u"Mod";
    case Add: return u"+";
    case Subtract: return u"-";
    case Concatenate: return u"&";
    case Equal: return u"=";
    case NotEqual: return u"<>";
    case Less: return u"<";
    case LessOrEqual: return u"<=";
    case Greater: return u">";
    case GreaterOrEqual: return u">=";
    case Is: return u"Is";
    case And: return u"And";
    case Or: return u"Or";
    case Xor: return u"Xor";
    case Eqv: return u"Eqv";
    case Imp: return u"Imp";
  }
  return {};
}

namespace {

constexpr std::u16string_view SpellingOf(UnaryOperator op) {
  switch (op) {
    case UnaryOperator::Negate: return u"-";
    case UnaryOperator::Plus: return u"+";
    case UnaryOperator::Not: return u"Not ";
  }
  return {};
}

}  // namespace

void ExpressionPrinter::Write(const Expr& expression) {
  switch (expression.kind) {
    case ExprKind::Literal: *this << static_cast<const LiteralExpr&>(expression).spelling; break;
    case ExprKind::Name: WriteName(static_cast<const NameExpr&>(expression).name); break;
    case ExprKind::Member: WriteMember(static_cast<const MemberExpr&>(expression)); break;
    case ExprKind::Call: {
      const auto& call = static_cast<const CallExpr&>(expression);
      *this << *call.callee << u"(";
      WriteList(call.arguments);
      *this << u")";
      break;
    }
    case ExprKind::Paren: *this << u"(" << *static_cast<const ParenExpr&>(expression).inner << u")"; break;
    case ExprKind::Unary: WriteUnary(static_cast<const UnaryExpr&>(expression)); break;
    case ExprKind::Binary: WriteBinary(static_cast<const BinaryExpr&>(expression)); break;
    case ExprKind::New:
      *this << u"New ";
      WriteName(static_cast<const NewExpr&>(expression).className);
      break;
    case ExprKind::Me: *this << u"Me"; break;
    case ExprKind::Missing: break;
  }
}

/// The parser nests a chain of operators to the left, so the only parentheses needed are those in the tree.
/// The chain may be too long for recursion.
void ExpressionPrinter::WriteBinary(const BinaryExpr& binary) {
  std::vector<const BinaryExpr*> chain;
  const Expr* left = &binary;
  for (; left->kind == ExprKind::Binary; left = chain.back()->left) {
    chain.push_back(static_cast<const BinaryExpr*>(left));
  }
  *this << *left;
  for (auto link = chain.rbegin(); link != chain.rend(); ++link) {
    *this << u" " << SpellingOf((*link)->op) << u" " << *(*link)->right;
  }
}

void ExpressionPrinter::WriteUnary(const UnaryExpr& unary) {
  *this << SpellingOf(unary.op) << *unary.operand;
}

void ExpressionPrinter::WriteMember(const MemberExpr& member) {
  if (member.object != nullptr) *this << *member.object;
  *this << u".";
  WriteName(member.name);
}

void ExpressionPrinter::WriteName(std::u16string_view name) {
  const bool isBracketed = name.data() != m_Source.data() && name.data()[-1] == u'[';
  *this << (isBracketed ? u"[" : u"") << name << (isBracketed ? u"]" : u"");
}

void ExpressionPrinter::WriteList(std::span<Expr* const> expressions) {
  for (std::size_t i = 0; i < expressions.size(); ++i) {
    if (i > 0) *this << u", ";
    *this << *expressions[i];
  }
}

}  // namespace cardwright::vbscript
