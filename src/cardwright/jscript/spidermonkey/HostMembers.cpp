// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/HostMembers.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

bool IsRefused(const Error& error, ErrorNumber number) noexcept {
  return error.Number() == static_cast<int>(number);
}

}  // namespace

bool InvokeMember(ScriptSession& session, Object& object, MemberId member, CallKind kind, Args args,
                  JS::MutableHandleValue result) {
  return CallHost(session, [&] {
    const Ref<Object> alive(&object);
    return ToScript(session, object.Invoke(member, kind, args), result);
  });
}

bool InvokeMember(ScriptSession& session, Object& object, MemberId member, CallKind kind,
                  const JS::CallArgs& args) {
  return CallHost(session, [&] {
    const Ref<Object> alive(&object);
    ArgumentList list(args.length());
    for (unsigned k = 0; k < args.length(); ++k)
      if (!FromScript(session, args[k], list[k])) return false;
    return ToScript(session, object.Invoke(member, kind, list.Values()), args.rval());
  });
}

bool PutMember(ScriptSession& session, Object& object, MemberId member, Args args) {
  return CallHost(session, [&] {
    const Ref<Object> alive(&object);
    Variant& value = args.back();
    const bool isNull = value.IsNull();
    try {
      object.Invoke(member, value.IsObject() ? CallKind::Set : CallKind::Let, args);
      return true;
    } catch (const Error& error) {
      // JScript has one null for the host's Null and Nothing, and one assignment for Let and Set.
      const bool wantsObject = isNull && IsRefused(error, ErrorNumber::ObjectRequired);
      const bool wantsValue = value.IsObject() && IsRefused(error, ErrorNumber::NotSupported);
      if (!wantsObject && !wantsValue) throw;
    }
    if (isNull) value = Variant::Nothing();
    object.Invoke(member, isNull ? CallKind::Set : CallKind::Let, args);
    return true;
  });
}

bool ReadMember(ScriptSession& session, Object& object, JS::HandleId name, const HostMember& member,
                JS::MutableHandleValue result, bool& needsCall) {
  needsCall = member.isMethod;
  if (needsCall) return true;
  return CallHost(session, [&] {
    const Ref<Object> alive(&object);
    try {
      return ToScript(session, object.Invoke(member.id, CallKind::Get, {}), result);
    } catch (const Error& error) {
      const bool needsArguments = IsRefused(error, ErrorNumber::WrongArgumentCount) ||
                                  IsRefused(error, ErrorNumber::ArgumentNotOptional);
      needsCall = needsArguments || IsRefused(error, ErrorNumber::NotSupported);
      if (!needsCall) throw;
      if (needsArguments) session.Members().SetNeedsArguments(object, name);
      return true;
    }
  });
}

}  // namespace cardwright::jscript
