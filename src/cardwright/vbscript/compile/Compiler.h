// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/vbscript/code/Linkage.h"
#include "cardwright/vbscript/compile/BlockNames.h"
#include "cardwright/vbscript/syntax/SyntaxTree.h"

namespace cardwright::vbscript {

/// A compiled source text, before its names are bound in the module.
struct CompiledBlock {
  Ref<Procedure> code;  ///< the code outside procedures
  BlockNames names;
  bool hasVariables = false;  ///< among the names
  std::vector<Ref<Procedure>> procedures;
  std::vector<Ref<ClassInfo>> classes;
};

/// Compiles a source text for a module. Throws SyntaxError where a part of it needs more than the machine can
/// address.
CompiledBlock CompileBlock(const SyntaxTree& tree, Linkage& linkage, Module& module);

/// Code that works with the variables of a running procedure: it is called with references to those of these
/// names.
struct CompiledInScope {
  Ref<Procedure> code;
  std::vector<NameId> variables;
};
/// Compiles statements, or an expression whose value is the result, to run in the scope of `outer`. `scope`
/// are the variables that executed code has added to it. The procedures and classes that the text defines go
/// to `block`.
CompiledInScope CompileInScope(const SyntaxTree& tree, Linkage& linkage, const Procedure& outer,
                               const ScopeVariables* scope, CompiledBlock& block);

}  // namespace cardwright::vbscript
