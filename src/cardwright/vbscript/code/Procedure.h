// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/MemoryShare.h"
#include "cardwright/vbscript/code/Instruction.h"
#include "cardwright/vbscript/code/Names.h"
#include "cardwright/vbscript/syntax/Position.h"

namespace cardwright::vbscript {

struct Builtin;
class ClassInfo;
class Module;
struct Symbol;
struct ClassMember;

inline constexpr std::uint16_t kNoRegister = 0xFFFF;

/// A name that a procedure uses and does not declare, with a cache of its binding. The binding is looked up
/// when the code first needs it, and again after any name of the engine was rebound: every such change
/// increments the machine's epoch, so a cached binding is valid while its epoch equals the machine's.
struct SymbolUse {
  NameId name = kNoName;
  /// A variable of the procedure, for a name that is bound to nothing else.
  std::uint16_t local = kNoRegister;
  bool isStrict = false;    ///< Option Explicit: an unbound name is an error
  std::uint32_t epoch = 0;  ///< of the look-up; 0 before the first one
  Symbol* symbol = nullptr;
  Variant* variable = nullptr;  ///< where the name is bound to a variable of a module

  /// Whether the look-up found nothing, so that the name is the procedure's own variable.
  bool IsLocal() const noexcept { return !symbol && local != kNoRegister; }
};

/// A member that a call names, with a cache of what the last call found. A further call needs no look-up
/// where its object has the same class, of a script, or the same shape, of anything else.
struct MemberUse {
  NameId name = kNoName;
  NameId object = kNoName;  ///< the object's name in the script, for error reports
  const ClassInfo* cls = nullptr;
  const ClassMember* member = nullptr;
  std::int32_t field = -1;  ///< of the class, where the member is a public field
  const void* shape = nullptr;
  std::int32_t id = -1;
};

/// Where the code of a statement starts, or of a part of one that an error skips on its own.
struct StatementMark {
  std::uint32_t start;
  std::uint32_t resume;  ///< where On Error Resume Next continues after an error
  Position position;
};

/// Upper bounds of a `Dim a(3, 4)`; none for a dynamic array.
struct ArrayShape {
  std::vector<std::int32_t> bounds;
};

/// Compiled code: of a procedure, of the code outside procedures, or of an Execute or Eval.
///
/// A running procedure has a window of `registers` values, in this order:
///
///     parameters | result and variables | hidden registers | temporaries
///                                                            ^ firstTemporary
///
/// A parameter holds a value, or a reference to a variable of the caller. Hidden registers keep what a loop,
/// With or Select needs while it runs. Temporaries hold intermediate results and the arguments of calls.
///
/// A temporary is written once and read once, and the instruction that reads it moves its value on or clears
/// it; at most a number or a reference is left behind. So between two statements no temporary keeps a text,
/// an object or an array alive: objects end when the language says, not when their register is used again,
/// and Return has only the registers below firstTemporary to release.
class Procedure final : public RefCounted {
 public:
  NameId name = kNoName;
  Module* module = nullptr;
  ClassInfo* owner = nullptr;  ///< of a method
  std::vector<Instruction> code;
  std::vector<Variant> constants;
  mutable std::vector<SymbolUse> symbols;
  mutable std::vector<MemberUse> members;
  std::vector<StatementMark> marks;  ///< by start
  std::vector<ArrayShape> shapes;
  /// Registers that have a name, for code that is executed in the procedure's scope.
  std::vector<std::pair<NameId, std::uint16_t>> locals;
  std::vector<bool> byValue;  ///< of each parameter
  bool hasByValue = false;
  bool returnsValue = false;
  bool isExplicit = false;   ///< Option Explicit: names have to be declared
  bool isGenerated = false;  ///< from a text that a script passed to Execute or the like
  bool isExecuted = false;   ///< runs in the scope of the frame below
  bool isOutermost = false;  ///< code outside procedures: its variables are the module's and outlive the run
  std::uint16_t parameters = 0;
  std::uint16_t result = kNoRegister;  ///< the variable of a function's own name
  NameId resultName = kNoName;         ///< that name; in code executed in the function's scope too
  std::uint16_t firstTemporary = 0;
  std::uint16_t registers = 0;

  /// Called when the code is complete: charges its memory to the thread.
  void Complete();

  const StatementMark* MarkAt(std::size_t instruction) const noexcept;

 private:
  MemoryShare m_Memory;
};

}  // namespace cardwright::vbscript
