// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/ValueWrappers.h"

#include <js/Array.h>
#include <js/CallArgs.h>
#include <js/Conversions.h>
#include <js/Object.h>
#include <js/PropertySpec.h>
#include <jsapi.h>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

struct Wrapper {
  Runtime* runtime;
  Variant value;
};

void Finalize(JS::GCContext*, JSObject* object) {
  const JS::Value slot = JS::GetReservedSlot(object, 0);
  if (slot.isUndefined()) return;
  const std::unique_ptr<Wrapper> wrapper(static_cast<Wrapper*>(slot.toPrivate()));
  wrapper->runtime->DeferRelease(std::move(wrapper->value));
}

constexpr JSClassOps kOps = {nullptr, nullptr,   nullptr, nullptr, nullptr,
                             nullptr, &Finalize, nullptr, nullptr, nullptr};
constexpr JSClass kArrayClass = {
    "VBArray", JSCLASS_HAS_RESERVED_SLOTS(1) | JSCLASS_FOREGROUND_FINALIZE, &kOps, nullptr, nullptr, nullptr};
constexpr JSClass kExactClass = {
    "Object", JSCLASS_HAS_RESERVED_SLOTS(1) | JSCLASS_FOREGROUND_FINALIZE, &kOps, nullptr, nullptr, nullptr};

bool MakeWrapper(JSContext* cx, const JSClass& kind, JS::HandleObject prototype, const Variant& value,
                 JS::MutableHandleValue result) {
  JSObject* object = JS_NewObjectWithGivenProto(cx, &kind, prototype);
  if (!object) return false;
  JS::SetReservedSlot(object, 0, JS::PrivateValue(new Wrapper{&Runtime::Of(cx), value}));
  result.setObject(*object);
  return true;
}

/// The array that a method is called on; null and an exception where `this` is none.
Array* ThisArray(JSContext* cx, const JS::CallArgs& args) {
  const Variant* value = args.thisv().isObject() ? WrappedValue(&args.thisv().toObject()) : nullptr;
  if (value && value->IsArray()) return value->ArrayPtr();
  ThrowNumber(cx, kVBArrayExpected);
  return nullptr;
}

bool ConstructArray(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  const Variant* value = args.get(0).isObject() ? WrappedValue(&args.get(0).toObject()) : nullptr;
  if (!value || !value->IsArray()) return ThrowNumber(cx, kVBArrayExpected);
  return WrapArray(*session, Variant(*value), args.rval());
}

bool Dimensions(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  const Array* array = ThisArray(cx, args);
  if (!array) return false;
  args.rval().setInt32(static_cast<std::int32_t>(array->Dimensions().size()));
  return true;
}

bool Bound(JSContext* cx, unsigned count, JS::Value* vp, std::int32_t Bounds::*which) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  const Array* array = ThisArray(cx, args);
  std::int32_t dimension = 1;
  if (!array || (args.length() > 0 && !JS::ToInt32(cx, args[0], &dimension))) return false;
  if (dimension < 1 || static_cast<std::size_t>(dimension) > array->Dimensions().size())
    return ThrowNumber(cx, static_cast<int>(ErrorNumber::SubscriptOutOfRange));
  args.rval().setInt32(array->Dimensions()[static_cast<std::size_t>(dimension) - 1].*which);
  return true;
}
bool LowerBound(JSContext* cx, unsigned count, JS::Value* vp) { return Bound(cx, count, vp, &Bounds::lower); }
bool UpperBound(JSContext* cx, unsigned count, JS::Value* vp) { return Bound(cx, count, vp, &Bounds::upper); }

bool GetItem(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  const Ref<Array> array(session ? ThisArray(cx, args) : nullptr);
  if (!array) return false;
  std::vector<std::int32_t> indices(args.length());
  for (unsigned k = 0; k < args.length(); ++k)
    if (!JS::ToInt32(cx, args[k], &indices[k])) return false;
  return CallHost(*session, [&] { return ToScript(*session, array->At(indices), args.rval()); });
}

// All elements in one list, in the order of memory.
bool ToList(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  const Ref<Array> array(session ? ThisArray(cx, args) : nullptr);
  if (!array) return false;
  JS::RootedValueVector values(cx);
  const auto copy = [&] {
    for (const Variant& one : array->Values()) {
      JS::RootedValue value(cx);
      if (!ToScript(*session, one, &value) || !values.append(value)) return false;
    }
    return true;
  };
  if (!CallHost(*session, copy)) return false;
  JSObject* list = JS::NewArrayObject(cx, values);
  if (list) args.rval().setObject(*list);
  return list != nullptr;
}

const Variant* ThisExact(JSContext* cx, const JS::CallArgs& args) {
  const Variant* value = args.thisv().isObject() ? WrappedValue(&args.thisv().toObject()) : nullptr;
  if (!value) ThrowNumber(cx, kObjectExpected);
  return value;
}

bool ExactValue(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  const Variant* value = ThisExact(cx, args);
  if (!value) return false;
  args.rval().setNumber(value->Type() == VarType::Error ? value->ErrorCode() : ToDouble(*value));
  return true;
}

bool ExactText(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  const Variant* value = ThisExact(cx, args);
  if (!value) return false;
  // JScript writes a decimal point in any locale.
  std::u16string digits(
      (value->Type() == VarType::Error ? ToText(Variant(value->ErrorCode())) : Str(*value)).View());
  if (digits.starts_with(u' ')) digits.erase(0, 1);
  JSString* text = JS_NewUCStringCopyN(cx, digits.data(), digits.size());
  if (text) args.rval().setString(text);
  return text != nullptr;
}

constexpr JSFunctionSpec kArrayMethods[] = {
    JS_FN("dimensions", Dimensions, 0, 0), JS_FN("lbound", LowerBound, 1, 0),
    JS_FN("ubound", UpperBound, 1, 0),     JS_FN("getItem", GetItem, 1, 0),
    JS_FN("toArray", ToList, 0, 0),        JS_FS_END};
constexpr JSFunctionSpec kExactMethods[] = {JS_FN("valueOf", ExactValue, 0, 0),
                                            JS_FN("toString", ExactText, 0, 0), JS_FS_END};

}  // namespace

bool WrapArray(ScriptSession& session, const Variant& array, JS::MutableHandleValue result) {
  return MakeWrapper(session.Context(), kArrayClass, session.ArrayPrototype(), array, result);
}

bool WrapExactValue(ScriptSession& session, const Variant& value, JS::MutableHandleValue result) {
  return MakeWrapper(session.Context(), kExactClass, session.ExactPrototype(), value, result);
}

const Variant* WrappedValue(JSObject* object) noexcept {
  const JSClass* kind = JS::GetClass(object);
  if (kind != &kArrayClass && kind != &kExactClass) return nullptr;
  const JS::Value slot = JS::GetReservedSlot(object, 0);
  return slot.isUndefined() ? nullptr : &static_cast<Wrapper*>(slot.toPrivate())->value;
}

bool DefineValueWrappers(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject arrays,
                         JS::MutableHandleObject exact) {
  arrays.set(JS_InitClass(cx, global, nullptr, &kArrayClass, &ConstructArray, 1, nullptr, kArrayMethods,
                          nullptr, nullptr));
  exact.set(JS_NewPlainObject(cx));
  return arrays && exact && JS_DefineFunctions(cx, exact, kExactMethods);
}

}  // namespace cardwright::jscript
