// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/SourceCompiler.h"

#include <js/CompilationAndEvaluation.h>
#include <js/CompileOptions.h>
#include <js/SourceText.h>

#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/ScriptErrors.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"
#include "cardwright/jscript/syntax/CharacterClasses.h"
#include "cardwright/jscript/syntax/Rewriter.h"
#include "cardwright/jscript/syntax/SourceError.h"

namespace cardwright::jscript {
namespace {

[[noreturn]] void ThrowSyntax(ScriptSession& session, std::u16string_view source, const SourceError& fault) {
  const SourcePosition position = PositionAt(source, fault.position);
  throw ScriptFault({.number = fault.number,
                     .description = ErrorText(fault.number),
                     .line = position.line,
                     .column = position.column,
                     .source = kCompilationErrorSource,
                     .isSyntax = true},
                    session);
}

}  // namespace

void CompileSource(ScriptSession& session, const Text& moduleName, CompileScope scope,
                   std::u16string_view source, CompiledSource& result) {
  JSContext* cx = session.Context();
  Rewritten rewritten;
  try {
    rewritten = Rewrite(source);
  } catch (const SourceError& fault) {
    ThrowSyntax(session, source, fault);
  }
  result.functions = std::move(rewritten.functions);
  result.chunk = session.AddChunk({moduleName, std::move(rewritten.text), std::move(rewritten.sourceMap)});
  const std::string name = ScriptSession::ChunkName(result.chunk);
  const std::u16string& text = session.FindChunk(name)->text;
  JS::CompileOptions options(cx);
  options.setFileAndLine(name.c_str(), 1).setNonSyntacticScope(scope == CompileScope::Module);
  JS::SourceText<char16_t> characters;
  if (characters.init(cx, text.data(), text.size(), JS::SourceOwnership::Borrowed))
    result.script = JS::Compile(cx, options, characters);
  if (!result.script) ThrowPending(session, true);
}

std::u16string AsExpression(std::u16string_view text) {
  std::size_t start = 0;
  while (start < text.size() && IsBlank(text[start])) ++start;
  const bool isBracketed =
      text.substr(start).starts_with(u'{') || text.substr(start).starts_with(u"function");
  return isBracketed ? u"(" + std::u16string(text) + u"\n)" : std::u16string(text);
}

}  // namespace cardwright::jscript
