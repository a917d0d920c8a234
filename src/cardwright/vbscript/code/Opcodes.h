#pragma once

#include <cstdint>

namespace cardwright::vbscript {

/// The machine's operations: name, operands, effect. R is a register of the frame, K a constant of the
/// procedure. Operands: `a`, `b`, `c` are registers, with RK constants where the flag of their side is set in
/// `n`, with How the flags of a call; `n` is a count, of Call cCount; `constant`, `symbol`, `field`, `shape`
/// and `jump` are the 32 bits of b and c together, `error` is an error number in a; with + they stand in a
/// second word.
#define CARDWRIGHT_VBSCRIPT_OPCODES(X)                                                                      \
  /* values */                                                                                              \
  X(LoadConst, "a constant", "R[a] = K[wide]")                                                              \
  X(Copy, "a b", "R[a] = value of R[b]")                                                                    \
  X(Take, "a b", "R[a] = R[b], which becomes Empty")                                                        \
  X(LoadMe, "a", "R[a] = Me")                                                                               \
  X(LoadSymbol, "a symbol", "R[a] = what the name of symbol wide stands for, called without arguments")     \
  X(LoadField, "a field", "R[a] = field wide of Me")                                                        \
  X(Clear, "a n", "n registers from a become Empty")                                                        \
  /* assignment */                                                                                          \
  X(Let, "a b", "R[a] = plain value of R[b]; R[a] is a variable of the procedure")                          \
  X(LetThrough, "a b", "likewise where R[a] may be a reference")                                            \
  X(Set, "a b", "R[a] = object of R[b]")                                                                    \
  X(SetThrough, "a b", "likewise where R[a] may be a reference")                                            \
  X(LetSymbol, "a symbol", "symbol wide = plain value of R[a]")                                             \
  X(SetSymbol, "a symbol", "symbol wide = object of R[a]")                                                  \
  X(LetField, "a field", "field wide of Me = plain value of R[a]")                                          \
  X(SetField, "a field", "field wide of Me = object of R[a]")                                               \
  X(AppendSymbol, "a symbol", "symbol wide = its text & R[a], in place where it can")                       \
  X(AppendField, "a field", "field wide of Me = its text & R[a]")                                           \
  X(AppendThrough, "a b", "what R[a] refers to = its text & R[b]")                                          \
  /* references, as arguments */                                                                            \
  X(RefRegister, "a b", "R[a] = reference to R[b]")                                                         \
  X(RefSymbol, "a symbol", "R[a] = reference to symbol wide, or its value where it is no variable")         \
  X(RefField, "a field", "R[a] = reference to field wide of Me")                                            \
  X(RefSymbolElement, "a n +symbol", "likewise of what the symbol of the word stands for, or a call of it") \
  X(RefElement, "a b n",                                                                                    \
    "R[a] = reference to the element of the array R[b] refers to, the n indices from a on")                 \
  /* arithmetic and logic */                                                                                \
  X(Add, "a bRK cRK", "R[a] = b + c")                                                                       \
  X(Subtract, "a bRK cRK", "R[a] = b - c")                                                                  \
  X(Multiply, "a bRK cRK", "R[a] = b * c")                                                                  \
  X(Divide, "a bRK cRK", "R[a] = b / c")                                                                    \
  X(IntegerDivide, "a bRK cRK", "R[a] = b \\ c")                                                            \
  X(Modulo, "a bRK cRK", "R[a] = b Mod c")                                                                  \
  X(Concatenate, "a bRK cRK", "R[a] = b & c")                                                               \
  X(And, "a bRK cRK", "R[a] = b And c")                                                                     \
  X(Or, "a bRK cRK", "R[a] = b Or c")                                                                       \
  X(Binary, "a bRK cRK +operator", "R[a] = b op c; the word has the operator")                              \
  X(Not, "a b", "R[a] = Not R[b]")                                                                          \
  X(Negate, "a b", "R[a] = -R[b]")                                                                          \
  X(Plus, "a b", "R[a] = +R[b]")                                                                            \
  /* jumps; offsets count from the instruction after */                                                     \
  X(Jump, "jump", "go on at wide")                                                                          \
  X(JumpBack, "jump", "likewise, backward: a place to stop at")                                             \
  X(JumpIfTrue, "a jump", "when R[a] is true")                                                              \
  X(JumpIfFalse, "a jump", "when R[a] is false or Null")                                                    \
  X(JumpIfEqual, "bRK cRK +jump", "when b = c")                                                             \
  X(JumpIfNotEqual, "bRK cRK +jump", "when b <> c")                                                         \
  X(JumpIfLess, "bRK cRK +jump", "when b < c")                                                              \
  X(JumpIfLessOrEqual, "bRK cRK +jump", "when b <= c")                                                      \
  X(JumpIfGreater, "bRK cRK +jump", "when b > c")                                                           \
  X(JumpIfGreaterOrEqual, "bRK cRK +jump", "when b >= c")                                                   \
  X(JumpUnlessEqual, "bRK cRK +jump", "unless b = c, so also when a side is Null")                          \
  X(JumpUnlessNotEqual, "bRK cRK +jump", "unless b <> c")                                                   \
  X(JumpUnlessLess, "bRK cRK +jump", "unless b < c")                                                        \
  X(JumpUnlessLessOrEqual, "bRK cRK +jump", "unless b <= c")                                                \
  X(JumpUnlessGreater, "bRK cRK +jump", "unless b > c")                                                     \
  X(JumpUnlessGreaterOrEqual, "bRK cRK +jump", "unless b >= c")                                             \
  /* loops */                                                                                               \
  X(ForPrepare, "a b +jump",                                                                                \
    "R[a] = R[b], limit R[b+1], step R[b+2]; jump by the word when nothing is to be done")                  \
  X(ForNext, "a b +jump", "R[a] += step; jump by the word while the limit is not passed")                   \
  X(EachPrepare, "a b", "R[a] = enumeration of R[b]")                                                       \
  X(EachNext, "a b +jump", "R[a] = next value of the enumeration R[b]; jump by the word at its end")        \
  /* elements: n is the count of indices, 1 or 2; indices may be constants */                               \
  X(GetElement, "a b cRK", "R[a] = R[b](c)")                                                                \
  X(GetElement2, "a b cRK +index", "R[a] = R[b](c, word)")                                                  \
  X(SetElement, "a b cRK", "R[b](c) = plain value of R[a]")                                                 \
  X(SetElement2, "a b cRK +index", "R[b](c, word) = plain value of R[a]")                                   \
  X(GetSymbolElement, "a cRK +symbol",                                                                      \
    "R[a] = symbol(c); the word names the symbol, b as in GetElement2's word where n says two")             \
  X(SetSymbolElement, "a cRK +symbol", "symbol(c) = plain value of R[a]")                                   \
  X(GetFieldElement, "a cRK +field", "R[a] = field(c)")                                                     \
  X(SetFieldElement, "a cRK +field", "field(c) = plain value of R[a]")                                      \
  X(DimArray, "a shape", "R[a] = array with the bounds of shape wide")                                      \
  X(ReDim, "a b n +flag",                                                                                   \
    "what R[a] refers to = array with the n bounds from b; the word says whether values stay")              \
  X(Erase, "a", "the array that R[a] refers to loses its values")                                           \
  /* calls: arguments from a on, the result into R[a] */                                                    \
  X(Call, "cCount a bHow +symbol", "R[a] = symbol word(c arguments); b tells how")                          \
  X(CallMember, "n a b cHow +member", "R[a] = R[b].member word(n arguments); c tells how")                  \
  X(CallValue, "n a b cHow", "R[a] = default member of R[b] (n arguments), or its element")                 \
  X(PutSymbol, "n a bHow +symbol", "symbol word(n - 1 arguments) = the last one; b tells how")              \
  X(PutMember, "n a b cHow +member", "R[b].member word(n - 1 arguments) = the last one")                    \
  X(PutValue, "n a b cHow", "R[b](n - 1 arguments) = the last one")                                         \
  X(New, "a symbol", "R[a] = new object of the class symbol wide")                                          \
  X(Return, "", "back to the caller")                                                                       \
  /* errors */                                                                                              \
  X(OnErrorResumeNext, "", "")                                                                              \
  X(OnErrorGoTo0, "", "")                                                                                   \
  X(RaiseError, "error symbol", "error number a about the name of symbol wide")                             \
  X(RequireObject, "a b", "R[a] = R[b], an object to work with")                                            \
  X(Observe, "", "tells the observer of the statement")                                                     \
  X(ObserveReturn, "", "tells the observer that the caller goes on")

enum class Op : std::uint8_t {
#define X(name, operands, effect) name,
  CARDWRIGHT_VBSCRIPT_OPCODES(X)
#undef X
};

/// Flags of `n` where b or c is a constant.
inline constexpr std::uint8_t kConstantC = 1, kConstantB = 2, kTwoIndices = 4, kConstantSecond = 8;

/// How a call is made.
enum CallFlags : std::uint16_t {
  kDropResult = 1,  ///< a statement: the result goes away
  kAsSet = 2,       ///< a Put that sets an object
  kNoParens = 4,    ///< no parentheses were written, so nothing is indexed
};

}  // namespace cardwright::vbscript
