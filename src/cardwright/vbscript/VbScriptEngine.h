// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright::vbscript {

/// Limits of what scripts may use. Exceeding one raises the language's own error.
struct Limits {
  int callDepth = 10000;                           ///< depth of nested calls; error 28
  std::size_t textUnits = std::size_t{1} << 28;    ///< UTF-16 units of one text; error 14
  std::size_t memoryBytes = std::size_t{1} << 30;  ///< of texts and arrays during one call; error 7
  std::size_t registerBlock =
      4096;  ///< registers by which the memory of running procedures grows; never an error
};

/// A VBScript engine. `host` must outlive it.
std::unique_ptr<ScriptEngine> MakeEngine(ScriptHost& host, const Limits& limits = {});

/// Compiles a source without running it. Returns its first error, or an error of number 0.
ScriptError Check(std::u16string_view source);

/// The compiled form of a source as text, for developers of the compiler. Throws an Error of number 1001 to
/// 1058 where the source is no program.
Text Disassemble(std::u16string_view source);

/// The language as an entry for programs in which scripts choose theirs.
ScriptLanguage Language();

}  // namespace cardwright::vbscript
