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

}  // namespace cardwright::jscript
