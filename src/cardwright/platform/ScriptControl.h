// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "cardwright/automation/Object.h"

namespace cardwright {

/// The error that a script engine met last; number 0 where it met none.
struct ScriptError {
  int number = 0;               ///< of the error
  Text description;             ///< text of the error, in the user's language
  int line = 0;                 ///< from 1
  int column = 0;               ///< from 0
  Text source;                  ///< "Microsoft VBScript runtime error", or what the script gave
  bool isSyntax = false;        ///< the code did not compile
  bool isInterruption = false;  ///< the script was stopped: by Interrupt, its host's wish or a time-out
};

/// A procedure that a script defined.
struct ScriptProcedure {
  Text name;                  ///< as the script spells it
  int argumentCount = 0;      ///< number of its parameters
  bool returnsValue = false;  ///< it is a function
};

/// A named module of a script engine with code of its own over the shared global one.
class ScriptModule : public RefCounted {
 public:
  /// The name of the module.
  virtual Text Name() const = 0;
  /// Compiles code into the module and runs the statements outside procedures.
  virtual void AddCode(std::u16string_view code) = 0;
  /// Calls a procedure of the module. Error 5 where there is none.
  virtual Variant Run(std::u16string_view procedure, Args args = {}) = 0;
  /// In the order of their definition.
  virtual std::vector<ScriptProcedure> Procedures() const = 0;
};

/// The script engine that a form drives. Failures are numbered errors; those inside a script are in
/// LastError too. Calls nest: what a script calls may call the control again, and may reset it; the code that
/// runs then ends in the engine that it began in.
class ScriptControl : public RefCounted {
 public:
  /// The name of the language; "" if none is set.
  virtual Text Language() const = 0;
  /// Selects the engine, whatever the case of the name; a new value replaces the old one and drops all code
  /// and objects. Error 5 for a language that there is no engine of.
  virtual void SetLanguage(std::u16string_view language) = 0;
  /// Window that owns the engine's dialogs; error 380 for a handle that is neither a window nor a connection.
  virtual void SetSiteWindow(std::int32_t handle) = 0;
  /// Drops all code and objects, and the error.
  virtual void Reset() = 0;
  /// Milliseconds; -1 for no limit.
  virtual void SetTimeout(std::int32_t milliseconds) = 0;
  /// Whether scripts may show dialogs; true at first.
  virtual void SetAllowUI(bool allowed) = 0;
  /// Adds an object under a name, its members global where asked for.
  virtual void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) = 0;
  /// Compiles into the global module and runs the statements outside procedures.
  virtual void AddCode(std::u16string_view code) = 0;
  /// Adds a module; error 5 if the name is taken.
  virtual Ref<ScriptModule> AddModule(std::u16string_view name) = 0;
  /// The global module, whose name is "Global", and those added, in the order of their addition.
  virtual std::vector<Ref<ScriptModule>> Modules() const = 0;
  /// Calls a procedure of the global module. Error 5 if there is none.
  virtual Variant Run(std::u16string_view procedure, Args args = {}) = 0;
  /// The error of the latest call; number 0 if it had none.
  virtual ScriptError LastError() const = 0;
  /// Stops what runs at its next step.
  virtual void Interrupt() noexcept = 0;
};

}  // namespace cardwright
