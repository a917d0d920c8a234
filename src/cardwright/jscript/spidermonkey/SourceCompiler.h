// SPDX-License-Identifier: MIT
#pragma once

#include <jsapi.h>

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright::jscript {

class ScriptSession;

/// A source that is ready to run.
struct CompiledSource {
  explicit CompiledSource(JSContext* cx) : script(cx) {}
  JS::PersistentRootedScript script;
  int chunk = 0;                          ///< of the session
  std::vector<std::u16string> functions;  ///< declared at the top level, in order
};

enum class CompileScope { Global, Module };

/// Rewrites and compiles a source in the session's realm. Throws a ScriptFault where it has a syntax error.
/// `moduleName` goes into the positions of its errors.
void CompileSource(ScriptSession& session, const Text& moduleName, CompileScope scope,
                   std::u16string_view source, CompiledSource& result);

/// An expression as a source: one that would be read as a statement, such as `{a: 1}`, in parentheses.
std::u16string AsExpression(std::u16string_view text);

}  // namespace cardwright::jscript
