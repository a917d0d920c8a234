// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "cardwright/automation/Object.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright {

/// What a script engine asks of the program that embeds it. The defaults allow nothing.
class ScriptHost {
 public:
  virtual ~ScriptHost() = default;

  /// Object of a programmatic identifier. Error 429 where the class is not known or not allowed.
  virtual Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server);
  /// Object of a path, or a running object of a class. Error 432 or 429 where there is none or it is not
  /// allowed.
  virtual Ref<Object> GetObject(std::u16string_view path, std::u16string_view progid);
  /// A message box; the answer is the button's number: 1 OK, 2 Cancel, 3 Abort, 4 Retry, 5 Ignore, 6 Yes, 7
  /// No.
  virtual int ShowMessage(const Text& text, int style, const Text& title);
  /// A box to type a text into; Empty where it was cancelled. Positions are in twips, or Missing.
  virtual Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                          const Variant& y);
  /// Error 481 where there is no picture, 70 where reading is not allowed.
  virtual Ref<Object> LoadPicture(std::u16string_view path);
  /// Title of boxes that name none.
  virtual Text BoxTitle() const;
  /// Whether what the host does for scripts may ask a user anything. Initially it may.
  virtual void SetAllowUI(bool allowed);
  /// Whether the running script should stop. Engines poll it during a long call from outside, a few times a
  /// second, on the script's thread and between two steps of the script: the host may take its time to answer
  /// and may run scripts meanwhile.
  virtual bool ShouldStop();
};

/// Called for each statement before it runs, for tracing and profiling. In code that a script made itself
/// lines and columns are 0.
class ScriptObserver {
 public:
  virtual ~ScriptObserver() = default;
  /// A statement is about to run; lines count from 1, columns from 0.
  virtual void OnStatement(std::u16string_view module, int line, int column) = 0;
  /// A procedure is about to return to the statement that called it.
  virtual void OnReturn(std::u16string_view module, int line, int column);
};

/// One instance of a script language: code in modules, objects given by the program, procedures called by
/// name. Belongs to the thread that made it, but for Interrupt. Failures are numbered errors; those inside a
/// script are in LastError too. Calls may nest: what a script calls may call the engine again.
class ScriptEngine {
 public:
  virtual ~ScriptEngine() = default;

  /// Adds an object under a name. With `addMembers` its members are names of their own, found after the
  /// script's. Error 5 for no object, or a name that is taken.
  virtual void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) = 0;
  /// Adds a named module: code of its own that also sees the global module's, the empty name's. Error 5 where
  /// the name is taken, whatever its case.
  virtual void AddModule(std::u16string_view name) = 0;
  /// Compiles code into a module and runs the statements outside procedures.
  virtual void AddCode(std::u16string_view module, std::u16string_view code) = 0;
  /// Calls a procedure of the module. Error 5 where there is none.
  virtual Variant Run(std::u16string_view module, std::u16string_view procedure, Args args) = 0;
  /// The value of an expression in a module.
  virtual Variant Evaluate(std::u16string_view module, std::u16string_view expression) = 0;
  /// The procedures of a module in the order of their definition.
  virtual std::vector<ScriptProcedure> Procedures(std::u16string_view module) const = 0;

  /// A value as the language turns it into text. May run code of the script where the value is an object of
  /// it; fails where the language has no text for the value.
  virtual Text TextOf(const Variant& value) = 0;

  /// The error that the latest call met; number 0 where it met none.
  virtual ScriptError LastError() const = 0;
  /// Forgets the error.
  virtual void ClearError() = 0;

  /// Milliseconds that an outermost call may take; -1 for no limit.
  virtual void SetTimeout(std::int32_t milliseconds) = 0;
  /// Whether scripts may show dialogs; true at first.
  virtual void SetAllowUI(bool allowed) = 0;
  /// Sets the one observer; null for none. It must outlive its use.
  virtual void SetObserver(ScriptObserver* observer) = 0;
  /// Ends the objects that the scripts left, as the engine does at its own end; what they do then may still
  /// call the program. Names are empty afterwards.
  virtual void Close() = 0;
  /// Stops the running script at its next step, or within some milliseconds; from any thread and from a
  /// handler of a signal. Nothing in the script can catch it.
  virtual void Interrupt() noexcept = 0;
};

}  // namespace cardwright
