// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/compile/Compiler.h"
#include "cardwright/vbscript/machine/FunctionReference.h"
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/syntax/Parser.h"

// Execute, Eval and their like.
namespace cardwright::vbscript {

// The frame whose scope executed code works in. Executed code has no variables of its own, so what it
// executes in turn works in the scope of the same procedure.
std::size_t Machine::ScopeDepth() const noexcept {
  std::size_t depth = m_Depth - 1;
  while (m_Frames[depth].procedure->isExecuted) --depth;
  return depth;
}

// The compiled text has a parameter for each variable of the scope that it uses, and is called with
// references to them.
Variant Machine::RunInScope(SyntaxTree& tree) {
  const std::size_t depth = ScopeDepth();
  const Procedure& outer = *m_Frames[depth].procedure;
  tree.optionExplicit |= outer.isExplicit;
  CompiledBlock block;
  const CompiledInScope compiled = CompileInScope(tree, *this, outer, m_Frames[depth].scope, block);
  compiled.code->isExecuted = true;
  BindNames(block, *outer.module, nullptr);
  std::vector<Variant> variables;
  for (const NameId name : compiled.variables) variables.push_back(ReferenceInScope(m_Frames[depth], name));
  return RunProcedure(*compiled.code, m_Frames[depth].me, variables);
}

// A variable of that name joins the scope where it has none.
Variant Machine::ReferenceInScope(Frame& frame, NameId name) {
  for (const auto& [local, r] : frame.procedure->locals)
    if (local == name) return Variant::ByRef(frame.registers[r]);
  if (!frame.scope) frame.scope = new ScopeVariables;
  return Variant::ByRef((*frame.scope)[name]);
}

void Machine::ExecuteInScope(const Text& source) {
  const Procedure& outer = *m_Frames[ScopeDepth()].procedure;
  if (outer.isOutermost) {
    AddCode(*outer.module, source, outer.isExplicit);
  } else {
    CheckRoomForSource();
    RunInScope(*Parse(source));
  }
}

void Machine::ExecuteInModule(const Text& source) {
  AddCode(*Current().procedure->module, source, Current().procedure->isExplicit);
}

Variant Machine::EvaluateInScope(const Text& expression) {
  CheckRoomForSource();
  return RunInScope(*ParseExpression(expression));
}

Variant Machine::GetReference(const Text& procedure) {
  const Symbol* symbol = Current().procedure->module->FindBound(names.Add(procedure));
  if (!symbol || symbol->kind != SymbolKind::Procedure) Raise(ErrorNumber::InvalidCall);
  return Variant(MakeRef<FunctionReference>(symbol->procedure, m_Link));
}

}  // namespace cardwright::vbscript
