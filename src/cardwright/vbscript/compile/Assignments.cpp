#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/compile/BodyCompiler.h"

namespace cardwright::vbscript {

namespace {

// An operator never answers an object or an array, so its result may go straight into a variable.
bool NeverGivesObject(const Expr& value) {
  return value.kind == ExprKind::Binary || value.kind == ExprKind::Unary ||
         (value.kind == ExprKind::Literal && !static_cast<const LiteralExpr&>(value).value->IsObject());
}

}  // namespace

void BodyCompiler::CompileAssign(const AssignStmt& statement) {
  const std::uint32_t mark = m_Code.TemporariesUsed();
  switch (statement.target->kind) {
    case ExprKind::Name: AssignName(Find(*statement.target), statement); break;
    case ExprKind::Member:
      AssignMember(static_cast<const MemberExpr&>(*statement.target), {}, statement);
      break;
    default: AssignElement(static_cast<const CallExpr&>(*statement.target), statement); break;
  }
  m_Code.FreeTo(mark);
}

// `s = s & a & b` adds to the text that is there; copying it each time would take quadratic time.
bool BodyCompiler::CompileAppend(const Place& place, const AssignStmt& statement) {
  if (statement.isSet || place.kind == PlaceKind::Constant || place.kind == PlaceKind::Member) return false;
  std::vector<const BinaryExpr*> chain;
  const Expr* first = statement.value;
  while (first->kind == ExprKind::Binary &&
         static_cast<const BinaryExpr*>(first)->op == BinaryOperator::Concatenate) {
    chain.push_back(static_cast<const BinaryExpr*>(first));
    first = chain.back()->left;
  }
  if (chain.empty() || first->kind != ExprKind::Name) return false;
  if (m_Context.linkage.names.Add(static_cast<const NameExpr*>(first)->name) != place.name) return false;
  for (const BinaryExpr* link : chain)
    if (MayRunScript(link->right)) return false;

  const std::uint32_t mark = m_Code.TemporariesUsed();
  Operand tail = Evaluate(*chain.back()->right);
  for (std::size_t k = chain.size() - 1; k-- > 0;) {
    const Operand next = Evaluate(*chain[k]->right);
    m_Code.FreeTo(mark);
    const std::uint16_t sum = m_Code.Temporary();
    EmitBinary(BinaryOperator::Concatenate, sum, tail, next);
    tail = {sum, false};
  }
  if (place.kind == PlaceKind::Register && !place.isReference) {
    EmitBinary(BinaryOperator::Concatenate, place.r, {place.r, false}, tail);
    return true;
  }
  if (tail.isConstant || !m_Code.IsTemporary(tail.index)) {
    const std::uint16_t copy = m_Code.Temporary();
    tail.isConstant ? static_cast<void>(m_Code.EmitWide(Op::LoadConst, copy, tail.index))
                    : static_cast<void>(m_Code.Emit(Op::Copy, copy, tail.index));
    tail = {copy, false};
  }
  if (place.kind == PlaceKind::Register) {
    m_Code.Emit(Op::AppendThrough, place.r, tail.index);
  } else {
    m_Code.EmitWide(place.kind == PlaceKind::Field ? Op::AppendField : Op::AppendSymbol, tail.index,
                    place.index);
  }
  return true;
}

void BodyCompiler::AssignName(const Place& place, const AssignStmt& statement) {
  if (CompileAppend(place, statement)) return;
  if (place.kind == PlaceKind::Register && !place.isReference && !statement.isSet &&
      NeverGivesObject(*statement.value)) {
    EvaluateInto(*statement.value, place.r);
    return;
  }
  if (place.kind == PlaceKind::Member) {
    const std::uint16_t me = m_Code.Temporary();
    m_Code.Emit(Op::LoadMe, me);
    const std::uint16_t value = m_Code.Temporary();
    EvaluateInto(*statement.value, value);
    m_Code.Emit(Op::PutMember, value, me, statement.isSet ? kAsSet : 0, 1);
    m_Code.EmitWord(m_Code.Member(place.name, kNoName));
    return;
  }
  Store(place, EvaluateToRegister(*statement.value), statement.isSet);
}

void BodyCompiler::Store(const Place& place, std::uint16_t value, bool isSet) {
  switch (place.kind) {
    case PlaceKind::Register:
      if (place.isReference) {
        m_Code.Emit(isSet ? Op::SetThrough : Op::LetThrough, place.r, value);
      } else {
        m_Code.Emit(isSet ? Op::Set : Op::Let, place.r, value);
      }
      break;
    case PlaceKind::Field: m_Code.EmitWide(isSet ? Op::SetField : Op::LetField, value, place.index); break;
    case PlaceKind::Symbol: m_Code.EmitWide(isSet ? Op::SetSymbol : Op::LetSymbol, value, place.index); break;
    case PlaceKind::Constant:
    case PlaceKind::Member: EmitIllegalAssignment(place); break;
  }
}

void BodyCompiler::EmitIllegalAssignment(const Place& place) {
  m_Code.EmitWide(Op::RaiseError, static_cast<std::uint16_t>(ErrorNumber::IllegalAssignment),
                  SymbolIndex(place.name));
}

void BodyCompiler::AssignElement(const CallExpr& target, const AssignStmt& statement) {
  if (target.callee->kind == ExprKind::Member) {
    AssignMember(static_cast<const MemberExpr&>(*target.callee), target.arguments, statement);
    return;
  }
  const std::size_t count = target.arguments.size();
  const bool isName = target.callee->kind == ExprKind::Name;
  const Place place = isName ? Find(*target.callee) : Place{.kind = PlaceKind::Constant, .name = kNoName};
  const bool isData = isName && (place.kind == PlaceKind::Register || place.kind == PlaceKind::Symbol ||
                                 place.kind == PlaceKind::Field);
  bool isShort = isData && !statement.isSet && (count == 1 || count == 2);
  for (const Expr* index : target.arguments) isShort = isShort && index->kind != ExprKind::Missing;
  if (isShort) {
    Operand first = Evaluate(*target.arguments[0]);
    Operand second{0, false};
    if (count == 2) {
      first = KeepAcross(first, *target.arguments[1]);
      second = KeepAcross(Evaluate(*target.arguments[1]), *statement.value);
    }
    first = KeepAcross(first, *statement.value);
    const std::uint16_t value = EvaluateToRegister(*statement.value);
    auto flags =
        static_cast<std::uint8_t>((first.isConstant ? kConstantC : 0) | (count == 2 ? kTwoIndices : 0));
    if (place.kind == PlaceKind::Register) {
      if (second.isConstant) flags |= kConstantSecond;
      m_Code.Emit(count == 2 ? Op::SetElement2 : Op::SetElement, value, place.r, first.index, flags);
      if (count == 2) m_Code.EmitWord(0, second.index);
    } else {
      if (second.isConstant) flags |= kConstantB;
      m_Code.Emit(place.kind == PlaceKind::Field ? Op::SetFieldElement : Op::SetSymbolElement, value,
                  second.index, first.index, flags);
      m_Code.EmitWord(place.index);
    }
    return;
  }

  const std::uint16_t flags = statement.isSet ? kAsSet : 0;
  std::uint16_t holder = place.r;
  const bool isSymbol = isData && place.kind == PlaceKind::Symbol;
  if (place.kind == PlaceKind::Member && isName) {
    holder = m_Code.Temporary();
    m_Code.Emit(Op::LoadMe, holder);
  } else if (isData && place.kind == PlaceKind::Field) {
    holder = m_Code.Temporary();
    EmitHolder(place, holder);
  } else if (!isData) {
    holder = EmitElementPath(*target.callee);
  }
  const std::uint16_t base = EmitArguments(target.arguments, Passing::ByValue, 1);
  m_Code.FreeTo(static_cast<std::uint32_t>(base + count));
  EvaluateInto(*statement.value, m_Code.Temporary());
  const std::uint8_t n = Count(count + 1);
  if (isSymbol) {
    m_Code.Emit(Op::PutSymbol, base, flags, 0, n);
    m_Code.EmitWord(place.index);
  } else if (place.kind == PlaceKind::Member && isName) {
    m_Code.Emit(Op::PutMember, base, holder, flags, n);
    m_Code.EmitWord(m_Code.Member(place.name, kNoName));
  } else {
    m_Code.Emit(Op::PutValue, base, holder, flags, n);
  }
}

// The register of a reference to what an assignment indexes. The elements of arrays in arrays are reached one
// from the other, so the references on the way stay in their registers.
std::uint16_t BodyCompiler::EmitElementPath(const Expr& place) {
  const auto* call = place.kind == ExprKind::Call ? static_cast<const CallExpr*>(&place) : nullptr;
  if (!call || call->callee->kind != ExprKind::Call || call->arguments.empty()) {
    const std::uint16_t reference = m_Code.Temporary();
    EmitReference(place, reference);
    return reference;
  }
  const std::uint16_t outer = EmitElementPath(*call->callee);
  const std::uint16_t base = EmitArguments(call->arguments, Passing::ByValue);
  m_Code.Emit(Op::RefElement, base, outer, 0, Count(call->arguments.size()));
  m_Code.FreeTo(base + 1u);
  return base;
}

void BodyCompiler::AssignMember(const MemberExpr& member, std::span<Expr* const> arguments,
                                const AssignStmt& statement) {
  const std::uint16_t object = ObjectOf(member);
  const std::uint16_t base = EmitArguments(arguments, Passing::ByReference, 1);
  m_Code.FreeTo(static_cast<std::uint32_t>(base + arguments.size()));
  EvaluateInto(*statement.value, m_Code.Temporary());
  m_Code.Emit(Op::PutMember, base, object, statement.isSet ? kAsSet : 0, Count(arguments.size() + 1));
  const NameId about = member.object ? ObjectName(*member.object) : kNoName;
  m_Code.EmitWord(m_Code.Member(m_Context.linkage.names.Add(member.name), about));
}

}  // namespace cardwright::vbscript
