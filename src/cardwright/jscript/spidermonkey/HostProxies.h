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

/// @name Calls of members. They return false where an exception is pending or the script has to stop.
/// @{
bool InvokeMember(ScriptSession& session, Object& object, MemberId member, CallKind kind,
                  const JS::CallArgs& args);
bool InvokeMember(ScriptSession& session, Object& object, MemberId member, CallKind kind, Args args,
                  JS::MutableHandleValue result);
/// Assigns; the last of `args` is the value.
bool PutMember(ScriptSession& session, Object& object, MemberId member, Args args);
/// Reads a member as `o.m` does. Sets `needsCall` instead of `result` where the member is a method or needs
/// arguments.
bool ReadMember(ScriptSession& session, Object& object, JS::HandleId name, const HostMember& member,
                JS::MutableHandleValue result, bool& needsCall);
/// @}

/// Makes a function that calls the member `name` of its `this`, or of `bound` where that is given.
JSObject* MethodFunction(ScriptSession& session, JS::HandleId name, JS::HandleObject bound);
/// Whether a function was made with a bound object, and if so that object and the member's name.
bool IsBoundMethod(JSObject* function, JS::MutableHandleValue object, JS::MutableHandleValue name);

}  // namespace cardwright::jscript
