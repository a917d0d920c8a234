// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/HostProxies.h"

#include <js/CallAndConstruct.h>
#include <js/Conversions.h>
#include <js/PropertyAndElement.h>
#include <js/Proxy.h>
#include <js/Symbol.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/HostMembers.h"
#include "cardwright/jscript/spidermonkey/ProxyTraps.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {

/// The private data of a proxy.
struct HostLink {
  Runtime* runtime = nullptr;
  ScriptSession* session = nullptr;  // null once it has ended
  Ref<Object> object;
};

namespace {

constexpr std::size_t kMethodNameSlot = 0, kMethodObjectSlot = 1;
constexpr int kMostDefaults = 16;  // default members of default members

HostLink* LinkOf(JSObject* object) noexcept {
  if (!js::IsProxy(object) || js::GetProxyHandler(object) != HostHandler()) return nullptr;
  return static_cast<HostLink*>(js::GetProxyPrivate(object).toPrivate());
}

// The session and the object of a trap. TargetOf throws an exception in the script where one of them has
// ended.
struct Target {
  ScriptSession* session;
  Ref<Object> object;
};
bool TargetOf(JSContext* cx, JSObject* proxy, Target& target) {
  target.session = ScriptSession::Required(cx);
  if (!target.session) return false;
  const HostLink* link = LinkOf(proxy);
  if (!link || !link->object) return ThrowNumber(cx, kFreedScript);
  target.object = link->object;
  return true;
}

bool CallMethod(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  JS::RootedValue on(cx, js::GetFunctionNativeReserved(&args.callee(), kMethodObjectSlot));
  if (!on.isObject()) on = args.thisv();
  if (!on.isObject() || !IsHostObject(&on.toObject())) return ThrowNumber(cx, kObjectExpected);
  Target target;
  if (!TargetOf(cx, &on.toObject(), target)) return false;
  JS::RootedId name(cx);
  JS::RootedString text(cx, js::GetFunctionNativeReserved(&args.callee(), kMethodNameSlot).toString());
  if (!JS_StringToId(cx, text, &name)) return false;
  const HostMember member = target.session->Members().Find(*target.object, name);
  if (!member.Exists()) return ThrowNumber(cx, kNoSuchMember);
  return InvokeMember(*target.session, *target.object, member.id, CallKind::MethodOrGet, args);
}

// The primitive value of a host object: that of its default member.
bool ToPlainValue(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  if (!args.thisv().isObject() || !IsHostObject(&args.thisv().toObject()))
    return ThrowNumber(cx, kObjectExpected);
  Target target;
  if (!TargetOf(cx, &args.thisv().toObject(), target)) return false;
  JS::RootedValue value(cx);
  const auto read = [&] {
    Variant plain(target.object);
    for (int k = 0; plain.IsObject() && plain.ObjectPtr(); ++k) {
      if (k == kMostDefaults || plain.ObjectPtr()->DefaultMember() == kNoMember) {
        plain = u"[object]";
        break;
      }
      plain = DefaultValue(plain);
    }
    return ToScript(*target.session, plain, &value);
  };
  if (!CallHost(*target.session, read)) return false;
  if (value.isObject()) {
    JS::RootedString text(cx, JS::ToString(cx, value));
    if (!text) return false;
    value.setString(text);
  }
  args.rval().set(value);
  return true;
}

bool PlainValueFunction(ScriptSession& session, JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  JS::RootedObject methods(cx, session.SharedMethods());
  JS::RootedId key(cx, JS::GetWellKnownSymbolKey(cx, JS::SymbolCode::toPrimitive));
  if (!JS_GetPropertyById(cx, methods, key, result)) return false;
  if (result.isObject()) return true;
  JSFunction* function = JS_NewFunction(cx, &ToPlainValue, 0, 0, "valueOf");
  if (!function) return false;
  result.setObject(*JS_GetFunctionObject(function));
  return JS_DefinePropertyById(cx, methods, key, result, 0);
}

bool IsPlainValueName(JS::PropertyKey name) {
  if (!name.isString()) return false;
  const std::u16string spelling = SpellingOf(name);
  return spelling == u"toString" || spelling == u"valueOf" || spelling == u"toLocaleString";
}

bool SharedMethod(ScriptSession& session, JS::HandleId name, JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  JS::RootedObject methods(cx, session.SharedMethods());
  if (!JS_GetPropertyById(cx, methods, name, result)) return false;
  if (result.isObject()) return true;
  JSObject* function = MethodFunction(session, name, nullptr);
  if (!function) return false;
  result.setObject(*function);
  return JS_DefinePropertyById(cx, methods, name, result, JSPROP_ENUMERATE);
}

}  // namespace

bool WrapHostObject(ScriptSession& session, Object& object, JS::MutableHandleValue result) {
  const auto known = session.Wrappers().find(&object);
  if (known != session.Wrappers().end()) {
    result.setObject(*known->second);
    return true;
  }
  JSContext* cx = session.Context();
  auto link = std::make_unique<HostLink>(HostLink{&session.GetRuntime(), &session, Ref<Object>(&object)});
  JS::RootedValue own(cx, JS::PrivateValue(link.get()));
  JSObject* proxy = js::NewProxyObject(cx, HostHandler(), own, nullptr);
  if (!proxy) return false;
  static_cast<void>(link.release());  // the proxy owns it until HostFinalize
  result.setObject(*proxy);
  session.Wrappers().emplace(&object, proxy);
  return true;
}

bool IsHostObject(JSObject* object) noexcept { return LinkOf(object) != nullptr; }

Object* WrappedObject(JSObject* object) noexcept {
  const HostLink* link = LinkOf(object);
  return link ? link->object.get() : nullptr;
}

Variant DetachProxy(JSObject* wrapper) {
  HostLink* link = LinkOf(wrapper);
  link->session = nullptr;
  return Variant(std::exchange(link->object, nullptr));
}

JSObject* MethodFunction(ScriptSession& session, JS::HandleId name, JS::HandleObject bound) {
  JSContext* cx = session.Context();
  JS::RootedValue spelling(cx);
  if (!JS_IdToValue(cx, name, &spelling)) return nullptr;
  JS::RootedString text(cx, JS::ToString(cx, spelling));
  if (!text) return nullptr;
  JSFunction* function = js::NewFunctionWithReserved(cx, &CallMethod, 0, 0, "method");
  if (!function) return nullptr;
  JSObject* object = JS_GetFunctionObject(function);
  js::SetFunctionNativeReserved(object, kMethodNameSlot, JS::StringValue(text));
  js::SetFunctionNativeReserved(object, kMethodObjectSlot,
                                bound ? JS::ObjectValue(*bound) : JS::UndefinedValue());
  return object;
}

bool IsBoundMethod(JSObject* function, JS::MutableHandleValue object, JS::MutableHandleValue name) {
  if (!JS_IsNativeFunction(function, &CallMethod)) return false;
  object.set(js::GetFunctionNativeReserved(function, kMethodObjectSlot));
  name.set(js::GetFunctionNativeReserved(function, kMethodNameSlot));
  return object.isObject();
}

namespace traps {

bool HostGet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::MutableHandleValue value) {
  Target target;
  if (!TargetOf(cx, proxy, target)) return false;
  ScriptSession& session = *target.session;
  value.setUndefined();
  if (name.get() == JS::GetWellKnownSymbolKey(cx, JS::SymbolCode::toPrimitive))
    return PlainValueFunction(session, value);
  const HostMember member = session.Members().Find(*target.object, name);
  if (!member.Exists()) return !IsPlainValueName(name) || PlainValueFunction(session, value);
  bool needsCall = false;
  if (!ReadMember(session, *target.object, name, member, value, needsCall)) return false;
  return !needsCall || SharedMethod(session, name, value);
}

bool HostSet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::HandleValue value) {
  Target target;
  if (!TargetOf(cx, proxy, target)) return false;
  ScriptSession& session = *target.session;
  const HostMember member = session.Members().Find(*target.object, name);
  if (!member.Exists()) return ThrowNumber(cx, kNoSuchMember);
  Variant given;
  return CallHost(session, [&] { return FromScript(session, value, given); }) &&
         PutMember(session, *target.object, member.id, Args(&given, 1));
}

bool HostHas(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, bool& has) {
  Target target;
  if (!TargetOf(cx, proxy, target)) return false;
  return CallHost(*target.session, [&] {
    has = target.session->Members().Find(*target.object, name).Exists();
    return true;
  });
}

bool HostNames(JSContext* cx, JS::HandleObject proxy, JS::MutableHandleIdVector names) {
  Target target;
  if (!TargetOf(cx, proxy, target)) return false;
  return CallHost(*target.session, [&] {
    for (const Text& name : target.object->MemberNames()) {
      JS::RootedId id(cx);
      if (!JS_CharsToId(cx, JS::TwoByteChars(name.View().data(), name.Size()), &id) || !names.append(id))
        return false;
    }
    return true;
  });
}

bool HostCall(JSContext* cx, JS::HandleObject proxy, const JS::CallArgs& args) {
  Target target;
  if (!TargetOf(cx, proxy, target)) return false;
  const MemberId member = target.object->DefaultMember();
  if (member == kNoMember) return ThrowNumber(cx, kFunctionExpected);
  return InvokeMember(*target.session, *target.object, member, CallKind::MethodOrGet, args);
}

bool HostIsCallable(JSObject* proxy) {
  const Object* object = WrappedObject(proxy);
  return object && object->DefaultMember() != kNoMember;
}

void HostFinalize(JSObject* proxy) {
  const std::unique_ptr<HostLink> link(LinkOf(proxy));
  if (!link || !link->object) return;
  if (link->session) link->session->Wrappers().erase(link->object.get());
  link->runtime->DeferRelease(Variant(std::move(link->object)));
}

void HostMoved(JSObject* proxy) {
  const HostLink* link = LinkOf(proxy);
  if (link && link->session && link->object) link->session->Wrappers()[link->object.get()] = proxy;
}

}  // namespace traps
}  // namespace cardwright::jscript
