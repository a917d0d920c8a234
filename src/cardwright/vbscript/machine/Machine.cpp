// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Machine.h"

#include "cardwright/vbscript/compile/Compiler.h"
#include "cardwright/vbscript/syntax/Parser.h"

namespace cardwright::vbscript {

namespace {

constexpr std::u16string_view kErrName = u"Err";

}  // namespace

Machine::Machine(ScriptHost& host, const Limits& limits)
    : Context(host),
      m_Limits(limits),
      m_Objects({}, nullptr),
      m_Library({}, nullptr),
      m_Err(MakeRef<ErrObject>()),
      m_Registers(limits.registerBlock) {
  maxTextUnits = limits.textUnits;
  m_Link = MakeRef<MachineLink>();
  m_Link->machine = this;
  m_Modules.push_back(std::make_unique<Module>(Text(), nullptr));
  Symbol& err = m_Objects.Add(names.Add(kErrName));
  err.kind = SymbolKind::HostObject;
  err.value = m_Err;
}

Machine::~Machine() {
  Close();
  m_Link->machine = nullptr;
}

// Objects that refer to each other are left when all names have been cleared; they end here too.
void Machine::Close() {
  const CallScope scope(*this);
  m_IsClosing = true;
  for (const auto& module : m_Modules) module->Clear();
  while (m_Instances) {
    const Ref<Instance> instance(m_Instances);
    instance->Terminate();
    instance->ClearFields();
    // An instance that the host still holds remains, without a machine.
    if (m_Instances == instance.get()) Forget(*instance);
  }
  m_IsClosing = false;
}

Module* Machine::FindModule(std::u16string_view name) const noexcept {
  for (const auto& module : m_Modules)
    if (EqualsNoCase(module->Name(), name)) return module.get();
  return nullptr;
}

Module& Machine::AddModule(std::u16string_view name) {
  if (FindModule(name)) Raise(ErrorNumber::InvalidCall);
  return *m_Modules.emplace_back(std::make_unique<Module>(Text(name), &Global()));
}

void Machine::AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) {
  if (!object || name.empty()) Raise(ErrorNumber::InvalidCall);
  const NameId id = names.Add(name);
  if (m_Objects.Find(id)) Raise(ErrorNumber::InvalidCall);
  Symbol& symbol = m_Objects.Add(id);
  symbol.kind = SymbolKind::HostObject;
  symbol.value = object;
  if (addMembers) {
    m_MemberObjects.push_back(std::move(object));
    m_Library = Module({}, nullptr);
  }
  NamesChanged();
}

// Makes the names that a compiled text defines names of the module.
void Machine::BindNames(const CompiledBlock& block, Module& module, Variant* variables) {
  for (const auto& [name, defined] : block.names) {
    Symbol& symbol = module.Add(name);
    if (defined.kind == SymbolKind::Variable) {
      symbol.kind = SymbolKind::Variable;
      symbol.variable = variables + defined.variable;
    } else if (defined.kind == SymbolKind::Constant) {
      symbol.kind = SymbolKind::Constant;
      symbol.value = *defined.constant;
    }
  }
  for (const Ref<Procedure>& procedure : block.procedures) module.Define(procedure->name, procedure);
  for (const Ref<ClassInfo>& cls : block.classes) module.DefineClass(cls->name, cls);
  NamesChanged();
}

void Machine::AddCode(Module& module, std::u16string_view source, bool isExplicit) {
  CheckRoomForSource();
  const auto tree = Parse(Text(source));
  tree->optionExplicit |= isExplicit;
  const CompiledBlock block = CompileBlock(*tree, *this, module);
  // The registers live on where the text declares variables. Otherwise they go at once, as a script may
  // execute texts without end.
  std::unique_ptr<Variant[]> temporary;
  if (!block.hasVariables) temporary = std::make_unique<Variant[]>(block.code->registers);
  Variant* const variables = temporary ? temporary.get() : module.AddVariables(block.code->registers);
  BindNames(block, module, variables);
  RunOutermost(*block.code, variables);
}

Variant Machine::Evaluate(Module& module, std::u16string_view expression) {
  CheckRoomForSource();
  const auto tree = ParseExpression(Text(expression));
  CompiledBlock block;
  const auto outer = MakeRef<Procedure>();
  outer->module = &module;
  return RunProcedure(*CompileInScope(*tree, *this, *outer, nullptr, block).code, nullptr, {});
}

Variant Machine::Call(const Procedure& procedure, Instance* me, Args args) {
  const CallScope scope(*this);
  return RunProcedure(procedure, me, args);
}

Ref<Instance> Machine::MakeInstance(ClassInfo& cls) {
  auto instance = MakeRef<Instance>(Ref<ClassInfo>(&cls), m_Link);
  // One that is created during Close runs no Class_Terminate, which could create yet another.
  instance->m_Terminated = m_IsClosing;
  instance->m_Next = m_Instances;
  if (m_Instances) m_Instances->m_Previous = instance.get();
  m_Instances = instance.get();
  return instance;
}

void Machine::Forget(Instance& instance) noexcept {
  if (instance.m_Previous) instance.m_Previous->m_Next = instance.m_Next;
  if (instance.m_Next) instance.m_Next->m_Previous = instance.m_Previous;
  if (m_Instances == &instance) m_Instances = instance.m_Next;
  instance.m_Previous = instance.m_Next = nullptr;
}

Machine::CallScope::CallScope(Machine& machine)
    : m_Machine(machine),
      m_Outer(Locale::Current()),
      m_OuterErr(machine.m_Err->Exchange({})),
      m_Memory(machine.m_Limits.memoryBytes),
      m_StopScope(machine) {
  Locale::SetCurrent(*machine.locale);
  if (machine.m_CallDepth++ != 0) return;
  // An earlier order to stop was meant for what ran then.
  machine.m_Order.store(Order::None, std::memory_order_relaxed);
  machine.m_HostPoll.Restart();
  machine.m_Deadline = machine.m_Timeout < 0
                           ? kNoDeadline
                           : std::chrono::steady_clock::now() + std::chrono::milliseconds(machine.m_Timeout);
}

Machine::CallScope::~CallScope() {
  Locale::SetCurrent(m_Outer);
  m_Machine.m_Err->Exchange(std::move(m_OuterErr));
  --m_Machine.m_CallDepth;
}

}  // namespace cardwright::vbscript
