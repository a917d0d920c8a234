// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <memory>
#include <string_view>
#include <vector>

#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// A script language and what can be done with its sources. Each room with an engine gives its own.
struct ScriptLanguage {
  std::u16string_view name;       ///< "VBScript"; messages show it too
  std::u16string_view extension;  ///< of script files, without the dot
  /// A new engine. `host` must outlive it.
  std::unique_ptr<ScriptEngine> (*makeEngine)(ScriptHost& host);
  /// Compiles a source and runs nothing: its first error, or an error of number 0.
  ScriptError (*check)(std::u16string_view source);
  /// The compiled form of a source without errors as text; null where the engine has none to show.
  Text (*disassemble)(std::u16string_view source);
};

/// The script languages that a program has.
class ScriptLanguages {
 public:
  /// The languages in the order in which they are listed to users.
  ScriptLanguages(std::initializer_list<ScriptLanguage> languages) : m_Languages(languages) {}

  /// @name Null where there is none; the case does not matter
  /// @{
  const ScriptLanguage* Named(std::u16string_view name) const;
  const ScriptLanguage* OfExtension(std::u16string_view extension) const;
  /// @}
  /// All languages in the given order.
  const std::vector<ScriptLanguage>& All() const noexcept { return m_Languages; }

 private:
  std::vector<ScriptLanguage> m_Languages;
};

}  // namespace cardwright
