// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/GlobalNames.h"

#include <js/PropertyAndElement.h>
#include <js/Proxy.h>
#include <jsapi.h>

#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/HostMembers.h"
#include "cardwright/jscript/spidermonkey/HostProxies.h"
#include "cardwright/jscript/spidermonkey/ProxyTraps.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

/// What a name is bound to on the host's side.
struct NameBinding {
  Ref<Object> object;
  HostMember member;  // kNoMember where the name is that of the object itself
  explicit operator bool() const noexcept { return static_cast<bool>(object); }
};

// Resolves what the global object itself does not have. An object's exact name is a property there, so that
// the members that objects share come first here, and then the objects' names in any other case.
NameBinding ResolveName(ScriptSession& session, JS::PropertyKey name) {
  if (!name.isString() || session.Objects().empty()) return {};
  for (const NamedObject& one : session.Objects()) {
    if (!one.sharesMembers) continue;
    const HostMember member = session.Members().Find(*one.object, name);
    if (member.Exists()) return {one.object, member};
  }
  const std::u16string spelling = SpellingOf(name);
  for (const NamedObject& one : session.Objects())
    if (EqualsNoCase(one.name, spelling)) return {one.object, {}};
  return {};
}

// A function that calls the member, the same one for each use of the name.
bool GlobalMethod(ScriptSession& session, const NameBinding& binding, JS::HandleId name,
                  JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  JS::RootedObject methods(cx, session.GlobalMethods());
  if (!JS_GetPropertyById(cx, methods, name, result)) return false;
  if (result.isObject()) return true;
  JS::RootedValue wrapper(cx);
  if (!ToScript(session, Variant(binding.object), &wrapper)) return false;
  JS::RootedObject bound(cx, &wrapper.toObject());
  JSObject* function = MethodFunction(session, name, bound);
  if (!function) return false;
  result.setObject(*function);
  return JS_DefinePropertyById(cx, methods, name, result, JSPROP_ENUMERATE);
}

}  // namespace

JSObject* NewGlobalNames(JSContext* cx, JS::HandleObject prototype) {
  JS::RootedValue data(cx, JS::ObjectOrNullValue(prototype));
  return js::NewProxyObject(cx, NameHandler(), data, prototype);
}

namespace traps {

bool NameHas(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, bool& has) {
  if (ScriptSession* session = ScriptSession::Of(cx)) {
    NameBinding binding;
    if (!CallHost(*session, [&] {
          binding = ResolveName(*session, name);
          return true;
        }))
      return false;
    has = static_cast<bool>(binding);
    if (has) return true;
  }
  JS::RootedObject prototype(cx, js::GetProxyPrivate(proxy).toObjectOrNull());
  return JS_HasPropertyById(cx, prototype, name, &has);
}

bool NameGet(JSContext* cx, JS::HandleObject proxy, JS::HandleValue receiver, JS::HandleId name,
             JS::MutableHandleValue value) {
  ScriptSession* session = ScriptSession::Of(cx);
  const NameBinding binding = session ? ResolveName(*session, name) : NameBinding{};
  if (!binding) {
    JS::RootedObject prototype(cx, js::GetProxyPrivate(proxy).toObjectOrNull());
    return JS_ForwardGetPropertyTo(cx, prototype, name, receiver, value);
  }
  if (!binding.member.Exists()) return ToScript(*session, Variant(binding.object), value);
  bool needsCall = false;
  value.setUndefined();
  if (!ReadMember(*session, *binding.object, name, binding.member, value, needsCall)) return false;
  return !needsCall || GlobalMethod(*session, binding, name, value);
}

bool NameSet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::HandleValue value,
             JS::HandleValue receiver, JS::ObjectOpResult& result) {
  ScriptSession* session = ScriptSession::Of(cx);
  const NameBinding binding = session ? ResolveName(*session, name) : NameBinding{};
  if (!binding || !binding.member.Exists()) {
    JS::RootedObject prototype(cx, js::GetProxyPrivate(proxy).toObjectOrNull());
    return JS_ForwardSetPropertyTo(cx, prototype, name, value, receiver, result);
  }
  Variant given;
  return CallHost(*session, [&] { return FromScript(*session, value, given); }) &&
         PutMember(*session, *binding.object, binding.member.id, Args(&given, 1)) && result.succeed();
}

}  // namespace traps
}  // namespace cardwright::jscript
