#pragma once

#include <jspubtd.h>

#include <js/CallArgs.h>
#include <js/RootingAPI.h>
#include <js/Value.h>

#include "cardwright/automation/Object.h"
#include "cardwright/jscript/spidermonkey/MemberCache.h"

namespace cardwright::jscript {

class Session;

/// The script's wrapper of a host object, the same one for as long as it lives.
bool WrapHostObject(Session& session, Object& object, JS::MutableHandleValue result);
bool IsHostObject(JSObject* object) noexcept;
/// The host object behind a wrapper; null for other script objects, and once the session has ended.
Object* WrappedObject(JSObject* object) noexcept;
/// Takes the host object out of its wrapper, whose uses are errors from then on.
Variant ForgetWrapped(JSObject* wrapper);

/// @name Calls of members. False where an exception is pending or the script is to stop.
/// @{
bool InvokeMember(Session& session, Object& object, MemberId member, CallKind kind, const JS::CallArgs& args);
bool InvokeMember(Session& session, Object& object, MemberId member, CallKind kind, Args args,
                  JS::MutableHandleValue result);
/// Assigns; the last of `args` is the value.
bool PutMember(Session& session, Object& object, MemberId member, Args args);
/// Reads a member that naming it gives. `needsCall` where it is a method, or wants arguments; `result` is not
/// set then.
bool ReadMember(Session& session, Object& object, JS::HandleId name, const HostMember& member,
                JS::MutableHandleValue result, bool& needsCall);
/// @}

/// A function that calls the member of that name of whatever it is called on, or of `bound`.
JSObject* MethodFunction(Session& session, JS::HandleId name, JS::HandleObject bound);
/// Object and name of such a function with an object of its own.
bool IsBoundMethod(JSObject* function, JS::MutableHandleValue object, JS::MutableHandleValue name);

}  // namespace cardwright::jscript
