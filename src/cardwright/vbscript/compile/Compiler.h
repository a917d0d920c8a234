#pragma once

#include <vector>

#include "cardwright/vbscript/code/Linkage.h"
#include "cardwright/vbscript/compile/BlockNames.h"
#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// A source text compiled, before its names are the module's.
struct CompiledBlock {
  Ref<Procedure> code;  ///< what stands outside procedures
  BlockNames names;
  bool hasVariables = false;  ///< among the names
  std::vector<Ref<Procedure>> procedures;
  std::vector<Ref<ClassInfo>> classes;
};

/// Compiles a source text for a module. Throws SyntaxError where a part of it is larger than the machine can
/// address.
CompiledBlock CompileBlock(const SyntaxTree& tree, Linkage& linkage, Module& module);

/// Code that works with a running procedure's variables: its parameters refer to the variables of these
/// names.
struct CompiledInScope {
  Ref<Procedure> code;
  std::vector<NameId> variables;
};
/// Compiles statements, or an expression whose value is the result, to run in the scope of `outer`, whose
/// further variables are `scope`. Procedures and classes that the text defines are in `block`.
CompiledInScope CompileInScope(const SyntaxTree& tree, Linkage& linkage, const Procedure& outer,
                               const ScopeVariables* scope, CompiledBlock& block);

}  // namespace cardwright::vbscript
