#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>
#include <js/Value.h>

#include "cardwright/automation/Variant.h"

namespace cardwright::jscript {

class Session;

/// @name Values of the host and of scripts. False where the library failed, its exception pending; errors of
/// ours are thrown.
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
/// undefined and null go out as Empty and Null, whole numbers of 32 bits as Long, others as Double, functions
/// and objects as objects that answer by name.
/// @{
bool ToScript(Session& session, const Variant& value, JS::MutableHandleValue result);
bool FromScript(Session& session, JS::HandleValue value, Variant& result);
/// @}

/// Error 14 for a text longer than the session allows.
Text TextOf(Session& session, JS::HandleString text);

/// @name Dates, in Dates.cpp
/// @{
bool DateToScript(Session& session, Date date, JS::MutableHandleValue result);
/// Error 5 for a date that the host's calendar does not have.
bool DateFromScript(Session& session, JS::HandleObject object, Variant& result);
/// @}

}  // namespace cardwright::jscript
