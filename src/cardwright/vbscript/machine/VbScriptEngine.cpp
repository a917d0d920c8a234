// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/VbScriptEngine.h"

#include "cardwright/vbscript/code/Disassembler.h"
#include "cardwright/vbscript/compile/Compiler.h"
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/syntax/Parser.h"

namespace cardwright::vbscript {

namespace {

// The engine as a program that embeds it sees it: modules by name, and the last error recorded.
class VbScriptEngine final : public ScriptEngine {
 public:
  VbScriptEngine(ScriptHost& host, const Limits& limits) : m_Machine(host, limits) {}

  void AddObject(std::u16string_view name, Ref<Object> object, bool addMembers) override {
    m_Machine.AddObject(name, std::move(object), addMembers);
  }
  void AddModule(std::u16string_view name) override { m_Machine.AddModule(name); }
  void AddCode(std::u16string_view module, std::u16string_view code) override {
    Module& found = Required(module);
    RecordErrors([&] { m_Machine.AddCode(found, code); });
  }
  Variant Run(std::u16string_view module, std::u16string_view procedure, Args args) override;
  Variant Evaluate(std::u16string_view module, std::u16string_view expression) override {
    Module& found = Required(module);
    Variant value;
    RecordErrors([&] { value = m_Machine.Evaluate(found, expression); });
    return value;
  }
  std::vector<ScriptProcedure> Procedures(std::u16string_view module) const override;
  Text TextOf(const Variant& value) override { return ToText(value); }

  ScriptError LastError() const override { return m_Error; }
  void ClearError() override { m_Error = {}; }
  void SetTimeout(std::int32_t milliseconds) override { m_Machine.SetTimeout(milliseconds); }
  void SetAllowUI(bool allowed) override { m_Machine.allowUI = allowed; }
  void SetObserver(ScriptObserver* observer) override { m_Machine.SetObserver(observer); }
  void Close() override { m_Machine.Close(); }
  void Interrupt() noexcept override { m_Machine.Interrupt(); }

 private:
  Module& Required(std::u16string_view name) const {
    Module* module = m_Machine.FindModule(name);
    if (!module) Raise(ErrorNumber::InvalidCall);
    return *module;
  }
  template <class Step>
  void RecordErrors(Step&& step);

  Machine m_Machine;
  ScriptError m_Error;
};

ScriptError Described(const Error& error, const Text& description, Position position, bool isSyntax) {
  return {.number = error.Number(),
          .description = description,
          .line = position.line,
          .column = position.column,
          .source = error.Source(),
          .isSyntax = isSyntax};
}

// Records the error of a call for LastError, before it goes on to the caller. A call without one clears it.
template <class Step>
void VbScriptEngine::RecordErrors(Step&& step) {
  m_Error = {};
  try {
    const Machine::CallScope scope(m_Machine);
    step();
    m_Error = {};  // errors of calls within this one
  } catch (const SyntaxError& error) {
    m_Error = Described(error, error.Description(), error.Where(), true);
    throw;
  } catch (const ScriptFault& fault) {
    m_Error = Described(fault, fault.Report(), fault.Where(), false);
    throw;
  } catch (const Interrupted&) {
    const Error error(static_cast<int>(ErrorNumber::UserInterrupt), u"User interrupt occurred");
    m_Error = Described(error, error.Description(), {}, false);
    m_Error.isInterruption = true;
    throw error;
  } catch (const std::bad_alloc&) {
    const Error error(ErrorNumber::OutOfMemory);
    m_Error = Described(error, error.Description(), {}, false);
    throw error;
  }
}

Variant VbScriptEngine::Run(std::u16string_view module, std::u16string_view procedure, Args args) {
  const Symbol* symbol = Required(module).FindBound(m_Machine.names.Find(procedure));
  if (!symbol || symbol->kind != SymbolKind::Procedure) Raise(ErrorNumber::InvalidCall);
  const Ref<const Procedure> code = symbol->procedure;
  Variant value;
  RecordErrors([&] { value = m_Machine.Call(*code, nullptr, args); });
  return value;
}

std::vector<ScriptProcedure> VbScriptEngine::Procedures(std::u16string_view module) const {
  std::vector<ScriptProcedure> procedures;
  const Module& found = Required(module);
  for (const NameId name : found.Procedures()) {
    const Symbol* symbol = found.Find(name);
    if (!symbol || symbol->kind != SymbolKind::Procedure) continue;
    procedures.push_back(
        {m_Machine.names.Spelling(name), symbol->procedure->parameters, symbol->procedure->returnsValue});
  }
  return procedures;
}

}  // namespace

std::unique_ptr<ScriptEngine> MakeEngine(ScriptHost& host, const Limits& limits) {
  return std::make_unique<VbScriptEngine>(host, limits);
}

ScriptError Check(std::u16string_view source) {
  ScriptHost host;
  try {
    Machine machine(host, {});
    CompileBlock(*Parse(Text(source)), machine, machine.Global());
  } catch (const SyntaxError& error) {
    return Described(error, error.Description(), error.Where(), true);
  }
  return {};
}

Text Disassemble(std::u16string_view source) {
  ScriptHost host;
  Machine machine(host, {});
  const CompiledBlock block = CompileBlock(*Parse(Text(source)), machine, machine.Global());
  Text list = DisassembleProcedure(*block.code, machine.names);
  for (const Ref<Procedure>& procedure : block.procedures)
    list += DisassembleProcedure(*procedure, machine.names);
  for (const Ref<ClassInfo>& cls : block.classes)
    for (const ClassMember& member : cls->members)
      for (const ClassProcedure* one : {&member.method, &member.get, &member.let, &member.set})
        if (one->code) list += DisassembleProcedure(*one->code, machine.names);
  return list;
}

ScriptLanguage Language() {
  return {.name = u"VBScript",
          .extension = u"vbs",
          .makeEngine = [](ScriptHost& host) { return MakeEngine(host); },
          .check = Check,
          .disassemble = Disassemble};
}

}  // namespace cardwright::vbscript
