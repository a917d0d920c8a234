// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

#include <js/BigInt.h>
#include <js/Conversions.h>
#include <js/Date.h>
#include <js/Object.h>
#include <js/String.h>
#include <jsapi.h>

#include <cmath>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/HostProxies.h"
#include "cardwright/jscript/spidermonkey/ScriptObject.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/spidermonkey/ValueWrappers.h"

namespace cardwright::jscript {
namespace {

// Up to this many ten-thousandths a double tells neighbouring amounts apart.
constexpr std::int64_t kExactCurrency = std::int64_t{1} << 53;

bool IsExact(const Decimal& value) noexcept {
  if (value.high != 0 || value.low >= (std::uint64_t{1} << 53)) return false;
  // Fifteen digits survive the conversion to a double and back.
  return value.scale == 0 || (value.low < 1'000'000'000'000'000 && value.scale <= 22);
}

bool ObjectToScript(ScriptSession& session, Object* object, JS::MutableHandleValue result) {
  if (!object) {
    result.setNull();
    return true;
  }
  if (JSObject* own = ScriptObject::Unwrap(*object, session)) {
    result.setObject(*own);
    return true;
  }
  return WrapHostObject(session, *object, result);
}

bool PrimitiveToHost(ScriptSession& session, JS::HandleObject object, js::ESClass kind, Variant& result) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx, JS::ObjectValue(*object));
  if (kind == js::ESClass::String) {
    JS::RootedString text(cx, JS::ToString(cx, value));
    if (!text) return false;
    result = TextOf(session, text);
    return true;
  }
  JS::RootedValue plain(cx);
  return JS::ToPrimitive(cx, object, JSTYPE_UNDEFINED, &plain) && FromScript(session, plain, result);
}

bool ObjectToHost(ScriptSession& session, JS::HandleObject object, Variant& result) {
  JSContext* cx = session.Context();
  if (Object* host = WrappedObject(object)) {
    result = Ref<Object>(host);
    return true;
  }
  if (const Variant* boxed = WrappedValue(object)) {
    result = *boxed;
    return true;
  }
  js::ESClass kind = js::ESClass::Other;
  if (!JS::GetBuiltinClass(cx, object, &kind)) return false;
  switch (kind) {
    case js::ESClass::Date: return DateFromScript(session, object, result);
    case js::ESClass::Number:
    case js::ESClass::String:
    case js::ESClass::Boolean: return PrimitiveToHost(session, object, kind, result);
    default: break;
  }
  Ref<ScriptObject> wrapped = ScriptObject::Of(session, object);
  if (!wrapped) return false;
  result = Variant(std::move(wrapped));
  return true;
}

}  // namespace

Text TextOf(ScriptSession& session, JS::HandleString text) {
  const std::size_t size = JS::GetStringLength(text);
  if (size > session.GetLimits().textUnits) Raise(kOutOfStringSpace, ErrorText(kOutOfStringSpace));
  bool isCopied = true;
  Text copy = Text::OfSize(size, [&](char16_t* to) {
    isCopied = JS_CopyStringChars(session.Context(), mozilla::Range<char16_t>(to, size), text);
  });
  if (isCopied) return copy;
  JS_ClearPendingException(session.Context());
  Raise(ErrorNumber::OutOfMemory);
}

bool ToScript(ScriptSession& session, const Variant& given, JS::MutableHandleValue result) {
  const Variant& value = given.Deref();
  switch (value.Type()) {
    case VarType::Null: result.setNull(); return true;
    case VarType::Boolean: result.setBoolean(value.Boolean()); return true;
    case VarType::Byte:
    case VarType::Integer:
    case VarType::Long: result.setInt32(value.Long()); return true;
    case VarType::Single: result.setNumber(static_cast<double>(value.Single())); return true;
    case VarType::Double: result.setNumber(value.Double()); return true;
    case VarType::Currency: {
      const std::int64_t amount = value.CurrencyValue().tenThousandths;
      if (std::abs(amount) > kExactCurrency || amount == INT64_MIN)
        return WrapExactValue(session, value, result);
      result.setNumber(static_cast<double>(amount) / 10000);
      return true;
    }
    case VarType::Decimal:
      if (!IsExact(value.DecimalValue())) return WrapExactValue(session, value, result);
      result.setNumber(ToDouble(value));
      return true;
    case VarType::Date: return DateToScript(session, Date{value.Double()}, result);
    case VarType::String: {
      const std::u16string_view text = value.StringView();
      JSString* copy = JS_NewUCStringCopyN(session.Context(), text.data(), text.size());
      if (copy) result.setString(copy);
      return copy != nullptr;
    }
    case VarType::Object: return ObjectToScript(session, value.ObjectPtr(), result);
    case VarType::Array: return WrapArray(session, value, result);
    case VarType::Error:
      if (!value.IsMissing()) return WrapExactValue(session, value, result);
      break;
    default: break;
  }
  result.setUndefined();
  return true;
}

bool FromScript(ScriptSession& session, JS::HandleValue value, Variant& result) {
  JSContext* cx = session.Context();
  if (value.isString()) {
    JS::RootedString text(cx, value.toString());
    result = TextOf(session, text);
  } else if (value.isInt32()) {
    result = value.toInt32();
  } else if (value.isDouble()) {
    const double number = value.toDouble();
    const bool isWhole = number >= INT32_MIN && number <= INT32_MAX && number == std::trunc(number) &&
                         !(number == 0 && std::signbit(number));
    result = isWhole ? Variant(static_cast<std::int32_t>(number)) : Variant(number);
  } else if (value.isBoolean()) {
    result = value.toBoolean();
  } else if (value.isNull()) {
    result = Variant::Null();
  } else if (value.isObject()) {
    JS::RootedObject object(cx, &value.toObject());
    return ObjectToHost(session, object, result);
  } else if (value.isBigInt()) {
    result = JS::BigIntToNumber(value.toBigInt());
  } else if (value.isSymbol()) {
    Raise(ErrorNumber::TypeMismatch);
  } else {
    result = Variant();
  }
  return true;
}

}  // namespace cardwright::jscript
