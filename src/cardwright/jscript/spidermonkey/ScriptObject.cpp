// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/ScriptObject.h"

#include <js/Array.h>
#include <js/CallAndConstruct.h>
#include <js/Conversions.h>
#include <js/Object.h>
#include <js/PropertyAndElement.h>
#include <js/WeakMap.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/ScriptErrors.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

constexpr char kFamily = 0;
constexpr JSClass kHolderClass = {"host side", JSCLASS_HAS_RESERVED_SLOTS(1), nullptr, nullptr, nullptr,
                                  nullptr};

// Runs a step in the script's realm. A script that is stopped there ends with an error like any other.
template <class Step>
auto InScript(ScriptSession& session, Step&& step) {
  const ScriptSession::Entry entry(session);
  try {
    return step();
  } catch (const Interrupted&) {
    Raise(kUserInterrupt, u"User interrupt occurred", kRuntimeErrorSource);
  }
}

bool ArgumentsToScript(ScriptSession& session, Args args, JS::MutableHandleValueVector values) {
  for (const Variant& one : args) {
    JS::RootedValue value(session.Context());
    if (!ToScript(session, one, &value) || !values.append(value)) return false;
  }
  return true;
}

Variant Call(ScriptSession& session, JS::HandleValue thisValue, JS::HandleValue function, Args args) {
  JSContext* cx = session.Context();
  JS::RootedValueVector values(cx);
  JS::RootedValue result(cx);
  Variant answer;
  if (!ArgumentsToScript(session, args, &values) || !JS::Call(cx, thisValue, function, values, &result) ||
      !FromScript(session, result, answer))
    ThrowPending(session);
  return answer;
}

std::u16string NameIn(ScriptSession& session, JS::HandleObject object, std::u16string_view name) {
  JSContext* cx = session.Context();
  bool has = false;
  if (!JS_HasUCProperty(cx, object, name.data(), name.size(), &has)) ThrowPending(session);
  if (has) return std::u16string(name);
  JS::RootedObject at(cx, object);
  while (at) {
    JS::RootedIdVector names(cx);
    if (!js::GetPropertyKeys(cx, at, JSITER_OWNONLY | JSITER_HIDDEN, &names)) ThrowPending(session);
    for (const JS::PropertyKey& one : names) {
      std::u16string spelling = SpellingOf(one);
      if (EqualsNoCase(spelling, name)) return spelling;
    }
    JS::RootedObject next(cx);
    if (!JS_GetPrototype(cx, at, &next)) ThrowPending(session);
    at = next;
  }
  return {};
}

}  // namespace

/// Enumerates the elements of a script's array.
class ArrayEnumerator final : public Enumerator {
 public:
  explicit ArrayEnumerator(Ref<ScriptObject> array) : m_Array(std::move(array)) {}
  bool Next(Variant& value) override {
    ScriptSession& session = m_Array->Required();
    return InScript(session, [&] {
      JSContext* cx = session.Context();
      std::uint32_t length = 0;
      JS::RootedValue element(cx);
      JS::RootedObject object(cx, m_Array->m_Object);
      if (!JS::GetArrayLength(cx, object, &length)) ThrowPending(session);
      if (m_Next >= length) return false;
      if (!JS_GetElement(cx, object, m_Next++, &element) || !FromScript(session, element, value))
        ThrowPending(session);
      return true;
    });
  }

 private:
  Ref<ScriptObject> m_Array;
  std::uint32_t m_Next = 0;
};

ScriptObject::ScriptObject(ScriptSession& session, JS::HandleObject object, JS::HandleObject holder)
    : Object(&kFamily),
      m_Session(&session),
      m_Object(session.Context(), object),
      m_Holder(session.Context(), holder) {
  session.ScriptObjects().insert(this);
  JS::SetReservedSlot(m_Holder, 0, JS::PrivateValue(this));
}

ScriptObject::~ScriptObject() {
  if (!m_Session) return;
  m_Session->ScriptObjects().erase(this);
  JS::SetReservedSlot(m_Holder, 0, JS::UndefinedValue());
}

void ScriptObject::Detach() noexcept {
  JS::SetReservedSlot(m_Holder, 0, JS::UndefinedValue());
  m_Session = nullptr;
  m_Object.reset();
  m_Holder.reset();
}

Ref<ScriptObject> ScriptObject::Of(ScriptSession& session, JS::HandleObject object) {
  JSContext* cx = session.Context();
  JS::RootedValue known(cx);
  if (!JS::GetWeakMapEntry(cx, session.ScriptObjectTable(), object, &known)) return nullptr;
  JS::RootedObject holder(cx, known.isObject() ? &known.toObject() : nullptr);
  if (holder) {
    const JS::Value slot = JS::GetReservedSlot(holder, 0);
    if (!slot.isUndefined()) return Ref<ScriptObject>(static_cast<ScriptObject*>(slot.toPrivate()));
  } else {
    holder = JS_NewObjectWithGivenProto(cx, &kHolderClass, nullptr);
    JS::RootedValue entry(cx, JS::ObjectOrNullValue(holder));
    if (!holder || !JS::SetWeakMapEntry(cx, session.ScriptObjectTable(), object, entry)) return nullptr;
  }
  return MakeRef<ScriptObject>(session, object, holder);
}

JSObject* ScriptObject::Unwrap(const Object& object, const ScriptSession& session) noexcept {
  if (object.Family() != &kFamily) return nullptr;
  const auto& own = static_cast<const ScriptObject&>(object);
  return own.m_Session == &session ? own.m_Object.get() : nullptr;
}

ScriptSession& ScriptObject::Required() const {
  if (!m_Session) Raise(kFreedScript, ErrorText(kFreedScript), kRuntimeErrorSource);
  return *m_Session;
}

MemberId ScriptObject::FindMember(std::u16string_view name) const {
  ScriptSession& session = Required();
  return InScript(session, [&] {
    JS::RootedObject object(session.Context(), m_Object);
    const std::u16string found = NameIn(session, object, name);
    return found.empty() ? kNoMember : session.NumberOf(found);
  });
}

Variant ScriptObject::Invoke(MemberId member, CallKind kind, Args args) {
  ScriptSession& session = Required();
  const Ref<ScriptObject> alive(this);
  if (member == kDefault) return InScript(session, [&] { return InvokeDefault(session, kind, args); });
  return InScript(session, [&] {
    JSContext* cx = session.Context();
    const std::u16string& name = session.NameOf(member);
    JS::RootedObject object(cx, m_Object);
    JS::RootedValue value(cx);
    if (Allows(kind, CallKind::Let) || Allows(kind, CallKind::Set)) {
      if (args.size() != 1) Raise(ErrorNumber::WrongArgumentCount);
      if (!ToScript(session, args[0], &value) ||
          !JS_SetUCProperty(cx, object, name.data(), name.size(), value))
        ThrowPending(session);
      return Variant();
    }
    if (!JS_GetUCProperty(cx, object, name.data(), name.size(), &value)) ThrowPending(session);
    const bool isFunction = value.isObject() && JS::IsCallable(&value.toObject());
    if (isFunction && (Allows(kind, CallKind::Method) || !args.empty())) {
      JS::RootedValue thisValue(cx, JS::ObjectValue(*object));
      return Call(session, thisValue, value, args);
    }
    if (!args.empty() || kind == CallKind::Method) Raise(ErrorNumber::NotSupported);
    Variant result;
    if (!FromScript(session, value, result)) ThrowPending(session);
    return result;
  });
}

Variant ScriptObject::InvokeDefault(ScriptSession& session, CallKind kind, Args args) {
  JSContext* cx = session.Context();
  if (!Allows(kind, CallKind::MethodOrGet)) Raise(ErrorNumber::NotSupported);
  JS::RootedObject object(cx, m_Object);
  JS::RootedValue value(cx, JS::ObjectValue(*object));
  if (JS::IsCallable(object)) return Call(session, JS::UndefinedHandleValue, value, args);
  if (!args.empty()) Raise(ErrorNumber::WrongArgumentCount);
  Variant result;
  JS::RootedValue plain(cx);
  if (!JS::ToPrimitive(cx, object, JSTYPE_UNDEFINED, &plain) || !FromScript(session, plain, result))
    ThrowPending(session);
  return result;
}

std::vector<Text> ScriptObject::MemberNames() const {
  ScriptSession& session = Required();
  return InScript(session, [&] {
    JSContext* cx = session.Context();
    JS::RootedObject object(cx, m_Object);
    JS::Rooted<JS::IdVector> ids(cx, cx);
    if (!JS_Enumerate(cx, object, &ids)) ThrowPending(session);
    std::vector<Text> names;
    for (const JS::PropertyKey& id : ids) names.emplace_back(SpellingOf(id));
    return names;
  });
}

std::unique_ptr<Enumerator> ScriptObject::Enumerate() {
  ScriptSession& session = Required();
  return InScript(session, [&]() -> std::unique_ptr<Enumerator> {
    JS::RootedObject object(session.Context(), m_Object);
    bool isArray = false;
    if (!JS::IsArrayObject(session.Context(), object, &isArray)) ThrowPending(session);
    if (!isArray) return Object::Enumerate();
    return std::make_unique<ArrayEnumerator>(Ref<ScriptObject>(this));
  });
}

}  // namespace cardwright::jscript
