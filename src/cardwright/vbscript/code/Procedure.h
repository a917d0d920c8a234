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

/// A name that a procedure uses and does not declare. What it stands for is looked up when it is first needed
/// and again when any name of the engine has changed its meaning.
struct SymbolUse {
  NameId name = kNoName;
  /// The procedure's own variable of that name, where the name turns out to stand for nothing else.
  std::uint16_t local = kNoRegister;
  bool isStrict = false;    ///< names have to be declared here
  std::uint32_t epoch = 0;  ///< of the look-up; 0 for none yet
  Symbol* symbol = nullptr;
  Variant* variable = nullptr;  ///< where the name stands for a variable of a module

  /// Whether the look-up has left the name to the procedure itself.
  bool IsLocal() const noexcept { return !symbol && local != kNoRegister; }
};

/// A member that a call names, with what the last call found.
struct MemberUse {
  NameId name = kNoName;
  NameId object = kNoName;         ///< what the script calls the object, for reports
  const ClassInfo* cls = nullptr;  ///< the script's own class met last
  const ClassMember* member = nullptr;
  std::int32_t field = -1;      ///< of that class, where the member is a field open to all
  const void* shape = nullptr;  ///< likewise of other objects
  std::int32_t id = -1;
};

/// Where a statement, or a part of one that resumes by itself, starts in the code.
struct StatementMark {
  std::uint32_t start;
  std::uint32_t resume;  ///< where the code goes on after an error that the script passes over
  Position position;
};

/// Upper bounds of a `Dim a(3, 4)`; none for a dynamic array.
struct ArrayShape {
  std::vector<std::int32_t> bounds;
};

/// Compiled code: of a procedure, of what stands outside procedures, or of an Execute or Eval.
/// Registers: parameters, then variables, then hidden ones of loops, then values on the way (from
/// firstTemporary). A value on the way is used once, and who uses it leaves a plain or Empty value behind.
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
  /// Names of the registers that have one, for code that is executed in the procedure's scope.
  std::vector<std::pair<NameId, std::uint16_t>> locals;
  std::vector<bool> byValue;  ///< of each parameter
  bool hasByValue = false;
  bool returnsValue = false;
  bool isExplicit = false;   ///< names have to be declared
  bool isGenerated = false;  ///< of a text that a script made
  bool isExecuted = false;   ///< works on the variables of the frame below
  bool isOutermost = false;  ///< stands outside procedures: its variables stay when it has run
  std::uint16_t parameters = 0;
  std::uint16_t result = kNoRegister;  ///< the variable of a function's own name
  NameId resultName = kNoName;         ///< that name; in code executed in the function's scope too
  std::uint16_t firstTemporary = 0;
  std::uint16_t registers = 0;

  /// To be called when it is compiled: its code counts as memory of the thread.
  void Complete();

  const StatementMark* MarkAt(std::size_t instruction) const noexcept;

 private:
  MemoryShare m_Memory;
};

}  // namespace cardwright::vbscript
