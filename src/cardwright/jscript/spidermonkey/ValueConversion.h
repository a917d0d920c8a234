// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>
#include <js/Value.h>

#include "cardwright/automation/Variant.h"

namespace cardwright::jscript {

class ScriptSession;

/// @name Values of the host and of scripts. False where the library failed and left its exception pending.
/// Our own errors are thrown.
///
/// | host | script |
/// |---|---|
/// | Empty, a missing argument | undefined |
/// | Null, Nothing | null |
/// | Boolean, numbers, text | the same |
/// | Currency, Decimal | a number where that has the same value, else an object that keeps the exact one |
/// | Date | a Date that keeps the exact instant for as long as it is not changed |
/// | array | a VBArray |
/// | object | the same wrapper each time; a script's own object is itself |
///
/// In the other direction undefined becomes Empty, null Null, a whole number of 32 bits Long, any other
/// number Double, and a function or object a ScriptObject.
/// @{
bool ToScript(ScriptSession& session, const Variant& value, JS::MutableHandleValue result);
bool FromScript(ScriptSession& session, JS::HandleValue value, Variant& result);
/// @}

/// Error 14 where the text is longer than the session allows.
Text TextOf(ScriptSession& session, JS::HandleString text);

/// @name Dates, in DateConversion.cpp
/// @{
bool DateToScript(ScriptSession& session, Date date, JS::MutableHandleValue result);
/// Error 5 where the date is out of the range of the host's dates.
bool DateFromScript(ScriptSession& session, JS::HandleObject object, Variant& result);
/// @}

}  // namespace cardwright::jscript
