#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>
#include <js/Value.h>

#include "cardwright/automation/Variant.h"

namespace cardwright::jscript {

class Session;

/// @name Host values that scripts have no form for, kept whole in objects.
/// @{
/// A VBArray: `dimensions`, `lbound`, `ubound`, `getItem`, `toArray`.
bool BoxArray(Session& session, const Variant& array, JS::MutableHandleValue result);
/// An object that calculates as the nearest number, reads as the exact text and goes out as the value itself.
bool BoxExact(Session& session, const Variant& value, JS::MutableHandleValue result);
/// What such an object keeps; null for all others.
const Variant* BoxedValue(JSObject* object) noexcept;
/// @}

/// Makes the prototypes and the constructor `VBArray`. Gives the prototypes of arrays and of exact values.
bool DefineBoxes(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject arrays,
                 JS::MutableHandleObject exact);

}  // namespace cardwright::jscript
