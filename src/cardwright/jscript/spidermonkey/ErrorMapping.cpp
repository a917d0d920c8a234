// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/ErrorMapping.h"

#include <js/ErrorReport.h>
#include <js/Exception.h>
#include <js/PropertyAndElement.h>
#include <jsapi.h>

#include <optional>
#include <string>
#include <string_view>

#include "cardwright/jscript/errors/EngineMessages.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/LinePosition.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/syntax/CharacterClasses.h"

namespace cardwright::jscript {
namespace {

constexpr std::uint32_t kFacility = 0x800A0000, kFacilityMask = 0xFFFF0000;

MappedError WithText(int number) { return {number, ErrorText(number)}; }

std::string_view Before(std::string_view text, std::string_view mark) noexcept {
  const std::size_t at = text.find(mark);
  return at == std::string_view::npos ? std::string_view() : text.substr(0, at);
}

// Whether the unknown name that follows the position is called, as in `name(`.
bool IsCalled(const Chunk& chunk, int line, int column, std::u16string_view name) noexcept {
  const LinePosition position = FindLinePosition(chunk.text, line, column);
  const auto isPart = [&](std::size_t at) {
    return at < position.line.size() && ContinuesName(position.line[at]);
  };
  for (std::size_t at = position.line.find(name, position.unit); at != std::u16string_view::npos;
       at = position.line.find(name, at + 1)) {
    std::size_t end = at + name.size();
    if (isPart(end) || (at > 0 && (isPart(at - 1) || position.line[at - 1] == u'.'))) continue;
    while (end < position.line.size() && IsBlank(position.line[end])) ++end;
    return end < position.line.size() && position.line[end] == u'(';
  }
  return false;
}

Text Quoted(std::string_view name, const char16_t* rest) {
  Text text = u"'";
  text += Text::FromUtf8(name).View();
  return text + rest;
}

// The kind of object that a method needs, from a message such as "getTime method called on incompatible
// Object".
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
  // Only the methods of dates are named without their class.
  if (message.starts_with("get") || message.starts_with("set") || message.starts_with("to"))
    return kDateExpected;
  return kScriptObjectExpected;
}

bool IsUndefinedGlobal(ScriptSession& session, std::string_view name) {
  JSContext* cx = session.Context();
  JS::RootedValue value(cx);
  const std::string terminated(name);
  bool has = false;
  if (!JS_AlreadyHasOwnProperty(cx, session.Global(), terminated.c_str(), &has) || !has) {
    JS_ClearPendingException(cx);
    return false;
  }
  if (JS_GetProperty(cx, session.Global(), terminated.c_str(), &value)) return value.isUndefined();
  JS_ClearPendingException(cx);
  return false;
}

// JScript tells an unknown function from an unknown variable; the library has one message for both.
MappedError MapUndefinedName(ScriptSession& session, const JSErrorReport& report, std::string_view message) {
  const std::string_view plain = Before(message, " is not defined");
  const std::string_view variable = plain.empty() ? message.substr(message.rfind(' ') + 1) : plain;
  const Chunk* chunk = session.FindChunk(report.filename ? report.filename : "");
  if (chunk && IsCalled(*chunk, static_cast<int>(report.lineno), static_cast<int>(report.column) - 1,
                        Text::FromUtf8(variable)))
    return WithText(kObjectExpected);
  return {kUndefinedIdentifier, Quoted(variable, u"' is undefined")};
}

MappedError MapNotFunction(ScriptSession& session, std::string_view message) {
  const std::string_view callee = Before(message, " is not a function");
  const bool isMember = callee.find('.') != std::string_view::npos || callee.ends_with(']');
  if (isMember) return WithText(kNoSuchMember);
  return WithText(IsUndefinedGlobal(session, callee) ? kObjectExpected : kFunctionExpected);
}

// For errors that JScript does not have: the nearest number, and the library's text.
MappedError MapByType(JSExnType type, std::string_view message) {
  const bool isRegExp = message.find("regular expression") != std::string_view::npos ||
                        message.find("pattern") != std::string_view::npos;
  switch (type) {
    case JSEXN_SYNTAXERR: return WithText(isRegExp ? kRegExpSyntaxError : kSyntaxError);
    case JSEXN_REFERENCEERR: return {kUndefinedIdentifier, Text::FromUtf8(message)};
    default: return {kInvalidCall, Text::FromUtf8(message)};
  }
}

MappedError MapReport(ScriptSession& session, const JSErrorReport& report) {
  const std::string_view name = report.errorMessageName ? report.errorMessageName : "";
  const std::string_view message = report.message().c_str() ? report.message().c_str() : "";
  if (name == "JSMSG_NOT_DEFINED" || name == "JSMSG_UNDECLARED_VAR")
    return MapUndefinedName(session, report, message);
  if (name == "JSMSG_UNEXPECTED_TYPE")
    return {kObjectExpected, Quoted(Before(message, " is "), u"' is null or not an object")};
  if (name == "JSMSG_NOT_FUNCTION") return MapNotFunction(session, message);
  if (name.starts_with("JSMSG_INCOMPATIBLE_")) return WithText(ExpectedKind(message));
  if (const std::optional<int> number = NumberOfMessage(name)) return WithText(*number);
  return MapByType(static_cast<JSExnType>(report.exnType), message);
}

}  // namespace

std::int32_t ToScriptNumber(int number) noexcept {
  return number > 0 && number <= 0xFFFF
             ? static_cast<std::int32_t>(kFacility | static_cast<std::uint32_t>(number))
             : number;
}

int FromScriptNumber(std::int32_t number) noexcept {
  const auto bits = static_cast<std::uint32_t>(number);
  return (bits & kFacilityMask) == kFacility ? static_cast<int>(bits & ~kFacilityMask) : number;
}

bool MapError(ScriptSession& session, JS::HandleObject error, MappedError& mapped) {
  const JSErrorReport* report = JS_ErrorFromException(session.Context(), error);
  if (!report || report->errorNumber == 0 || !report->errorMessageName) return false;
  if (std::string_view(report->errorMessageName) == "JSMSG_USER_DEFINED_ERROR") return false;
  mapped = MapReport(session, *report);
  return true;
}

}  // namespace cardwright::jscript
