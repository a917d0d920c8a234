#include "cardwright/jscript/spidermonkey/Faults.h"

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

#include "cardwright/jscript/errors/EngineMessages.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/LineSpot.h"
#include "cardwright/jscript/spidermonkey/Session.h"
#include "cardwright/jscript/spidermonkey/Values.h"
#include "cardwright/jscript/syntax/Characters.h"

namespace cardwright::jscript {
namespace {

constexpr std::uint32_t kFacility = 0x800A0000, kFacilityMask = 0xFFFF0000;
constexpr unsigned kHidden = 0;  // not enumerable, writable, configurable

int HostNumber(std::int32_t number) noexcept {
  const auto bits = static_cast<std::uint32_t>(number);
  return (bits & kFacilityMask) == kFacility ? static_cast<int>(bits & ~kFacilityMask) : number;
}

std::string_view Before(std::string_view text, std::string_view mark) noexcept {
  const std::size_t at = text.find(mark);
  return at == std::string_view::npos ? std::string_view() : text.substr(0, at);
}

/// Reads an object's property where anything may be in the way; the failure is dropped.
bool Read(JSContext* cx, JS::HandleObject object, const char* name, JS::MutableHandleValue value) {
  if (JS_GetProperty(cx, object, name, value)) return true;
  JS_ClearPendingException(cx);
  return false;
}

Text ReadText(Session& session, JS::HandleObject object, const char* name) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx);
  if (!Read(cx, object, name, &value) || !value.isString()) return {};
  JS::RootedString text(cx, value.toString());
  return TextOf(session, text);
}

std::optional<std::int32_t> ReadNote(Session& session, JS::HandleObject object, Runtime::Note note) {
  JSContext* cx = session.Context();
  JS::RootedId key(cx, session.GetRuntime().Key(note));
  JS::RootedValue value(cx);
  if (!JS_GetPropertyById(cx, object, key, &value)) {
    JS_ClearPendingException(cx);
    return std::nullopt;
  }
  if (!value.isInt32()) return std::nullopt;
  return value.toInt32();
}

bool WriteNote(Session& session, JS::HandleObject object, Runtime::Note note, std::int32_t number) {
  JSContext* cx = session.Context();
  JS::RootedId key(cx, session.GetRuntime().Key(note));
  JS::RootedValue value(cx, JS::Int32Value(number));
  return JS_DefinePropertyById(cx, object, key, value, kHidden);
}

bool DefineText(JSContext* cx, JS::HandleObject object, const char* name, const Text& text) {
  JS::RootedString string(cx, JS_NewUCStringCopyN(cx, text.View().data(), text.Size()));
  return string && JS_DefineProperty(cx, object, name, string, kHidden);
}

// Whether the name that is unknown behind the place is called: `name(`.
bool IsCalled(const Chunk& chunk, int line, int column, std::u16string_view name) noexcept {
  const LineSpot spot = SpotOf(chunk.text, line, column);
  const auto isPart = [&](std::size_t at) { return at < spot.line.size() && ContinuesName(spot.line[at]); };
  for (std::size_t at = spot.line.find(name, spot.unit); at != std::u16string_view::npos;
       at = spot.line.find(name, at + 1)) {
    std::size_t end = at + name.size();
    if (isPart(end) || (at > 0 && (isPart(at - 1) || spot.line[at - 1] == u'.'))) continue;
    while (end < spot.line.size() && IsBlank(spot.line[end])) ++end;
    return end < spot.line.size() && spot.line[end] == u'(';
  }
  return false;
}

Text Quoted(std::string_view name, const char16_t* rest) {
  Text text = u"'";
  text += Text::FromUtf8(name).View();
  return text + rest;
}

// "getTime method called on incompatible Object": the kind of object that the method is for.
int ExpectedKind(std::string_view message) noexcept {
  const struct {
    std::string_view mark;
    int number;
  } kKinds[] = {{"Date", kDateExpected},         {"RegExp", kRegExpExpected},
                {"Function", kFunctionExpected}, {"String", kStringExpected},
                {"Number", kNumberExpected},     {"Boolean", kBooleanExpected},
                {"Error", kObjectExpected},      {"Enumerator", kEnumeratorExpected},
                {"VBArray", kVBArrayExpected},   {"Array", kArrayExpected}};
  for (const auto& kind : kKinds)
    if (message.starts_with(kind.mark)) return kind.number;
  // Those of dates are named without their class.
  if (message.starts_with("get") || message.starts_with("set") || message.starts_with("to"))
    return kDateExpected;
  return kScriptObjectExpected;
}

bool IsUndefinedGlobal(Session& session, std::string_view name) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx);
  const std::string terminated(name);
  bool has = false;
  if (!JS_AlreadyHasOwnProperty(cx, session.Global(), terminated.c_str(), &has) || !has) {
    JS_ClearPendingException(cx);
    return false;
  }
  return Read(cx, session.Global(), terminated.c_str(), &value) && value.isUndefined();
}

ErrorFace FaceOfReport(Session& session, const JSErrorReport& report) {
  const std::string_view name = report.errorMessageName ? report.errorMessageName : "";
  const std::string_view message = report.message().c_str() ? report.message().c_str() : "";
  const std::optional<int> known = NumberOfMessage(name);
  if (name == "JSMSG_NOT_DEFINED" || name == "JSMSG_UNDECLARED_VAR") {
    const std::string_view plain = Before(message, " is not defined");
    const std::string_view variable = plain.empty() ? message.substr(message.rfind(' ') + 1) : plain;
    const Chunk* chunk = session.FindChunk(report.filename ? report.filename : "");
    if (chunk && IsCalled(*chunk, static_cast<int>(report.lineno), static_cast<int>(report.column) - 1,
                          Text::FromUtf8(variable)))
      return {kObjectExpected, ErrorText(kObjectExpected)};
    return {kUndefinedIdentifier, Quoted(variable, u"' is undefined")};
  }
  if (name == "JSMSG_UNEXPECTED_TYPE")
    return {kObjectExpected, Quoted(Before(message, " is "), u"' is null or not an object")};
  if (name == "JSMSG_NOT_FUNCTION") {
    const std::string_view callee = Before(message, " is not a function");
    const bool isMember = callee.find('.') != std::string_view::npos || callee.ends_with(']');
    const int number = isMember                             ? kNoSuchMember
                       : IsUndefinedGlobal(session, callee) ? kObjectExpected
                                                            : kFunctionExpected;
    return {number, ErrorText(number)};
  }
  if (name.starts_with("JSMSG_INCOMPATIBLE_")) {
    const int number = ExpectedKind(message);
    return {number, ErrorText(number)};
  }
  if (known) return {*known, ErrorText(*known)};
  // The language has no such error: the nearest number, and what the library says.
  switch (report.exnType) {
    case JSEXN_SYNTAXERR:
      if (message.find("regular expression") != std::string_view::npos ||
          message.find("pattern") != std::string_view::npos)
        return {kRegExpSyntaxError, ErrorText(kRegExpSyntaxError)};
      return {kSyntaxError, ErrorText(kSyntaxError)};
    case JSEXN_REFERENCEERR: return {kUndefinedIdentifier, Text::FromUtf8(message)};
    default: return {kInvalidCall, Text::FromUtf8(message)};
  }
}

/// What is known of an exception's place: the innermost of our sources on its stack.
std::optional<Place> PlaceOfStack(Session& session, JS::HandleObject stack) {
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

Place PlaceOfReport(Session& session, const JSErrorReport& report, bool isCompiling) {
  const Chunk* chunk = session.FindChunk(report.filename ? report.filename : "");
  if (!chunk) return {};
  // The library counts columns from 0 where it compiles, and from 1 where code runs.
  const int column = static_cast<int>(report.column) - (isCompiling || report.column == 0 ? 0 : 1);
  return chunk->Original(static_cast<int>(report.lineno), column);
}

// An error that the script made, threw on or got from the host: what it carries.
std::optional<ScriptError> CarriedError(Session& session, JS::HandleObject object) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx);
  bool has = false;
  if (!JS_HasOwnProperty(cx, object, "number", &has)) JS_ClearPendingException(cx);
  if (!has || !Read(cx, object, "number", &value) || !value.isNumber()) return std::nullopt;
  std::int32_t number = 0;
  if (!JS::ToInt32(cx, value, &number)) return std::nullopt;
  ScriptError error;
  error.number = number == 0 ? kUncaughtException : HostNumber(number);
  error.description = ReadText(session, object, "description");
  if (error.description.IsEmpty()) error.description = ReadText(session, object, "message");
  error.source = kRuntimeErrorSource;
  if (ReadNote(session, object, Runtime::Note::Number) == number) {
    JS::RootedId key(cx, session.GetRuntime().Key(Runtime::Note::Source));
    JS::RootedValue source(cx);
    if (!JS_GetPropertyById(cx, object, key, &source)) JS_ClearPendingException(cx);
    JS::RootedString text(cx, source.isString() ? source.toString() : nullptr);
    if (text) error.source = TextOf(session, text);
  }
  if (const auto line = ReadNote(session, object, Runtime::Note::Line)) {
    error.line = *line;
    error.column = ReadNote(session, object, Runtime::Note::Column).value_or(0);
  }
  return error;
}

ScriptError Describe(Session& session, const JS::ExceptionStack& exception, bool isCompiling) {
  JSContext* cx = session.Context();
  ScriptError error;
  error.source = isCompiling ? kCompilationErrorSource : kRuntimeErrorSource;
  error.isSyntax = isCompiling;
  error.number = kUncaughtException;
  error.description = ErrorText(kUncaughtException);
  Place place;
  if (exception.exception().isObject()) {
    JS::RootedObject object(cx, &exception.exception().toObject());
    JSErrorReport* report = JS_ErrorFromException(cx, object);
    ErrorFace face;
    if (auto carried = CarriedError(session, object)) {
      error = *carried;
    } else if (FaceOf(session, object, face)) {
      error.number = face.number;
      error.description = face.text;
    } else if (report) {
      error.description = ReadText(session, object, "message");
    }
    if (report) place = PlaceOfReport(session, *report, isCompiling);
  }
  if (error.line != 0) return error;
  JS::RootedObject stack(cx, exception.stack());
  const auto known = isCompiling ? std::nullopt : PlaceOfStack(session, stack);
  error.line = known.value_or(place).line;
  error.column = known.value_or(place).column;
  return error;
}

}  // namespace

std::int32_t ScriptNumber(int number) noexcept {
  return number > 0 && number <= 0xFFFF
             ? static_cast<std::int32_t>(kFacility | static_cast<std::uint32_t>(number))
             : number;
}

bool FaceOf(Session& session, JS::HandleObject error, ErrorFace& face) {
  const JSErrorReport* report = JS_ErrorFromException(session.Context(), error);
  if (!report || report->errorNumber == 0 || !report->errorMessageName) return false;
  if (std::string_view(report->errorMessageName) == "JSMSG_USER_DEFINED_ERROR") return false;
  face = FaceOfReport(session, *report);
  return true;
}

bool ThrowError(Session& session, const Error& error) {
  JSContext* cx = session.Context();
  JS_ReportErrorASCII(cx, "host error");
  JS::RootedValue exception(cx);
  if (!JS_GetPendingException(cx, &exception) || !exception.isObject()) return false;
  // Off for the moment, as the steps that follow are calls of their own.
  JS::ExceptionStack stack(cx);
  if (!JS::StealPendingExceptionStack(cx, &stack)) return false;
  JS::RootedObject object(cx, &exception.toObject());
  JS::RootedValue number(cx, JS::Int32Value(ScriptNumber(error.Number())));
  const Text& text = error.Description();
  JS::RootedString source(cx, JS_NewUCStringCopyN(cx, error.Source().View().data(), error.Source().Size()));
  JS::RootedId sourceKey(cx, session.GetRuntime().Key(Runtime::Note::Source));
  bool isDone = source && JS_DefineProperty(cx, object, "number", number, kHidden) &&
                DefineText(cx, object, "description", text) && DefineText(cx, object, "message", text) &&
                WriteNote(session, object, Runtime::Note::Number, number.toInt32());
  if (isDone && !error.Source().IsEmpty()) {
    JS::RootedValue value(cx, JS::StringValue(source));
    isDone = JS_DefinePropertyById(cx, object, sourceKey, value, kHidden);
  }
  const auto* fault = dynamic_cast<const ScriptFault*>(&error);
  if (isDone && fault && fault->IsOf(session))
    isDone = WriteNote(session, object, Runtime::Note::Line, fault->Described().line) &&
             WriteNote(session, object, Runtime::Note::Column, fault->Described().column);
  if (isDone) JS::SetPendingExceptionStack(cx, stack);
  return false;
}

bool ThrowNumber(JSContext* cx, int number) {
  if (Session* session = Session::Of(cx)) return ThrowError(*session, Error(number, ErrorText(number)));
  JS_ReportErrorUTF8(cx, "%s", ErrorText(number).ToUtf8().c_str());
  return false;
}

void ThrowPending(Session& session, bool isCompiling) {
  JSContext* cx = session.Context();
  if (const std::exception_ptr held = session.TakeHeld()) {
    JS_ClearPendingException(cx);
    std::rethrow_exception(held);
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

bool DressError(Session& session, JS::HandleValue error) {
  JSContext* cx = session.Context();
  if (!error.isObject()) return true;
  JS::RootedObject object(cx, &error.toObject());
  if (!JS_ErrorFromException(cx, object)) return true;
  bool has = false;
  if (!JS_HasOwnProperty(cx, object, "number", &has)) return false;
  ErrorFace face;
  if (has || !FaceOf(session, object, face)) return true;
  JS::RootedValue number(cx, JS::Int32Value(ScriptNumber(face.number)));
  return JS_DefineProperty(cx, object, "number", number, kHidden) &&
         DefineText(cx, object, "description", face.text) && DefineText(cx, object, "message", face.text);
}

}  // namespace cardwright::jscript
