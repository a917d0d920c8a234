// SPDX-License-Identifier: MIT
#include <js/CallAndConstruct.h>
#include <js/CompilationAndEvaluation.h>
#include <js/Conversions.h>
#include <js/Exception.h>
#include <js/PropertyAndElement.h>
#include <js/PropertyDescriptor.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include <algorithm>
#include <atomic>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/JScriptEngine.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/ScriptErrors.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/spidermonkey/SourceCompiler.h"
#include "cardwright/jscript/spidermonkey/StatementTracer.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

/// A module of the engine. Names of the global module are properties of the global object; any other module
/// has an object of its own, which is searched first.
struct Module {
  Text name;
  std::vector<std::u16string> functions;              // declared at the top level, in order
  std::unique_ptr<JS::PersistentRootedObject> scope;  // null for the global module

  CompileScope Scope() const noexcept { return scope ? CompileScope::Module : CompileScope::Global; }
};

ScriptError Described(int number, const Text& description) {
  return {.number = number, .description = description, .source = kRuntimeErrorSource};
}

/// The engine as its hosts see it: it finds modules by name and records errors.
class Engine final : public ScriptEngine {
 public:
  Engine(ScriptHost& host, const Limits& limits) : m_Host(host), m_Limits(limits) {
    m_Modules.emplace_back();
    Start();
  }
  ~Engine() override {
    m_Tracer.reset();
    m_Modules.clear();
    Swap(nullptr);
  }

  void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) override {
    m_Session->AddObject(name, std::move(object), addMembers);
  }
  void AddModule(std::u16string_view name) override {
    if (Find(name)) Raise(ErrorNumber::InvalidCall);
    m_Modules.push_back({Text(name), {}, nullptr});
    MakeScope(m_Modules.back());
  }
  void AddCode(std::u16string_view module, std::u16string_view code) override {
    Required(module);
    RecordErrors([&](ScriptSession& session) { Execute(session, module, code); });
  }
  Variant Run(std::u16string_view module, std::u16string_view procedure, Args args) override;
  Variant Evaluate(std::u16string_view module, std::u16string_view expression) override;
  std::vector<ScriptProcedure> Procedures(std::u16string_view module) const override;
  Text TextOf(const Variant& value) override;

  ScriptError LastError() const override { return m_Error; }
  void ClearError() override { m_Error = {}; }
  void SetTimeout(std::int32_t milliseconds) override {
    m_Timeout = milliseconds;
    m_Session->SetTimeout(milliseconds);
  }
  // JScript has no message boxes of its own, so there is nothing to allow.
  void SetAllowUI(bool) override {}
  void SetObserver(ScriptObserver* observer) override {
    m_Observer = observer;
    RestartTracer();
  }
  void Close() override {
    for (Module& module : m_Modules) module.scope.reset();
    Start();
    for (Module& module : m_Modules) {
      module.functions.clear();
      if (&module != &m_Modules.front()) MakeScope(module);
    }
  }
  void Interrupt() noexcept override {
    // The watchdog soon has the script check the flag. Requesting an interrupt from here would take locks,
    // which a signal handler must not do.
    m_StopOrder->store(true, std::memory_order_relaxed);
  }

 private:
  Module* Find(std::u16string_view name) {
    const auto found =
        std::ranges::find_if(m_Modules, [&](const Module& one) { return EqualsNoCase(one.name, name); });
    return found == m_Modules.end() ? nullptr : &*found;
  }
  Module& Required(std::u16string_view name) {
    Module* module = Find(name);
    if (!module) Raise(ErrorNumber::InvalidCall);
    return *module;
  }
  JSObject* ScopeOf(const Module& module) const {
    return module.scope ? module.scope->get() : m_Session->Global().get();
  }
  // The new session is made first: stopping the old one interrupts the thread's context, which would stop the
  // making.
  void Start() {
    auto session = std::make_shared<ScriptSession>(m_Host, m_Limits, m_StopOrder);
    session->SetTimeout(m_Timeout);
    m_Tracer.reset();
    Swap(std::move(session));
    RestartTracer();
  }
  void Swap(std::shared_ptr<ScriptSession> session) {
    const std::shared_ptr<ScriptSession> old = std::exchange(m_Session, std::move(session));
    // A script of the old session that is still running must not go on.
    if (old && old->IsRunning()) old->Stop();
  }
  void RestartTracer() {
    m_Tracer.reset();
    if (m_Observer) m_Tracer = std::make_unique<StatementTracer>(*m_Session, *m_Observer);
  }
  void MakeScope(Module& module) {
    JSContext* cx = m_Session->Context();
    const JSAutoRealm realm(cx, m_Session->Global());
    module.scope =
        std::make_unique<JS::PersistentRootedObject>(cx, JS_NewObjectWithGivenProto(cx, nullptr, nullptr));
    if (!module.scope->get()) Raise(ErrorNumber::OutOfMemory);
  }
  bool FindFunction(ScriptSession& session, const Module& module, std::u16string_view name,
                    JS::MutableHandleValue function) const;
  void Execute(ScriptSession& session, std::u16string_view module, std::u16string_view code);
  Variant EvaluateIn(ScriptSession& session, const Module& module, std::u16string_view expression);
  template <class Step>
  void RecordErrors(Step&& step);

  ScriptHost& m_Host;
  const Limits m_Limits;
  std::int32_t m_Timeout = -1;
  const std::shared_ptr<std::atomic<bool>> m_StopOrder = std::make_shared<std::atomic<bool>>(false);
  std::shared_ptr<ScriptSession> m_Session;
  ScriptObserver* m_Observer = nullptr;
  std::unique_ptr<StatementTracer> m_Tracer;
  std::vector<Module> m_Modules;
  ScriptError m_Error;
};

// A call that succeeds clears the last error.
template <class Step>
void Engine::RecordErrors(Step&& step) {
  m_Error = {};
  const std::shared_ptr<ScriptSession> session = m_Session;
  try {
    const ScriptSession::Entry entry(*session);
    step(*session);
    m_Error = {};  // a nested call may have left one
  } catch (const ScriptFault& fault) {
    m_Error = fault.Details();
    throw;
  } catch (const Interrupted&) {
    const Error error(kUserInterrupt, u"User interrupt occurred", kRuntimeErrorSource);
    m_Error = Described(error.Number(), error.Description());
    m_Error.isInterruption = true;
    throw error;
  } catch (const Error& error) {
    m_Error = Described(error.Number(), error.Description());
    throw;
  } catch (const std::bad_alloc&) {
    const Error error(kOutOfMemory, ErrorText(kOutOfMemory), kRuntimeErrorSource);
    m_Error = Described(error.Number(), error.Description());
    throw error;
  }
}

bool ExecuteScript(ScriptSession& session, JSObject* scope, JS::HandleScript script,
                   JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  if (!scope) return JS_ExecuteScript(cx, script, result);
  JS::RootedObjectVector chain(cx);
  return chain.append(scope) && JS_ExecuteScript(cx, chain, script, result);
}

void Engine::Execute(ScriptSession& session, std::u16string_view name, std::u16string_view code) {
  JSContext* cx = session.Context();
  CompiledSource compiled(cx);
  Module& module = Required(name);
  CompileSource(session, module.name, module.Scope(), code, compiled);
  for (std::u16string& function : compiled.functions)
    if (std::ranges::find(module.functions, function) == module.functions.end())
      module.functions.push_back(std::move(function));
  JS::RootedValue ignored(cx);
  JS::RootedObject scope(cx, module.scope ? module.scope->get() : nullptr);
  // `module` must not be used after this: the code may add modules, which moves it.
  if (!ExecuteScript(session, scope, compiled.script, &ignored)) ThrowPending(session);
}

Variant Engine::EvaluateIn(ScriptSession& session, const Module& module, std::u16string_view expression) {
  JSContext* cx = session.Context();
  CompiledSource compiled(cx);
  CompileSource(session, module.name, module.Scope(), AsExpression(expression), compiled);
  JS::RootedValue value(cx);
  JS::RootedObject scope(cx, module.scope ? module.scope->get() : nullptr);
  Variant result;
  if (!ExecuteScript(session, scope, compiled.script, &value) || !FromScript(session, value, result))
    ThrowPending(session);
  session.DropChunk(compiled.chunk);
  return result;
}

Variant Engine::Evaluate(std::u16string_view name, std::u16string_view expression) {
  const Module& module = Required(name);
  Variant value;
  RecordErrors([&](ScriptSession& session) { value = EvaluateIn(session, module, expression); });
  return value;
}

// Only functions that the script defined itself: the built-ins are not enumerable.
bool Engine::FindFunction(ScriptSession& session, const Module& module, std::u16string_view name,
                          JS::MutableHandleValue function) const {
  JSContext* cx = session.Context();
  const JSAutoRealm realm(cx, session.Global());
  JS::RootedObject scope(cx, ScopeOf(module));
  JS::Rooted<mozilla::Maybe<JS::PropertyDescriptor>> descriptor(cx);
  if (!JS_GetOwnUCPropertyDescriptor(cx, scope, name.data(), name.size(), &descriptor)) {
    JS_ClearPendingException(cx);
    return false;
  }
  if (descriptor.isNothing() || !descriptor->isDataDescriptor() || !descriptor->enumerable()) return false;
  function.set(descriptor->value());
  return function.isObject() && js::IsFunctionObject(&function.toObject());
}

Variant Engine::Run(std::u16string_view name, std::u16string_view procedure, Args args) {
  const Module& module = Required(name);
  JS::RootedValue function(m_Session->Context());
  if (!FindFunction(*m_Session, module, procedure, &function)) Raise(ErrorNumber::InvalidCall);
  Variant answer;
  RecordErrors([&](ScriptSession& session) {
    JSContext* cx = session.Context();
    JS::RootedValueVector values(cx);
    for (const Variant& one : args) {
      JS::RootedValue value(cx);
      if (!ToScript(session, one, &value) || !values.append(value)) ThrowPending(session);
    }
    JS::RootedValue result(cx);
    if (!JS::Call(cx, JS::UndefinedHandleValue, function, values, &result) ||
        !FromScript(session, result, answer))
      ThrowPending(session);
  });
  return answer;
}

Text Engine::TextOf(const Variant& value) {
  Text text;
  RecordErrors([&](ScriptSession& session) {
    JSContext* cx = session.Context();
    JS::RootedValue inScript(cx);
    if (!ToScript(session, value, &inScript)) ThrowPending(session);
    const JS::RootedString shown(cx, JS::ToString(cx, inScript));
    if (!shown) ThrowPending(session);
    text = jscript::TextOf(session, shown);
  });
  return text;
}

std::vector<ScriptProcedure> Engine::Procedures(std::u16string_view name) const {
  const Module& module = const_cast<Engine*>(this)->Required(name);
  std::vector<ScriptProcedure> procedures;
  JS::RootedValue function(m_Session->Context());
  for (const std::u16string& one : module.functions) {
    if (!FindFunction(*m_Session, module, one, &function)) continue;
    JSFunction* code = JS_GetObjectFunction(&function.toObject());
    procedures.push_back({Text(one), JS_GetFunctionArity(code), true});
  }
  return procedures;
}

}  // namespace

std::unique_ptr<ScriptEngine> MakeEngine(ScriptHost& host, const Limits& limits) {
  return std::make_unique<Engine>(host, limits);
}

ScriptError Check(std::u16string_view source) {
  ScriptHost host;
  const auto session =
      std::make_shared<ScriptSession>(host, Limits{}, std::make_shared<std::atomic<bool>>(false));
  try {
    const ScriptSession::Entry entry(*session);
    CompiledSource compiled(session->Context());
    CompileSource(*session, {}, CompileScope::Global, source, compiled);
  } catch (const ScriptFault& fault) {
    return fault.Details();
  }
  return {};
}

ScriptLanguage Language() {
  return {.name = u"JScript",
          .extension = u"js",
          .makeEngine = [](ScriptHost& host) { return MakeEngine(host); },
          .check = Check,
          .disassemble = nullptr};
}

}  // namespace cardwright::jscript
