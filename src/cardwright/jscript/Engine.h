#pragma once

#include <cstddef>
#include <memory>

#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright::jscript {

/// What an engine may use. Beyond a limit the script meets the language's own error.
struct Limits {
  std::size_t stackBytes = std::size_t{4} << 20;  ///< of the thread's stack, as far as it has them; error 28
  std::size_t textUnits = std::size_t{1} << 28;   ///< UTF-16 units of a text that leaves the script; error 14
  std::size_t memoryBytes = std::size_t{1} << 30;  ///< of what the thread's scripts hold; error 7
};

/// A JScript engine. `host` must outlive it. Error 48 where the JavaScript library cannot be started.
std::unique_ptr<ScriptEngine> MakeEngine(ScriptHost& host, const Limits& limits = {});

/// Compiles a source and runs nothing: its first error, or an error of number 0.
ScriptError Check(std::u16string_view source);

/// The language, for programs that let their scripts choose.
ScriptLanguage Language();

}  // namespace cardwright::jscript
