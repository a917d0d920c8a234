// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/ScriptErrors.h"

#include <js/CharacterEncoding.h>
#include <js/Conversions.h>
#include <js/ErrorReport.h>
#include <js/Exception.h>
#include <js/PropertyAndElement.h>
#include <js/SavedFrameAPI.h>
#include <js/String.h>
#include <jsapi.h>

#include <optional>
#include <string>

#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/ErrorMapping.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

constexpr unsigned kHidden = 0;  // not enumerable, writable, configurable

/// Reads a property that may be a getter of the script's; its exception is dropped.
bool Read(JSContext* cx, JS::HandleObject object, const char* name, JS::MutableHandleValue value) {
  if (JS_GetProperty(cx, object, name, value)) return true;
  JS_ClearPendingException(cx);
  return false;
}

Text ReadText(ScriptSession& session, JS::HandleObject object, const char* name) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx);
  if (!Read(cx, object, name, &value) || !value.isString()) return {};
  JS::RootedString text(cx, value.toString());
  return TextOf(session, text);
}

std::optional<std::int32_t> ReadHidden(ScriptSession& session, JS::HandleObject object,
                                       Runtime::HiddenProperty property) {
  JSContext* cx = session.Context();
  JS::RootedId key(cx, session.GetRuntime().Key(property));
  JS::RootedValue value(cx);
  if (!JS_GetPropertyById(cx, object, key, &value)) {
    JS_ClearPendingException(cx);
    return std::nullopt;
  }
  if (!value.isInt32()) return std::nullopt;
  return value.toInt32();
}

bool WriteHidden(ScriptSession& session, JS::HandleObject object, Runtime::HiddenProperty property,
                 std::int32_t number) {
  JSContext* cx = session.Context();
  JS::RootedId key(cx, session.GetRuntime().Key(property));
  JS::RootedValue value(cx, JS::Int32Value(number));
  return JS_DefinePropertyById(cx, object, key, value, kHidden);
}

bool DefineText(JSContext* cx, JS::HandleObject object, const char* name, const Text& text) {
  JS::RootedString string(cx, JS_NewUCStringCopyN(cx, text.View().data(), text.Size()));
  return string && JS_DefineProperty(cx, object, name, string, kHidden);
}

/// The position in the innermost frame of a stack whose source is one of ours.
std::optional<SourcePosition> PositionFromStack(ScriptSession& session, JS::HandleObject stack) {
  JSContext* cx = session.Context();
  JS::RootedObject frame(cx, stack);
  while (frame) {
    JS::RootedString source(cx);
    std::uint32_t line = 0, column = 0;
    JS::GetSavedFrameSource(cx, nullptr, frame, &source);
    JS::GetSavedFrameLine(cx, nullptr, frame, &line);
    JS::GetSavedFrameColumn(cx, nullptr, frame, &column);
    const Chunk* chunk = source ? session.FindChunk(TextOf(session, source).ToUtf8()) : nullptr;
    if (chunk) {
      return chunk->Original(static_cast<int>(line), column > 0 ? static_cast<int>(column) - 1 : 0);
    }
    JS::RootedObject parent(cx);
    JS::GetSavedFrameParent(cx, nullptr, frame, &parent);
    frame = parent;
  }
  return std::nullopt;
}

SourcePosition PositionFromReport(ScriptSession& session, const JSErrorReport& report, bool isCompiling) {
  const Chunk* chunk = session.FindChunk(report.filename ? report.filename : "");
  if (!chunk) return {};
  // The library counts columns from 0 where it compiles, and from 1 where code runs.
  const int column = static_cast<int>(report.column) - (isCompiling || report.column == 0 ? 0 : 1);
  return chunk->Original(static_cast<int>(report.lineno), column);
}

// The details that an error object carries itself: one that the script made, or one that came from the host.
std::optional<ScriptError> CarriedError(ScriptSession& session, JS::HandleObject object) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx);
  bool has = false;
  if (!JS_HasOwnProperty(cx, object, "number", &has)) JS_ClearPendingException(cx);
  if (!has || !Read(cx, object, "number", &value) || !value.isNumber()) return std::nullopt;
  std::int32_t number = 0;
  if (!JS::ToInt32(cx, value, &number)) return std::nullopt;
  ScriptError error;
  error.number = number == 0 ? kUncaughtException : FromScriptNumber(number);
  error.description = ReadText(session, object, "description");
  if (error.description.IsEmpty()) error.description = ReadText(session, object, "message");
  error.source = kRuntimeErrorSource;
  if (ReadHidden(session, object, Runtime::HiddenProperty::Number) == number) {
    JS::RootedId key(cx, session.GetRuntime().Key(Runtime::HiddenProperty::Source));
    JS::RootedValue source(cx);
    if (!JS_GetPropertyById(cx, object, key, &source)) JS_ClearPendingException(cx);
    JS::RootedString text(cx, source.isString() ? source.toString() : nullptr);
    if (text) error.source = TextOf(session, text);
  }
  if (const auto line = ReadHidden(session, object, Runtime::HiddenProperty::Line)) {
    error.line = *line;
    error.column = ReadHidden(session, object, Runtime::HiddenProperty::Column).value_or(0);
  }
  return error;
}

ScriptError Describe(ScriptSession& session, const JS::ExceptionStack& exception, bool isCompiling) {
  JSContext* cx = session.Context();
  ScriptError error;
  error.source = isCompiling ? kCompilationErrorSource : kRuntimeErrorSource;
  error.isSyntax = isCompiling;
  error.number = kUncaughtException;
  error.description = ErrorText(kUncaughtException);
  SourcePosition reported;
  if (exception.exception().isObject()) {
    JS::RootedObject object(cx, &exception.exception().toObject());
    JSErrorReport* report = JS_ErrorFromException(cx, object);
    MappedError mapped;
    if (auto carried = CarriedError(session, object)) {
      error = *carried;
    } else if (MapError(session, object, mapped)) {
      error.number = mapped.number;
      error.description = mapped.text;
    } else if (report) {
      error.description = ReadText(session, object, "message");
    }
    if (report) reported = PositionFromReport(session, *report, isCompiling);
  }
  if (error.line != 0) return error;
  JS::RootedObject stack(cx, exception.stack());
  const auto known = isCompiling ? std::nullopt : PositionFromStack(session, stack);
  error.line = known.value_or(reported).line;
  error.column = known.value_or(reported).column;
  return error;
}

}  // namespace

bool ThrowError(ScriptSession& session, const Error& error) {
  JSContext* cx = session.Context();
  JS_ReportErrorASCII(cx, "host error");
  JS::RootedValue exception(cx);
  if (!JS_GetPendingException(cx, &exception) || !exception.isObject()) return false;
  // Nothing may be pending during the calls that follow.
  JS::ExceptionStack stack(cx);
  if (!JS::StealPendingExceptionStack(cx, &stack)) return false;
  JS::RootedObject object(cx, &exception.toObject());
  JS::RootedValue number(cx, JS::Int32Value(ToScriptNumber(error.Number())));
  const Text& text = error.Description();
  JS::RootedString source(cx, JS_NewUCStringCopyN(cx, error.Source().View().data(), error.Source().Size()));
  JS::RootedId sourceKey(cx, session.GetRuntime().Key(Runtime::HiddenProperty::Source));
  bool isDone = source && JS_DefineProperty(cx, object, "number", number, kHidden) &&
                DefineText(cx, object, "description", text) && DefineText(cx, object, "message", text) &&
                WriteHidden(session, object, Runtime::HiddenProperty::Number, number.toInt32());
  if (isDone && !error.Source().IsEmpty()) {
    JS::RootedValue value(cx, JS::StringValue(source));
    isDone = JS_DefinePropertyById(cx, object, sourceKey, value, kHidden);
  }
  const auto* fault = dynamic_cast<const ScriptFault*>(&error);
  if (isDone && fault && fault->IsOf(session))
    isDone = WriteHidden(session, object, Runtime::HiddenProperty::Line, fault->Details().line) &&
             WriteHidden(session, object, Runtime::HiddenProperty::Column, fault->Details().column);
  if (isDone) JS::SetPendingExceptionStack(cx, stack);
  return false;
}

bool ThrowNumber(JSContext* cx, int number) {
  if (ScriptSession* session = ScriptSession::Of(cx))
    return ThrowError(*session, Error(number, ErrorText(number)));
  JS_ReportErrorUTF8(cx, "%s", ErrorText(number).ToUtf8().c_str());
  return false;
}

void ThrowPending(ScriptSession& session, bool isCompiling) {
  JSContext* cx = session.Context();
  if (const std::exception_ptr pending = session.TakePendingError()) {
    JS_ClearPendingException(cx);
    std::rethrow_exception(pending);
  }
  const bool isOutOfMemory = session.TakeOutOfMemory() || JS_IsThrowingOutOfMemory(cx);
  if (isOutOfMemory) {
    JS_ClearPendingException(cx);
    throw ScriptFault(
        {.number = kOutOfMemory, .description = ErrorText(kOutOfMemory), .source = kRuntimeErrorSource},
        session);
  }
  if (!JS_IsExceptionPending(cx)) throw Interrupted{};
  JS::ExceptionStack stack(cx);
  if (!JS::StealPendingExceptionStack(cx, &stack)) throw Interrupted{};
  throw ScriptFault(Describe(session, stack, isCompiling), session);
}

bool AddErrorProperties(ScriptSession& session, JS::HandleValue error) {
  JSContext* cx = session.Context();
  if (!error.isObject()) return true;
  JS::RootedObject object(cx, &error.toObject());
  if (!JS_ErrorFromException(cx, object)) return true;
  bool has = false;
  if (!JS_HasOwnProperty(cx, object, "number", &has)) return false;
  MappedError mapped;
  if (has || !MapError(session, object, mapped)) return true;
  JS::RootedValue number(cx, JS::Int32Value(ToScriptNumber(mapped.number)));
  return JS_DefineProperty(cx, object, "number", number, kHidden) &&
         DefineText(cx, object, "description", mapped.text) && DefineText(cx, object, "message", mapped.text);
}

}  // namespace cardwright::jscript
