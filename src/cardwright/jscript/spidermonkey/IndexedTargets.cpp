// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/IndexedTargets.h"

#include <js/Array.h>
#include <js/CallArgs.h>
#include <js/Object.h>
#include <js/PropertyAndElement.h>
#include <jsapi.h>

#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/HostMembers.h"
#include "cardwright/jscript/spidermonkey/HostProxies.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"
#include "cardwright/jscript/syntax/Rewriter.h"

namespace cardwright::jscript {
namespace {

constexpr std::uint32_t kTargetObjectSlot = 0, kTargetNameSlot = 1, kTargetArgumentsSlot = 2;
constexpr JSClass kTargetClass = {"Object", JSCLASS_HAS_RESERVED_SLOTS(3), nullptr, nullptr, nullptr,
                                  nullptr};

// Makes a target from a member of `object`, or its default member where `name` is undefined, and the
// arguments from `first` on.
bool MakeTarget(JSContext* cx, JS::HandleValue object, JS::HandleValue name, const JS::CallArgs& args,
                unsigned first) {
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  JS::RootedValueVector values(cx);
  for (unsigned k = first; k < args.length(); ++k)
    if (!values.append(args[k])) return false;
  JS::RootedObject list(cx, JS::NewArrayObject(cx, values));
  JS::RootedObject prototype(cx, session->TargetPrototype());
  JS::RootedObject target(cx, list ? JS_NewObjectWithGivenProto(cx, &kTargetClass, prototype) : nullptr);
  if (!target) return false;
  JS::SetReservedSlot(target, kTargetObjectSlot, object);
  JS::SetReservedSlot(target, kTargetNameSlot, name);
  JS::SetReservedSlot(target, kTargetArgumentsSlot, JS::ObjectValue(*list));
  args.rval().setObject(*target);
  return true;
}

bool MakeTargetOfCallee(JSContext* cx, JS::HandleValue callee, const JS::CallArgs& args, unsigned first) {
  if (!callee.isObject()) return ThrowNumber(cx, callee.isUndefined() ? kObjectExpected : kFunctionExpected);
  JS::RootedValue object(cx), name(cx);
  if (IsHostObject(&callee.toObject())) return MakeTarget(cx, callee, name, args, first);
  if (IsBoundMethod(&callee.toObject(), &object, &name)) return MakeTarget(cx, object, name, args, first);
  return ThrowNumber(cx, kCannotAssignToResult);
}

bool IndexedTargetNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  JS::RootedValue callee(cx, args.get(0));
  return MakeTargetOfCallee(cx, callee, args, 1);
}

bool IndexedMemberNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  JS::RootedValue object(cx, args.get(0)), name(cx, args.get(1)), callee(cx);
  if (object.isNullOrUndefined()) return ThrowNumber(cx, kObjectExpected);
  if (object.isObject() && IsHostObject(&object.toObject())) return MakeTarget(cx, object, name, args, 2);
  JS::RootedObject holder(cx);
  JS::RootedId id(cx);
  if (!JS_ValueToObject(cx, object, &holder) || !JS_ValueToId(cx, name, &id) ||
      !JS_GetPropertyById(cx, holder, id, &callee))
    return false;
  return MakeTargetOfCallee(cx, callee, args, 2);
}

/// A target as it is read back from its script object.
struct AssignmentTarget {
  ScriptSession* session = nullptr;
  Ref<Object> object;
  MemberId member = kNoMember;
  bool isNamed = false;
  std::vector<Variant> arguments;
};

bool ReadTarget(JSContext* cx, const JS::CallArgs& args, AssignmentTarget& target) {
  target.session = ScriptSession::Required(cx);
  if (!target.session) return false;
  if (!args.thisv().isObject() || JS::GetClass(&args.thisv().toObject()) != &kTargetClass)
    return ThrowNumber(cx, kObjectExpected);
  JSObject* self = &args.thisv().toObject();
  target.object = Ref<Object>(WrappedObject(&JS::GetReservedSlot(self, kTargetObjectSlot).toObject()));
  if (!target.object) return ThrowNumber(cx, kFreedScript);
  JS::RootedObject list(cx, &JS::GetReservedSlot(self, kTargetArgumentsSlot).toObject());
  JS::RootedValue name(cx, JS::GetReservedSlot(self, kTargetNameSlot));
  target.isNamed = !name.isUndefined();
  JS::RootedId id(cx);
  std::uint32_t count = 0;
  if ((target.isNamed && !JS_ValueToId(cx, name, &id)) || !JS::GetArrayLength(cx, list, &count)) return false;
  target.arguments.resize(count);
  for (std::uint32_t k = 0; k < count; ++k) {
    JS::RootedValue value(cx);
    const auto take = [&] { return FromScript(*target.session, value, target.arguments[k]); };
    if (!JS_GetElement(cx, list, k, &value) || !CallHost(*target.session, take)) return false;
  }
  target.member =
      target.isNamed ? target.session->Members().Find(*target.object, id).id : target.object->DefaultMember();
  return target.member != kNoMember || ThrowNumber(cx, kNoSuchMember);
}

bool GetTargetValue(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  AssignmentTarget target;
  return ReadTarget(cx, args, target) && InvokeMember(*target.session, *target.object, target.member,
                                                      CallKind::MethodOrGet, target.arguments, args.rval());
}

// In `o.Items(1) = v` the member may take no arguments but return a collection, whose item is assigned.
bool RedirectToCollection(ScriptSession& session, AssignmentTarget& target) {
  return CallHost(session, [&] {
    const Variant held = target.object->Invoke(target.member, CallKind::Get, {});
    if (!held.IsObject() || !held.ObjectPtr() || held.ObjectPtr()->DefaultMember() == kNoMember)
      Raise(kNoSuchMember, ErrorText(kNoSuchMember));
    target.object = Ref<Object>(held.ObjectPtr());
    target.member = target.object->DefaultMember();
    return true;
  });
}

bool SetTargetValue(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  AssignmentTarget target;
  if (!ReadTarget(cx, args, target)) return false;
  ScriptSession& session = *target.session;
  JS::RootedValue value(cx, args.get(0));
  target.arguments.emplace_back();
  if (!CallHost(session, [&] { return FromScript(session, value, target.arguments.back()); })) return false;
  bool isRefused = false;
  const auto put = [&] {
    try {
      const bool isObject = target.arguments.back().IsObject();
      target.object->Invoke(target.member, isObject ? CallKind::Set : CallKind::Let, target.arguments);
    } catch (const Error& error) {
      isRefused = target.isNamed && (error.Number() == static_cast<int>(ErrorNumber::NotSupported) ||
                                     error.Number() == static_cast<int>(ErrorNumber::WrongArgumentCount));
      if (!isRefused) throw;
    }
    return true;
  };
  if (!target.isNamed) return PutMember(session, *target.object, target.member, target.arguments);
  if (!CallHost(session, put)) return false;
  return !isRefused || (RedirectToCollection(session, target) &&
                        PutMember(session, *target.object, target.member, target.arguments));
}

}  // namespace

bool DefineIndexedTargets(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject prototype) {
  constexpr unsigned kFixed = JSPROP_PERMANENT | JSPROP_READONLY;
  constexpr std::u16string_view put = hidden::kIndexedTarget, putMember = hidden::kIndexedMember;
  prototype.set(JS_NewPlainObject(cx));
  return prototype && JS_DefineProperty(cx, prototype, "v", &GetTargetValue, &SetTargetValue, 0) &&
         JS_DefineUCFunction(cx, global, put.data(), put.size(), &IndexedTargetNative, 1, kFixed) &&
         JS_DefineUCFunction(cx, global, putMember.data(), putMember.size(), &IndexedMemberNative, 2, kFixed);
}

}  // namespace cardwright::jscript
