// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <span>
#include <vector>

#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/platform/HostPoll.h"
#include "cardwright/platform/ScriptEngine.h"
#include "cardwright/platform/StopSignal.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/VbScriptEngine.h"
#include "cardwright/vbscript/code/Linkage.h"
#include "cardwright/vbscript/machine/ErrObject.h"
#include "cardwright/vbscript/machine/Frame.h"
#include "cardwright/vbscript/machine/Instance.h"
#include "cardwright/vbscript/machine/RegisterStack.h"
#include "cardwright/vbscript/machine/RegisterView.h"
#include "cardwright/vbscript/machine/ScriptFault.h"

namespace cardwright::vbscript {

class SyntaxTree;
struct CompiledBlock;

/// The virtual machine of one engine: its modules, its objects, its running code.
///
/// A call from outside (Call, AddCode, Evaluate) pushes a frame and enters the interpreter, Run. A script
/// procedure that calls another one pushes a frame too and stays in the same Run, so that recursion of
/// scripts takes no stack of the thread. Run returns when the frame that it was entered for returns.
class Machine final : public Context, public Linkage, private StopSignal {
 public:
  Machine(ScriptHost& host, const Limits& limits);
  ~Machine();
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  /// @name Names and modules
  /// @{
  Module& Global() noexcept { return *m_Modules.front(); }
  Module* FindModule(std::u16string_view name) const noexcept;
  /// Error 5 for a name that is taken.
  Module& AddModule(std::u16string_view name);
  /// Error 5 for no object, or a name that is taken.
  void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers);
  Symbol* Lookup(Module& module, NameId name) override;
  /// Called after any name was rebound: makes the bindings that code has cached invalid.
  void NamesChanged() noexcept { ++m_Epoch; }
  /// @}

  /// @name Running code. Throws ScriptFault for an error that no script handled, Interrupted for a stop.
  /// @{
  /// `isExplicit` works like Option Explicit in the source.
  void AddCode(Module& module, std::u16string_view source, bool isExplicit = false);
  Variant Evaluate(Module& module, std::u16string_view expression);
  Variant Call(const Procedure& procedure, Instance* me, Args args);
  /// @}

  /// @name For Execute, ExecuteGlobal, Eval and GetRef, which work in the scope of the running procedure
  /// @{
  void ExecuteInScope(const Text& source);
  void ExecuteInModule(const Text& source);
  Variant EvaluateInScope(const Text& expression);
  Variant GetReference(const Text& procedure);
  /// @}

  Ref<Instance> MakeInstance(ClassInfo& cls);
  void Forget(Instance& instance) noexcept;

  /// Clears all names and ends the instances of the script's classes. Their Class_Terminate may still call
  /// the host.
  void Close();
  void Interrupt() noexcept { m_Order.store(Order::Stop, std::memory_order_relaxed); }
  void SetTimeout(std::int32_t milliseconds) noexcept { m_Timeout = milliseconds; }
  void SetObserver(ScriptObserver* observer) noexcept { m_Observer = observer; }
  bool IsObserved() const noexcept override { return m_Observer != nullptr; }
  bool IsRunning() const noexcept override { return m_Depth > 0; }
  ErrObject& Err() noexcept { return *m_Err; }

  /// Lives during every call from outside: sets the locale and the limits, and for an outermost call the
  /// deadline.
  class CallScope {
   public:
    explicit CallScope(Machine& machine);
    ~CallScope();
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;

   private:
    Machine& m_Machine;
    const Locale& m_Outer;
    ErrObject::State m_OuterErr;
    MemoryBudget::Limit m_Memory;
    StopSignal::Scope m_StopScope;
  };

 private:
  friend class Instance;
  /// An error that no procedure has handled yet.
  struct PendingError {
    int number = 0;
    Text description, source, report;
    Position position;
    bool hasPosition = false;
  };

  void BindNames(const CompiledBlock& block, Module& module, Variant* variables);

  // Interpreter.cpp
  void Run();

  // Frames.cpp
  Variant RunProcedure(const Procedure& procedure, Instance* me, Args args);
  void RunOutermost(const Procedure& code, Variant* variables);
  /// Where the arguments of a call are: at the top of the caller's registers, so that the frame can start
  /// there.
  enum class Arguments { AtTopOfCaller, Elsewhere };
  Frame& AddFrame(const Procedure& procedure, Instance* me, Variant* result);
  void PushFrame(const Procedure& procedure, Instance* me, Args arguments, Variant* result,
                 Arguments where = Arguments::AtTopOfCaller);
  void AddFrames();
  void UpdateCurrent() noexcept;
  RegisterStack::Window EndOfRegisters();
  enum class Ending { ByReturn, ByError };
  void PopFrame(Ending ending) noexcept;
  void CheckNesting(std::size_t stack = 0) const;
  void CheckRoomForSource() const;

  // ExecutedCode.cpp
  std::size_t ScopeDepth() const noexcept;
  Variant RunInScope(SyntaxTree& tree);
  static Variant ReferenceInScope(Frame& frame, NameId name);

  // Calls.cpp. A bool says whether a frame was pushed, in which the interpreter has to continue; otherwise
  // the result is in place.
  bool CallSymbol(SymbolUse& use, Variant* arguments, std::size_t count, std::uint16_t flags);
  bool CallMember(RegisterView view, Instruction i, MemberUse& use);
  bool CallInstance(MemberUse& use, Instance& object, Variant* arguments, std::size_t count, Variant* result);
  bool CallRegister(RegisterView view, Instruction i, const Procedure& procedure);
  bool CallValue(const Variant& callee, Variant* arguments, std::size_t count, Variant* result,
                 const Text& name);
  void CallBuiltin(const Builtin& builtin, Variant* arguments, std::size_t count, Variant* result);
  Variant InvokeHost(Object& object, MemberId member, CallKind kind, Args args);
  bool NewObject(SymbolUse& use, Variant& target);
  MemberId FindMember(MemberUse& use, const Object& object) const;
  const ClassMember& FindMember(MemberUse& use, const Instance& object) const;

  // MemberAssignment.cpp
  void AssignIndexedSymbol(SymbolUse& use, Args arguments, std::uint16_t flags);
  bool AssignMember(RegisterView view, Instruction i, MemberUse& use);
  bool AssignInstanceMember(MemberUse& use, Instance& object, Args arguments, bool isSet);

  // ElementSlowPaths.cpp
  bool GetElementSlowly(RegisterView view, Instruction i, Instruction word, const Procedure& procedure);
  void SetElementSlowly(RegisterView view, Instruction i, Instruction word, const Procedure& procedure);
  bool GetSymbolElementSlowly(RegisterView view, Instruction i, Instruction word, SymbolUse& use);
  void SetSymbolElementSlowly(RegisterView view, Instruction i, Instruction word, SymbolUse& use);
  bool GetFieldElementSlowly(RegisterView view, Instruction i, Instruction word, const Variant& field);
  void SetFieldElementSlowly(RegisterView view, Instruction i, Instruction word, Variant& field);
  bool ReferToElement(RegisterView view, Instruction i);
  bool ReferToSymbolElement(RegisterView view, Instruction i, SymbolUse& use);

  // Variables.cpp
  Symbol* BindHostMember(NameId name);
  Symbol* BindLibraryName(NameId name);
  void Resolve(SymbolUse& use);
  Variant& VariableToWrite(SymbolUse& use);
  bool LoadSymbol(SymbolUse& use, Variant& target);
  bool ReferToSymbol(SymbolUse& use, Variant& target);
  void AssignSymbol(SymbolUse& use, Variant& value, bool isSet, bool isTemporary);
  void AppendToSymbol(RegisterView view, Instruction i, SymbolUse& use);
  [[noreturn]] void RaiseAbout(ErrorNumber number, NameId name) const;
  Text LocalName(const Procedure& procedure, std::uint16_t r) const;

  // ErrorHandling.cpp
  PendingError Describe(const Error& error) const;
  void Handle(PendingError pending, std::size_t baseDepth);
  void ResumeAfter(const StatementMark& mark, Frame& frame) noexcept;
  void Unwind(std::size_t depth) noexcept;

  // Interrupts.cpp
  void CheckDeadline() noexcept;
  bool ShouldStop() noexcept override;
  bool IsStopping() const noexcept { return m_Order.load(std::memory_order_relaxed) == Order::Stop; }
  void CheckStop();
  void PollInterrupts();
  void ThrowIfStopping() {
    if (IsStopping()) CheckStop();
  }

  // StatementObserver.cpp
  void Observe(const Procedure& procedure, std::size_t instruction);
  void ObserveReturn();

  Frame& Current() noexcept { return *m_Current; }

  Limits m_Limits;
  std::vector<std::unique_ptr<Module>> m_Modules;
  Module m_Objects;  // objects of the host, and Err
  Module m_Library;  // members of these objects, functions and constants of the library: those used so far
  std::vector<Ref<Object>> m_MemberObjects;  // in the order in which they were added
  Ref<ErrObject> m_Err;
  Ref<MachineLink> m_Link;

  RegisterStack m_Registers;
  std::vector<Frame> m_Frames;
  std::size_t m_Depth = 0;     // frames in use
  Frame* m_Current = nullptr;  // the topmost of them
  std::uint32_t m_Epoch = 1;   // counts changes of bindings
  int m_CallDepth = 0;         // calls from outside, one within the other
  // What the interpreter has to do at its next check. Other threads set it, to stop the script.
  enum class Order : std::uint8_t { None, Poll, Stop };
  std::atomic<Order> m_Order = Order::None;
  HostPoll m_HostPoll;
  std::uint32_t m_CallsSincePoll = 0;
  std::int32_t m_Timeout = -1;
  static constexpr auto kNoDeadline = std::chrono::steady_clock::time_point::max();
  std::chrono::steady_clock::time_point m_Deadline = kNoDeadline;
  ScriptObserver* m_Observer = nullptr;
  Instance* m_Instances = nullptr;
  bool m_IsClosing = false;
};

}  // namespace cardwright::vbscript
