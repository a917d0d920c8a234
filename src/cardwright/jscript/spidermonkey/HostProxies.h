// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/CallArgs.h>
#include <js/RootingAPI.h>
#include <js/Value.h>

#include "cardwright/automation/Object.h"
#include "cardwright/jscript/spidermonkey/MemberCache.h"

namespace cardwright::jscript {

class ScriptSession;

/// The script's proxy for a host object, the same one for as long as the proxy lives.
bool WrapHostObject(ScriptSession& session, Object& object, JS::MutableHandleValue result);
bool IsHostObject(JSObject* object) noexcept;
/// The host object of a proxy; null for other script objects and once the session has ended.
Object* WrappedObject(JSObject* object) noexcept;
/// Takes the host object out of its proxy. From then on every use of the proxy is an error.
Variant DetachProxy(JSObject* proxy);

/// Makes a function that calls the member `name` of its `this`, or of `bound` where that is given.
JSObject* MethodFunction(ScriptSession& session, JS::HandleId name, JS::HandleObject bound);
/// Whether a function was made with a bound object, and if so that object and the member's name.
bool IsBoundMethod(JSObject* function, JS::MutableHandleValue object, JS::MutableHandleValue name);

}  // namespace cardwright::jscript
