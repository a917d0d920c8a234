#include "cardwright/jscript/spidermonkey/GlobalNames.h"

#include <js/PropertyAndElement.h>
#include <js/Proxy.h>
#include <jsapi.h>

#include "cardwright/jscript/spidermonkey/Calls.h"
#include "cardwright/jscript/spidermonkey/HostObjects.h"
#include "cardwright/jscript/spidermonkey/ProxyTraps.h"
#include "cardwright/jscript/spidermonkey/Values.h"

namespace cardwright::jscript {
namespace {

/// What a name of the host's means.
struct Meaning {
  Ref<Object> object;
  HostMember member;  // none where the name is the object's own
  explicit operator bool() const noexcept { return static_cast<bool>(object); }
};

// The names of the objects themselves come first; scripts may write them in any case.
Meaning MeaningOf(Session& session, JS::PropertyKey name) {
  if (!name.isString() || session.Objects().empty()) return {};
  for (const NamedObject& one : session.Objects()) {
    if (!one.sharesMembers) continue;
    const HostMember member = session.Members().Find(*one.object, name);
    if (member.IsThere()) return {one.object, member};
  }
  const std::u16string spelling = SpellingOf(name);
  for (const NamedObject& one : session.Objects())
    if (EqualsNoCase(one.name, spelling)) return {one.object, {}};
  return {};
}

// A function that calls the member; the same one each time the name is met.
bool GlobalMethod(Session& session, const Meaning& meaning, JS::HandleId name,
                  JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  JS::RootedObject methods(cx, session.GlobalMethods());
  if (!JS_GetPropertyById(cx, methods, name, result)) return false;
  if (result.isObject()) return true;
  JS::RootedValue wrapper(cx);
  if (!ToScript(session, Variant(meaning.object), &wrapper)) return false;
  JS::RootedObject bound(cx, &wrapper.toObject());
  JSObject* function = MethodFunction(session, name, bound);
  if (!function) return false;
  result.setObject(*function);
  return JS_DefinePropertyById(cx, methods, name, result, JSPROP_ENUMERATE);
}

}  // namespace

JSObject* NewGlobalNames(JSContext* cx, JS::HandleObject behind) {
  JS::RootedValue prototype(cx, JS::ObjectOrNullValue(behind));
  return js::NewProxyObject(cx, NameHandler(), prototype, behind);
}

namespace traps {

bool NameHas(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, bool& has) {
  if (Session* session = Session::Of(cx)) {
    Meaning meaning;
    if (!CallHost(*session, [&] {
          meaning = MeaningOf(*session, name);
          return true;
        }))
      return false;
    has = static_cast<bool>(meaning);
    if (has) return true;
  }
  JS::RootedObject behind(cx, js::GetProxyPrivate(proxy).toObjectOrNull());
  return JS_HasPropertyById(cx, behind, name, &has);
}

bool NameGet(JSContext* cx, JS::HandleObject proxy, JS::HandleValue receiver, JS::HandleId name,
             JS::MutableHandleValue value) {
  Session* session = Session::Of(cx);
  const Meaning meaning = session ? MeaningOf(*session, name) : Meaning{};
  if (!meaning) {
    JS::RootedObject behind(cx, js::GetProxyPrivate(proxy).toObjectOrNull());
    return JS_ForwardGetPropertyTo(cx, behind, name, receiver, value);
  }
  if (!meaning.member.IsThere()) return ToScript(*session, Variant(meaning.object), value);
  bool needsCall = false;
  value.setUndefined();
  if (!ReadMember(*session, *meaning.object, name, meaning.member, value, needsCall)) return false;
  return !needsCall || GlobalMethod(*session, meaning, name, value);
}

bool NameSet(JSContext* cx, JS::HandleObject proxy, JS::HandleId name, JS::HandleValue value,
             JS::HandleValue receiver, JS::ObjectOpResult& result) {
  Session* session = Session::Of(cx);
  const Meaning meaning = session ? MeaningOf(*session, name) : Meaning{};
  if (!meaning || !meaning.member.IsThere()) {
    JS::RootedObject behind(cx, js::GetProxyPrivate(proxy).toObjectOrNull());
    return JS_ForwardSetPropertyTo(cx, behind, name, value, receiver, result);
  }
  Variant given;
  return CallHost(*session, [&] { return FromScript(*session, value, given); }) &&
         PutMember(*session, *meaning.object, meaning.member.id, Args(&given, 1)) && result.succeed();
}

}  // namespace traps
}  // namespace cardwright::jscript
