// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>

#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright::jscript {

/// What an engine may use up. A script that exceeds a limit gets the error of JScript that is named with it.
struct Limits {
  std::size_t stackBytes = std::size_t{4} << 20;  ///< of the thread's stack, at most what that has; error 28
  std::size_t textUnits = std::size_t{1}
                          << 28;  ///< UTF-16 units of a text that is passed to the host; error 14
  std::size_t memoryBytes = std::size_t{1} << 30;  ///< held by the scripts of the thread; error 7
};

/// Makes a JScript engine. `host` must outlive it. Error 48 where the JavaScript library cannot be started.
std::unique_ptr<ScriptEngine> MakeEngine(ScriptHost& host, const Limits& limits = {});

/// Compiles a source without running it. Returns its first error, or an error of number 0.
ScriptError Check(std::u16string_view source);

/// The language with its engine, for programs that let their scripts choose.
ScriptLanguage Language();

}  // namespace cardwright::jscript
