#include <js/CallAndConstruct.h>
#include <js/CompilationAndEvaluation.h>
#include <js/CompileOptions.h>
#include <js/Conversions.h>
#include <js/Exception.h>
#include <js/PropertyAndElement.h>
#include <js/PropertyDescriptor.h>
#include <js/SourceText.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include <algorithm>
#include <atomic>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/Engine.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/Faults.h"
#include "cardwright/jscript/spidermonkey/Session.h"
#include "cardwright/jscript/spidermonkey/StatementWatch.h"
#include "cardwright/jscript/spidermonkey/Values.h"
#include "cardwright/jscript/syntax/Characters.h"
#include "cardwright/jscript/syntax/SyntaxFault.h"

namespace cardwright::jscript {
namespace {

/// A module's names: the global object's own, or those of an object in front of it.
struct Module {
  Text name;
  std::vector<std::u16string> functions;              // declared, in order
  std::unique_ptr<JS::PersistentRootedObject> scope;  // none for the global module
};

/// A source that is ready to run.
struct Compiled {
  explicit Compiled(JSContext* cx) : script(cx) {}
  JS::PersistentRootedScript script;
  int chunk = 0;
  std::vector<std::u16string> functions;
};

ScriptError Described(int number, const Text& description) {
  return {.number = number, .description = description, .source = kRuntimeErrorSource};
}

[[noreturn]] void ThrowSyntax(Session& session, std::u16string_view source, const SyntaxFault& fault) {
  const Place place = PlaceOf(source, fault.position);
  ScriptError error = Described(fault.number, ErrorText(fault.number));
  error.line = place.line;
  error.column = place.column;
  error.source = kCompilationErrorSource;
  error.isSyntax = true;
  throw ScriptFault(error, session);
}

// In the session's realm.
void Compile(Session& session, const Module& module, std::u16string_view source, Compiled& result) {
  JSContext* cx = session.Context();
  Rewritten rewritten;
  try {
    rewritten = Rewrite(source);
  } catch (const SyntaxFault& fault) {
    ThrowSyntax(session, source, fault);
  }
  result.functions = std::move(rewritten.functions);
  result.chunk = session.AddChunk({module.name, std::move(rewritten.text), std::move(rewritten.places)});
  const std::string name = Session::ChunkName(result.chunk);
  const std::u16string& text = session.FindChunk(name)->text;
  JS::CompileOptions options(cx);
  options.setFileAndLine(name.c_str(), 1).setNonSyntacticScope(module.scope != nullptr);
  JS::SourceText<char16_t> characters;
  if (characters.init(cx, text.data(), text.size(), JS::SourceOwnership::Borrowed))
    result.script = JS::Compile(cx, options, characters);
  if (!result.script) ThrowPending(session, true);
}

// What begins like a statement is an expression here.
std::u16string AsExpression(std::u16string_view text) {
  std::size_t start = 0;
  while (start < text.size() && IsBlank(text[start])) ++start;
  const bool isBracketed =
      text.substr(start).starts_with(u'{') || text.substr(start).starts_with(u"function");
  return isBracketed ? u"(" + std::u16string(text) + u"\n)" : std::u16string(text);
}

/// The engine as its embedders see it: modules by name, errors noted.
class Engine final : public ScriptEngine {
 public:
  Engine(ScriptHost& host, const Limits& limits) : m_Host(host), m_Limits(limits) {
    m_Modules.emplace_back();
    Start();
  }
  ~Engine() override {
    m_Watch.reset();
    m_Modules.clear();
    Swap(nullptr);
  }

  void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) override {
    m_Session->AddObject(name, std::move(object), addMembers);
  }
  void AddModule(std::u16string_view name) override {
    if (Find(name)) Raise(ErrorNumber::InvalidCall);
    m_Modules.push_back({Text(name), {}, nullptr});
    GiveScope(m_Modules.back());
  }
  void AddCode(std::u16string_view module, std::u16string_view code) override {
    Required(module);
    Noting([&](Session& session) { Execute(session, module, code); });
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
  // The language has no boxes of its own; what a host's objects show is the host's affair.
  void SetAllowUI(bool) override {}
  void SetObserver(ScriptObserver* observer) override {
    m_Observer = observer;
    Watch();
  }
  void Close() override {
    for (Module& module : m_Modules) module.scope.reset();
    Start();
    for (Module& module : m_Modules) {
      module.functions.clear();
      if (&module != &m_Modules.front()) GiveScope(module);
    }
  }
  void Interrupt() noexcept override {
    // The watchdog soon makes the script look. A nudge from here would take locks, and this may be a signal.
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
  // Made before the old one is told to stop, which would stop the making too.
  void Start() {
    auto session = std::make_shared<Session>(m_Host, m_Limits, m_StopOrder);
    session->SetTimeout(m_Timeout);
    m_Watch.reset();
    Swap(std::move(session));
    Watch();
  }
  void Swap(std::shared_ptr<Session> session) {
    const std::shared_ptr<Session> old = std::exchange(m_Session, std::move(session));
    // One whose script is under way ends with it.
    if (old && old->IsRunning()) old->Stop();
  }
  void Watch() {
    m_Watch.reset();
    if (m_Observer) m_Watch = std::make_unique<StatementWatch>(*m_Session, *m_Observer);
  }
  void GiveScope(Module& module) {
    JSContext* cx = m_Session->Context();
    const JSAutoRealm realm(cx, m_Session->Global());
    module.scope =
        std::make_unique<JS::PersistentRootedObject>(cx, JS_NewObjectWithGivenProto(cx, nullptr, nullptr));
    if (!module.scope->get()) Raise(ErrorNumber::OutOfMemory);
  }
  bool FindFunction(Session& session, const Module& module, std::u16string_view name,
                    JS::MutableHandleValue function) const;
  void Execute(Session& session, std::u16string_view module, std::u16string_view code);
  Variant EvaluateIn(Session& session, const Module& module, std::u16string_view expression);
  template <class Step>
  void Noting(Step&& step);

  ScriptHost& m_Host;
  const Limits m_Limits;
  std::int32_t m_Timeout = -1;
  const std::shared_ptr<std::atomic<bool>> m_StopOrder = std::make_shared<std::atomic<bool>>(false);
  std::shared_ptr<Session> m_Session;
  ScriptObserver* m_Observer = nullptr;
  std::unique_ptr<StatementWatch> m_Watch;
  std::vector<Module> m_Modules;
  ScriptError m_Error;
};

// A call that goes well clears the error of an earlier one; an error inside stays to be asked for.
template <class Step>
void Engine::Noting(Step&& step) {
  m_Error = {};
  const std::shared_ptr<Session> session = m_Session;
  try {
    const Session::Entry entry(*session);
    step(*session);
    m_Error = {};  // of calls within this one
  } catch (const ScriptFault& fault) {
    m_Error = fault.Described();
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

bool ExecuteScript(Session& session, JSObject* scope, JS::HandleScript script,
                   JS::MutableHandleValue result) {
  JSContext* cx = session.Context();
  if (!scope) return JS_ExecuteScript(cx, script, result);
  JS::RootedObjectVector chain(cx);
  return chain.append(scope) && JS_ExecuteScript(cx, chain, script, result);
}

void Engine::Execute(Session& session, std::u16string_view name, std::u16string_view code) {
  JSContext* cx = session.Context();
  Compiled compiled(cx);
  Module& module = Required(name);
  Compile(session, module, code, compiled);
  for (std::u16string& function : compiled.functions)
    if (std::ranges::find(module.functions, function) == module.functions.end())
      module.functions.push_back(std::move(function));
  JS::RootedValue ignored(cx);
  JS::RootedObject scope(cx, module.scope ? module.scope->get() : nullptr);
  // From here on the module may move: code may add others.
  if (!ExecuteScript(session, scope, compiled.script, &ignored)) ThrowPending(session);
}

Variant Engine::EvaluateIn(Session& session, const Module& module, std::u16string_view expression) {
  JSContext* cx = session.Context();
  Compiled compiled(cx);
  Compile(session, module, AsExpression(expression), compiled);
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
  Noting([&](Session& session) { value = EvaluateIn(session, module, expression); });
  return value;
}

// What the script defined itself, and not what every script finds: that is not enumerable.
bool Engine::FindFunction(Session& session, const Module& module, std::u16string_view name,
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
  Noting([&](Session& session) {
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
  Noting([&](Session& session) {
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
  const auto session = std::make_shared<Session>(host, Limits{}, std::make_shared<std::atomic<bool>>(false));
  try {
    const Session::Entry entry(*session);
    Compiled compiled(session->Context());
    Compile(*session, Module{}, source, compiled);
  } catch (const ScriptFault& fault) {
    return fault.Described();
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
