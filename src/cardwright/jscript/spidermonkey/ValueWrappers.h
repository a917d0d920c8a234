// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>
#include <js/Value.h>

#include "cardwright/automation/Variant.h"

namespace cardwright::jscript {

class ScriptSession;

/// @name Script objects around host values that JavaScript has no type for
/// @{
/// A VBArray: `dimensions`, `lbound`, `ubound`, `getItem`, `toArray`.
bool WrapArray(ScriptSession& session, const Variant& array, JS::MutableHandleValue result);
/// An object that counts as the nearest number in calculations, prints the exact text, and gives the host
/// back the exact value.
bool WrapExactValue(ScriptSession& session, const Variant& value, JS::MutableHandleValue result);
/// The value in a wrapper; null for all other objects.
const Variant* WrappedValue(JSObject* object) noexcept;
/// @}

/// Makes the prototypes of both wrappers and the constructor `VBArray`.
bool DefineValueWrappers(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject arrays,
                         JS::MutableHandleObject exact);

}  // namespace cardwright::jscript
