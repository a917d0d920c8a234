// SPDX-License-Identifier: MIT
#include <cmath>

#include "cardwright/vbscript/machine/Elements.h"
#include "cardwright/vbscript/machine/Enumeration.h"
#include "cardwright/vbscript/machine/Loops.h"
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/machine/SlowPaths.h"
#include "cardwright/vbscript/operators/Operators.h"

// The interpreter's loop.
//
// Where things are. The state that every operation needs is in local variables of Run: the next instruction
// (pc), the registers of the running frame (R), the constants of its procedure (K). Their addresses are never
// taken, so the compiler keeps them in machine registers. Members of the machine would be read again after
// every store through a Variant, because the compiler cannot know that the store leaves them unchanged. For
// the same reason functions that work on registers get copies of these locals (RegisterView).
//
// Calls. An operation that may call a procedure first stores pc in the running frame, which continues there
// when the call returns. The function that makes the call returns false when the result is in place already,
// as from the library or the host, and true when it has pushed a frame. Then AFTER_CALL loads the locals from
// the new frame, and the loop continues in the callee. Return pops the frame and loads the caller's.
//
// Temporaries. An operation that reads a temporary clears it or moves its value on (Procedure.h). The quick
// paths here work on numbers, which need no clearing; all others do it.
//
// Errors. They are exceptions, so that the quick paths need not test for them. The handlers at the end of Run
// catch them; Handle finds the frame that continues, and the loop starts again with it.
//
// As an example, take `x = a(i) + 1`, whose instructions BodyCompiler.h lists. GetElement copies the element.
// If `a` holds no array or `i` no whole number, GetElementSlowly converts the index, or calls the default
// member of an object. Move leaves its source empty. Add adds whole numbers or doubles at once; for anything
// else ApplyAdd calls the operator, clears the temporary and stores the result.

// Jumps to the addresses of labels are what makes the loop quick: each operation ends with a jump of its own
// to the next operation (NEXT), which the processor predicts by what usually follows this one. All compilers
// that the library is built with have them.
#pragma GCC diagnostic ignored "-Wpedantic"

namespace cardwright::vbscript {

namespace {

// Jumps back and calls between two looks at the clock.
constexpr int kTicks = 2048;

// The narrowest of the two types that holds the result of two whole operands.
VarType WholeType(const Variant& x, const Variant& y, std::int32_t result) noexcept {
  const int wider = static_cast<int>(x.Type()) | static_cast<int>(y.Type());
  return static_cast<VarType>(wider | (result != static_cast<std::int16_t>(result)));
}
static_assert((static_cast<int>(VarType::Integer) | 1) == static_cast<int>(VarType::Long));

bool AreDoubles(const Variant& x, const Variant& y) noexcept {
  return x.Type() == VarType::Double && y.Type() == VarType::Double;
}
bool IsReal(const Variant& value) noexcept { return value.Type() == VarType::Double || value.IsWhole(); }
double Real(const Variant& value) noexcept {
  return value.Type() == VarType::Double ? value.Double() : value.Long();
}

// Assigning an object asks for its default value, which may run code that changes the array being assigned
// to.
bool IsNoObject(const Variant& value) noexcept { return !value.Deref().IsObject(); }

}  // namespace

// NOLINTBEGIN(readability-function-size): a label for each operation, a few lines each. Opcodes.def describes them.
void Machine::Run() {
  static const void* const kLabels[] = {
#define OPCODE(name, ...) &&L_##name,
#include "cardwright/vbscript/code/Opcodes.def"
#undef OPCODE
  };

  const std::size_t baseDepth = m_Depth;  // Run returns when this frame does
  const Instruction* pc = nullptr;
  const Procedure* procedure = nullptr;
  Variant* R = nullptr;
  const Variant* K = nullptr;
  std::uint32_t firstTemporary = 0;
  int ticks = kTicks;
  Instruction i{};

#define NEXT goto* kLabels[static_cast<std::size_t>(pc++->op)]
// Each operation reads its own instruction. One that lived from jump to jump would occupy machine registers
// that the loop needs.
#define OPERATION(name) L_##name : i = pc[-1];
#define RELOAD()                                \
  do {                                          \
    const Frame& frame = Current();             \
    procedure = frame.procedure;                \
    pc = frame.pc;                              \
    R = frame.registers;                        \
    K = procedure->constants.data();            \
    firstTemporary = procedure->firstTemporary; \
  } while (false)
// After a call that may have pushed a frame. A call of a procedure can be interrupted like a jump back:
// recursion may be endless too.
#define AFTER_CALL(pushed) \
  do {                     \
    if (pushed) {          \
      RELOAD();            \
      TICK();              \
    }                      \
    NEXT;                  \
  } while (false)
#define VIEW \
  RegisterView { R, K, firstTemporary }
#define OPERAND_B ((i.n & kConstantB) ? K[i.b] : R[i.b])
#define OPERAND_C ((i.n & kConstantC) ? K[i.c] : R[i.c])
#define TICK()                                                                   \
  do {                                                                           \
    if (--ticks < 0 || m_Order.load(std::memory_order_relaxed) != Order::None) { \
      ticks = kTicks;                                                            \
      PollInterrupts();                                                          \
    }                                                                            \
  } while (false)
// The quick paths. No object with a destructor may be alive at NEXT: the jump would skip the destructor.
#define ARITHMETIC(name, builtin, sign, slowly)                                     \
  OPERATION(name) {                                                                 \
    const Variant& x = OPERAND_B;                                                   \
    const Variant& y = OPERAND_C;                                                   \
    if (Variant::AreWhole(x, y)) {                                                  \
      std::int32_t whole;                                                           \
      if (!builtin(x.Long(), y.Long(), &whole)) {                                   \
        R[i.a].PutWhole(whole, WholeType(x, y, whole));                             \
        NEXT;                                                                       \
      }                                                                             \
      R[i.a].Put(static_cast<double>(x.Long()) sign static_cast<double>(y.Long())); \
      NEXT;                                                                         \
    }                                                                               \
    if (AreDoubles(x, y) || (IsReal(x) && IsReal(y))) {                             \
      const double real = Real(x) sign Real(y);                                     \
      if (std::isfinite(real)) {                                                    \
        R[i.a].Put(real);                                                           \
        NEXT;                                                                       \
      }                                                                             \
    }                                                                               \
    slowly;                                                                         \
    NEXT;                                                                           \
  }
#define WHOLE_DIVISION(name, sign)                       \
  OPERATION(name) {                                      \
    const Variant& x = OPERAND_B;                        \
    const Variant& y = OPERAND_C;                        \
    if (Variant::AreWhole(x, y) && y.Long() > 0) {       \
      const std::int32_t whole = x.Long() sign y.Long(); \
      R[i.a].PutWhole(whole, WholeType(x, y, whole));    \
      NEXT;                                              \
    }                                                    \
    ApplyBinary(VIEW, i, name);                          \
    NEXT;                                                \
  }
#define COMPARE_JUMP(name, whenTrue, sign)                                                                  \
  OPERATION(name) {                                                                                         \
    const Variant& x = OPERAND_B;                                                                           \
    const Variant& y = OPERAND_C;                                                                           \
    bool holds;                                                                                             \
    if (Variant::AreWhole(x, y)) {                                                                          \
      holds = x.Long() sign y.Long();                                                                       \
    } else if (IsReal(x) && IsReal(y)) {                                                                    \
      holds = Real(x) sign Real(y);                                                                         \
    } else {                                                                                                \
      const Ordering order = CompareOperands(VIEW, i);                                                      \
      holds = order != Ordering::Unknown && static_cast<int>(order) sign static_cast<int>(Ordering::Equal); \
    }                                                                                                       \
    pc += holds == (whenTrue) ? pc->Offset() + 1 : 1;                                                       \
    NEXT;                                                                                                   \
  }

  for (;;) {
    PendingError pending;
    try {
      RELOAD();
      NEXT;

      OPERATION(LoadConst)
      R[i.a] = K[i.Wide()];
      NEXT;
      OPERATION(Copy)
      CopyValue(R[i.a], R[i.b]);
      NEXT;
      OPERATION(Move)
      R[i.a] = std::move(R[i.b]);
      NEXT;
      OPERATION(LoadMe)
      R[i.a] = Ref<Instance>(Current().me);
      NEXT;
      OPERATION(LoadSymbol) {
        SymbolUse& use = procedure->symbols[i.Wide()];
        if (use.epoch == m_Epoch && use.variable) {
          R[i.a] = *use.variable;
          NEXT;
        }
        if (use.epoch == m_Epoch && use.IsLocal()) {
          CopyValue(R[i.a], R[use.local]);
          NEXT;
        }
        Current().pc = pc;
        AFTER_CALL(LoadSymbol(use, R[i.a]));
      }
      OPERATION(LoadField)
      R[i.a] = Current().me->Field(i.Wide());
      NEXT;
      OPERATION(Clear)
      for (int k = 0; k < i.n; ++k) R[i.a + k].Reset();
      NEXT;

      OPERATION(Let)
      AssignPlain(R[i.a], R[i.b], i.b >= firstTemporary);
      NEXT;
      OPERATION(LetThrough)
      AssignPlainThrough(R[i.a], R[i.b], i.b >= firstTemporary);
      NEXT;
      OPERATION(Set)
      AssignObject(R[i.a], R[i.b], i.b >= firstTemporary);
      NEXT;
      OPERATION(SetThrough)
      AssignObject(R[i.a].Deref(), R[i.b], i.b >= firstTemporary);
      NEXT;
      OPERATION(LetSymbol) {
        SymbolUse& use = procedure->symbols[i.Wide()];
        if (use.epoch == m_Epoch && use.variable) {
          AssignPlain(*use.variable, R[i.a], i.a >= firstTemporary);
        } else if (use.epoch == m_Epoch && use.IsLocal()) {
          AssignPlain(R[use.local].Deref(), R[i.a], i.a >= firstTemporary);
        } else {
          AssignSymbol(use, R[i.a], false, i.a >= firstTemporary);
        }
        NEXT;
      }
      OPERATION(SetSymbol)
      AssignSymbol(procedure->symbols[i.Wide()], R[i.a], true, i.a >= firstTemporary);
      NEXT;
      OPERATION(LetField)
      AssignPlain(Current().me->Field(i.Wide()), R[i.a], i.a >= firstTemporary);
      NEXT;
      OPERATION(SetField)
      AssignObject(Current().me->Field(i.Wide()), R[i.a], i.a >= firstTemporary);
      NEXT;
      OPERATION(AppendSymbol)
      AppendToSymbol(VIEW, i, procedure->symbols[i.Wide()]);
      NEXT;
      OPERATION(AppendField)
      AppendText(*this, Current().me->Field(i.Wide()), VIEW, i.a);
      NEXT;
      OPERATION(AppendThrough)
      AppendText(*this, R[i.a], VIEW, i.b);
      NEXT;

      OPERATION(RefRegister)
      R[i.a] = Variant::ByRef(R[i.b]);
      NEXT;
      OPERATION(RefSymbol) {
        SymbolUse& use = procedure->symbols[i.Wide()];
        if (use.epoch == m_Epoch && use.variable) {
          R[i.a] = Variant::ByRef(*use.variable);
          NEXT;
        }
        Current().pc = pc;
        AFTER_CALL(ReferToSymbol(use, R[i.a]));
      }
      OPERATION(RefField)
      R[i.a] = Variant::ByRef(Current().me->Field(i.Wide()));
      NEXT;
      OPERATION(RefElement)
      Current().pc = pc;
      AFTER_CALL(ReferToElement(VIEW, i));
      OPERATION(RefSymbolElement) {
        SymbolUse& use = procedure->symbols[pc->Wide()];
        ++pc;
        Current().pc = pc;
        AFTER_CALL(ReferToSymbolElement(VIEW, i, use));
      }

      ARITHMETIC(Add, __builtin_add_overflow, +, ApplyAdd(*this, VIEW, i))
      ARITHMETIC(Subtract, __builtin_sub_overflow, -, ApplyBinary(VIEW, i, Subtract))
      ARITHMETIC(Multiply, __builtin_mul_overflow, *, ApplyBinary(VIEW, i, Multiply))
      OPERATION(Divide) {
        const Variant& x = OPERAND_B;
        const Variant& y = OPERAND_C;
        if (IsReal(x) && IsReal(y) && Real(y) != 0) {
          const double real = Real(x) / Real(y);
          if (std::isfinite(real)) {
            R[i.a].Put(real);
            NEXT;
          }
        }
        ApplyBinary(VIEW, i, Divide);
        NEXT;
      }
      WHOLE_DIVISION(IntegerDivide, /)
      WHOLE_DIVISION(Modulo, %)
      OPERATION(Concatenate)
      if (i.a == i.b && !(i.n & kConstantB) && R[i.a].IsString()) {
        if (i.n & kConstantC) {
          AppendText(*this, R[i.a], K[i.c]);
        } else {
          AppendText(*this, R[i.a], VIEW, i.c);
        }
      } else {
        ConcatenateOperands(*this, VIEW, i);
      }
      NEXT;
      OPERATION(And) {
        const Variant& x = OPERAND_B;
        const Variant& y = OPERAND_C;
        if (x.Type() == VarType::Boolean && y.Type() == VarType::Boolean) {
          R[i.a].Put(x.Boolean() && y.Boolean());
          NEXT;
        }
        ApplyBinary(VIEW, i, And);
        NEXT;
      }
      OPERATION(Or) {
        const Variant& x = OPERAND_B;
        const Variant& y = OPERAND_C;
        if (x.Type() == VarType::Boolean && y.Type() == VarType::Boolean) {
          R[i.a].Put(x.Boolean() || y.Boolean());
          NEXT;
        }
        ApplyBinary(VIEW, i, Or);
        NEXT;
      }
      OPERATION(Binary)
      ApplyBinary(VIEW, i, static_cast<BinaryOperator>(pc->Wide()));
      ++pc;
      NEXT;
      OPERATION(Not)
      if (R[i.b].Type() == VarType::Boolean) {
        R[i.a].Put(!R[i.b].Boolean());
      } else {
        ApplyUnary(VIEW, i, Not);
      }
      NEXT;
      OPERATION(Negate)
      ApplyUnary(VIEW, i, Negate);
      NEXT;
      OPERATION(Plus)
      ApplyUnary(VIEW, i, UnaryPlus);
      NEXT;

      OPERATION(Jump)
      pc += i.Offset();
      NEXT;
      OPERATION(JumpBack)
      TICK();
      pc += i.Offset();
      NEXT;
      OPERATION(JumpIfTrue)
      if (R[i.a].Type() == VarType::Boolean ? R[i.a].Boolean() : IsTrueOperand(VIEW, i.a)) pc += i.Offset();
      NEXT;
      OPERATION(JumpIfFalse)
      if (!(R[i.a].Type() == VarType::Boolean ? R[i.a].Boolean() : IsTrueOperand(VIEW, i.a)))
        pc += i.Offset();
      NEXT;
      COMPARE_JUMP(JumpIfEqual, true, ==)
      COMPARE_JUMP(JumpIfNotEqual, true, !=)
      COMPARE_JUMP(JumpIfLess, true, <)
      COMPARE_JUMP(JumpIfLessOrEqual, true, <=)
      COMPARE_JUMP(JumpIfGreater, true, >)
      COMPARE_JUMP(JumpIfGreaterOrEqual, true, >=)
      COMPARE_JUMP(JumpUnlessEqual, false, ==)
      COMPARE_JUMP(JumpUnlessNotEqual, false, !=)
      COMPARE_JUMP(JumpUnlessLess, false, <)
      COMPARE_JUMP(JumpUnlessLessOrEqual, false, <=)
      COMPARE_JUMP(JumpUnlessGreater, false, >)
      COMPARE_JUMP(JumpUnlessGreaterOrEqual, false, >=)

      OPERATION(ForPrepare)
      pc += PrepareFor(R[i.a], R + i.b) ? 1 : pc->Offset() + 1;
      NEXT;
      OPERATION(ForNext) {
        TICK();
        Variant& variable = R[i.a].Deref();
        const Variant& limit = R[i.b + 1];
        const Variant& step = R[i.b + 2];
        if (variable.IsWhole() && step.IsWhole() && limit.IsWhole()) {
          const std::int64_t next = std::int64_t{variable.Long()} + step.Long();
          const auto whole = static_cast<std::int32_t>(next);
          if (whole == next) {
            variable.PutWhole(whole, WholeType(variable, step, whole));
            pc += (step.Long() >= 0 ? whole <= limit.Long() : whole >= limit.Long()) ? pc->Offset() + 1 : 1;
            NEXT;
          }
        }
        pc += AdvanceFor(variable, limit, step) ? pc->Offset() + 1 : 1;
        NEXT;
      }
      OPERATION(EachPrepare)
      PrepareEach(VIEW, i);
      NEXT;
      OPERATION(EachNext)
      TICK();
      pc += Enumeration::Next(R[i.b], R[i.a].Deref()) ? 1 : pc->Offset() + 1;
      NEXT;

      OPERATION(GetElement) {
        const Variant& holder = static_cast<const Variant&>(R[i.b]).Deref();
        const Variant& index = OPERAND_C;
        if (holder.IsArray() && index.IsWhole()) {
          if (const Variant* element = holder.ArrayPtr()->Find(index.Long())) {
            R[i.a] = *element;
            NEXT;
          }
        }
        Current().pc = pc;
        AFTER_CALL(GetElementSlowly(VIEW, i, {}, *procedure));
      }
      OPERATION(GetElement2) {
        const Instruction word = *pc++;
        const Variant& holder = static_cast<const Variant&>(R[i.b]).Deref();
        const Variant& first = OPERAND_C;
        const Variant& second = (i.n & kConstantSecond) ? K[word.a] : R[word.a];
        if (holder.IsArray() && first.IsWhole() && second.IsWhole()) {
          if (const Variant* element = holder.ArrayPtr()->Find(first.Long(), second.Long())) {
            R[i.a] = *element;
            NEXT;
          }
        }
        Current().pc = pc;
        AFTER_CALL(GetElementSlowly(VIEW, i, word, *procedure));
      }
      OPERATION(SetElement) {
        Variant& holder = R[i.b].Deref();
        const Variant& index = OPERAND_C;
        if (holder.IsArray() && index.IsWhole() && holder.ArrayPtr()->IsUnshared() && IsNoObject(R[i.a])) {
          if (Variant* element = holder.ArrayPtr()->Find(index.Long())) {
            AssignPlain(*element, R[i.a], i.a >= firstTemporary);
            NEXT;
          }
        }
        SetElementSlowly(VIEW, i, {}, *procedure);
        NEXT;
      }
      OPERATION(SetElement2) {
        const Instruction word = *pc++;
        Variant& holder = R[i.b].Deref();
        const Variant& first = OPERAND_C;
        const Variant& second = (i.n & kConstantSecond) ? K[word.a] : R[word.a];
        if (holder.IsArray() && first.IsWhole() && second.IsWhole() && holder.ArrayPtr()->IsUnshared() &&
            IsNoObject(R[i.a])) {
          if (Variant* element = holder.ArrayPtr()->Find(first.Long(), second.Long())) {
            AssignPlain(*element, R[i.a], i.a >= firstTemporary);
            NEXT;
          }
        }
        SetElementSlowly(VIEW, i, word, *procedure);
        NEXT;
      }
      OPERATION(GetSymbolElement) {
        const Instruction word = *pc++;
        SymbolUse& use = procedure->symbols[word.Wide()];
        if (use.epoch == m_Epoch && use.variable && use.variable->IsArray()) {
          if (const Variant* element = FindElement(*use.variable->ArrayPtr(), VIEW, i, word)) {
            R[i.a] = *element;
            NEXT;
          }
        }
        Current().pc = pc;
        AFTER_CALL(GetSymbolElementSlowly(VIEW, i, word, use));
      }
      OPERATION(SetSymbolElement) {
        const Instruction word = *pc++;
        SymbolUse& use = procedure->symbols[word.Wide()];
        if (use.epoch == m_Epoch && use.variable && use.variable->IsArray() &&
            use.variable->ArrayPtr()->IsUnshared() && IsNoObject(R[i.a])) {
          if (Variant* element = FindElement(*use.variable->ArrayPtr(), VIEW, i, word)) {
            AssignPlain(*element, R[i.a], i.a >= firstTemporary);
            NEXT;
          }
        }
        SetSymbolElementSlowly(VIEW, i, word, use);
        NEXT;
      }
      OPERATION(GetFieldElement) {
        const Instruction word = *pc++;
        const Variant& array = Current().me->Field(word.Wide());
        if (array.IsArray()) {
          if (const Variant* element = FindElement(*array.ArrayPtr(), VIEW, i, word)) {
            R[i.a] = *element;
            NEXT;
          }
        }
        Current().pc = pc;
        AFTER_CALL(GetFieldElementSlowly(VIEW, i, word, array));
      }
      OPERATION(SetFieldElement) {
        const Instruction word = *pc++;
        Variant& array = Current().me->Field(word.Wide());
        if (array.IsArray() && array.ArrayPtr()->IsUnshared() && IsNoObject(R[i.a])) {
          if (Variant* element = FindElement(*array.ArrayPtr(), VIEW, i, word)) {
            AssignPlain(*element, R[i.a], i.a >= firstTemporary);
            NEXT;
          }
        }
        SetFieldElementSlowly(VIEW, i, word, array);
        NEXT;
      }
      OPERATION(DimArray)
      R[i.a] = NewArray(procedure->shapes[i.Wide()]);
      NEXT;
      OPERATION(ReDim)
      ReDimArray(VIEW, i, pc->Wide() != 0);
      ++pc;
      NEXT;
      OPERATION(Erase)
      EraseArray(R[i.a].Deref());
      R[i.a].Reset();
      NEXT;

      OPERATION(Call) {
        SymbolUse& use = procedure->symbols[pc->Wide()];
        ++pc;
        Current().pc = pc;
        if (use.epoch == m_Epoch && use.symbol && use.symbol->kind == SymbolKind::Procedure) {
          Variant* const result = (i.c & kDropResult) ? nullptr : R + i.a;
          PushFrame(*use.symbol->procedure, nullptr, {R + i.a, i.b}, result);
          AFTER_CALL(true);
        }
        AFTER_CALL(CallSymbol(use, R + i.a, i.b, i.c));
      }
      OPERATION(CallMember) {
        MemberUse& use = procedure->members[pc->Wide()];
        ++pc;
        Current().pc = pc;
        if (i.n == 0 && !(i.c & kDropResult)) {
          if (const Variant* field = OpenField(use, R[i.b])) {
            R[i.b >= firstTemporary ? i.b : i.a] = *field;
            NEXT;
          }
        }
        AFTER_CALL(CallMember(VIEW, i, use));
      }
      OPERATION(CallValue)
      Current().pc = pc;
      AFTER_CALL(CallRegister(VIEW, i, *procedure));
      OPERATION(AssignIndexedSymbol) {
        SymbolUse& use = procedure->symbols[pc->Wide()];
        ++pc;
        AssignIndexedSymbol(use, Args(R + i.a, i.n), i.c);
        VIEW.Clear(i.a, i.n);
        NEXT;
      }
      OPERATION(AssignMember) {
        MemberUse& use = procedure->members[pc->Wide()];
        ++pc;
        Current().pc = pc;
        if (i.n == 1 && i.c == 0 && R[i.a].IsInPlace()) {
          if (Variant* field = OpenField(use, R[i.b])) {
            *field = R[i.a];
            VIEW.ClearTemporary(i.b);
            NEXT;
          }
        }
        AFTER_CALL(AssignMember(VIEW, i, use));
      }
      OPERATION(AssignIndexed)
      AssignElement(R[i.b], Args(R + i.a, i.n), (i.c & kAsSet) != 0, LocalName(*procedure, i.b));
      VIEW.Clear(i.a, i.n);
      VIEW.ClearTemporary(i.b);
      NEXT;
      OPERATION(New)
      Current().pc = pc;
      AFTER_CALL(NewObject(procedure->symbols[i.Wide()], R[i.a]));
      OPERATION(Return)
      PopFrame(Ending::ByReturn);
      if (m_Depth < baseDepth) return;
      RELOAD();
      NEXT;

      OPERATION(OnErrorResumeNext)
      Current().resumeNext = true;
      m_Err->Clear();
      NEXT;
      OPERATION(OnErrorGoTo0)
      Current().resumeNext = false;
      m_Err->Clear();
      NEXT;
      OPERATION(RaiseError)
      RaiseAbout(static_cast<ErrorNumber>(i.a), procedure->symbols[i.Wide()].name);
      OPERATION(RequireObject)
      TakeObject(VIEW, i);
      NEXT;
      OPERATION(Observe)
      Observe(*procedure, static_cast<std::size_t>(pc - procedure->code.data() - 1));
      NEXT;
      OPERATION(ObserveReturn)
      ObserveReturn();
      NEXT;
    } catch (const Error& error) {
      const MemoryBudget::Exemption exemption;
      pending = Describe(error);
    } catch (const std::bad_alloc&) {
      const MemoryBudget::Exemption exemption;
      pending = Describe(Error(ErrorNumber::OutOfMemory));
    } catch (const Interrupted&) {
      Unwind(baseDepth - 1);
      throw;
    }
    Current().pc = pc;
    Handle(std::move(pending), baseDepth);
  }
}
// NOLINTEND(readability-function-size)

}  // namespace cardwright::vbscript
