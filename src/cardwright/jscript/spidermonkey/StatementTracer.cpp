// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/StatementTracer.h"

#include <js/CallAndConstruct.h>
#include <js/CallArgs.h>
#include <js/CompilationAndEvaluation.h>
#include <js/CompileOptions.h>
#include <js/Debug.h>
#include <js/GlobalObject.h>
#include <js/RealmOptions.h>
#include <js/SourceText.h>
#include <js/String.h>
#include <js/ValueArray.h>
#include <js/Wrapper.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include <algorithm>
#include <string_view>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

constexpr JSClass kDebuggerGlobalClass = {
    "debugger", JSCLASS_GLOBAL_FLAGS, &JS::DefaultGlobalClassOps, nullptr, nullptr, nullptr};

constexpr char16_t kDebuggerScript[] =
    uR"js((function (debuggee, report) {
  const watched = new Debugger(debuggee);
  const nameOf = script => script.source.introductionType ? script.url + ' made' : script.url;
  const step = frame => {
    const offset = frame.offset, isOnward = offset >= frame.before;
    frame.before = offset;
    const position = frame.script.getOffsetMetadata(offset), last = frame.position;
    if (!position.isStepStart) return;
    // A statement may have several step starts at one position.
    if (isOnward && last && last.lineNumber === position.lineNumber &&
        last.columnNumber === position.columnNumber) return;
    frame.position = position;
    report(false, nameOf(frame.script), position.lineNumber, position.columnNumber);
  };
  watched.onEnterFrame = frame => {
    if (!frame.script.url || !frame.script.url.startsWith('jscript:')) return;
    frame.onStep = function () { step(this); };
    frame.onPop = function (completion) {
      const caller = this.older;
      if (completion && 'return' in completion && this.type === 'call' && caller && caller.position)
        report(true, nameOf(caller.script), caller.position.lineNumber, caller.position.columnNumber);
    };
    frame.before = 0;
    step(frame);
  };
  return () => watched.removeAllDebuggees();
}))js";

bool ReportNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  auto* tracer = static_cast<StatementTracer*>(js::GetFunctionNativeReserved(&args.callee(), 0).toPrivate());
  JS::RootedString source(cx, args.get(1).toString());
  args.rval().setUndefined();
  return tracer->Report(cx, args.get(0).toBoolean(), source, args.get(2).toInt32(), args.get(3).toInt32());
}

}  // namespace

StatementTracer::StatementTracer(ScriptSession& session, ScriptObserver& observer)
    : m_Session(session), m_Observer(observer), m_Global(session.Context()), m_Stop(session.Context()) {
  JSContext* cx = session.Context();
  JS::RealmOptions options;
  options.creationOptions().setNewCompartmentAndZone();
  m_Global = JS_NewGlobalObject(cx, &kDebuggerGlobalClass, nullptr, JS::FireOnNewGlobalHook, options);
  if (!m_Global) Raise(ErrorNumber::OutOfMemory);
  const JSAutoRealm realm(cx, m_Global);
  if (Start(cx)) return;
  JS_ClearPendingException(cx);
  Raise(ErrorNumber::OutOfMemory);
}

bool StatementTracer::Start(JSContext* cx) {
  const std::u16string_view text = kDebuggerScript;
  JS::CompileOptions options(cx);
  options.setFileAndLine("hooks", 1);
  JS::SourceText<char16_t> source;
  JS::RootedValue hooks(cx), stop(cx);
  JS::RootedObject debuggee(cx, m_Session.Global());
  if (!JS::InitRealmStandardClasses(cx) || !JS_DefineDebuggerObject(cx, m_Global) ||
      !JS_WrapObject(cx, &debuggee) ||
      !source.init(cx, text.data(), text.size(), JS::SourceOwnership::Borrowed) ||
      !JS::Evaluate(cx, options, source, &hooks))
    return false;
  JSFunction* report = js::NewFunctionWithReserved(cx, &ReportNative, 4, 0, "report");
  if (!report) return false;
  js::SetFunctionNativeReserved(JS_GetFunctionObject(report), 0, JS::PrivateValue(this));
  JS::RootedValueArray<2> arguments(cx);
  arguments[0].setObject(*debuggee);
  arguments[1].setObject(*JS_GetFunctionObject(report));
  if (!JS_CallFunctionValue(cx, nullptr, hooks, arguments, &stop)) return false;
  m_Stop = &stop.toObject();
  return true;
}

StatementTracer::~StatementTracer() {
  JSContext* cx = m_Session.Context();
  const JSAutoRealm realm(cx, m_Global);
  JS::RootedValue stop(cx, JS::ObjectValue(*m_Stop)), ignored(cx);
  if (!JS_CallFunctionValue(cx, nullptr, stop, JS::HandleValueArray::empty(), &ignored))
    JS_ClearPendingException(cx);
}

bool StatementTracer::Report(JSContext* cx, bool isReturn, JS::HandleString source, int line, int column) {
  try {
    const std::string name = TextOf(m_Session, source).ToUtf8();
    // The name of evaluated code is that of the source that evaluated it, a blank and `made`.
    const std::size_t end = std::min(name.find(' '), name.size());
    const Chunk* chunk = m_Session.FindChunk(std::string_view(name).substr(0, end));
    if (!chunk) return true;
    const SourcePosition position = end == name.size() ? chunk->Original(line, column) : SourcePosition{};
    if (isReturn) {
      m_Observer.OnReturn(chunk->module, position.line, position.column);
    } else {
      m_Observer.OnStatement(chunk->module, position.line, position.column);
    }
  } catch (...) {
    m_Session.SetPendingError(std::current_exception());
    JS_ClearPendingException(cx);
    return false;
  }
  return !m_Session.IsStopping();
}

}  // namespace cardwright::jscript
