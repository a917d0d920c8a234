// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright::jscript {

class ScriptSession;

/// An error that a script did not catch.
class ScriptFault : public Error {
 public:
  ScriptFault(const ScriptError& error, const ScriptSession& session)
      : Error(error.number, error.description, error.source), m_Error(error), m_Session(&session) {}
  const ScriptError& Details() const noexcept { return m_Error; }
  bool IsOf(const ScriptSession& session) const noexcept { return m_Session == &session; }

 private:
  ScriptError m_Error;
  const ScriptSession* m_Session;
};

/// @name From C++ to the script. All return false, which the caller returns to the library.
/// @{
bool ThrowError(ScriptSession& session, const Error& error);
/// Throws an error of the language by its number.
bool ThrowNumber(JSContext* cx, int number);
/// @}

/// @name From the script to C++
/// @{
/// Ends a failed call of the library. Throws the session's pending C++ exception where there is one, an
/// Interrupted where the script was stopped, and else the script's exception as a ScriptFault. `isCompiling`
/// where no code ran.
[[noreturn]] void ThrowPending(ScriptSession& session, bool isCompiling = false);
/// Gives an error that the library raised and the script caught the JScript number, description and message.
bool AddErrorProperties(ScriptSession& session, JS::HandleValue error);
/// @}

}  // namespace cardwright::jscript
