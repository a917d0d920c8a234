#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/syntax/Edits.h"
#include "cardwright/platform/ScriptControl.h"

namespace cardwright::jscript {

class Session;

/// An error that left a script uncaught.
class ScriptFault : public Error {
 public:
  ScriptFault(const ScriptError& error, const Session& session)
      : Error(error.number, error.description, error.source), m_Error(error), m_Session(&session) {}
  const ScriptError& Described() const noexcept { return m_Error; }
  bool IsOf(const Session& session) const noexcept { return m_Session == &session; }

 private:
  ScriptError m_Error;
  const Session* m_Session;
};

/// @name From C++ to the script. All give false, for the caller to give to the library.
/// @{
bool ThrowError(Session& session, const Error& error);
/// An error of the language by its number.
bool ThrowNumber(JSContext* cx, int number);
/// @}

/// @name From the script to C++
/// @{
/// Ends a failed call of the library: throws the pending exception as a ScriptFault, an Interrupted where the
/// script was stopped, or what was held back. `isCompiling` where no code ran yet.
[[noreturn]] void ThrowPending(Session& session, bool isCompiling = false);
/// Gives a caught error of the library's own the number, description and message that scripts know.
bool DressError(Session& session, JS::HandleValue error);
/// @}

/// What number and text a script sees of an error object; none for one that it made itself.
struct ErrorFace {
  int number = 0;
  Text text;
};
bool FaceOf(Session& session, JS::HandleObject error, ErrorFace& face);

/// The number as scripts see it: "facility" and number in 32 bits, negative for those of the language.
std::int32_t ScriptNumber(int number) noexcept;

}  // namespace cardwright::jscript
