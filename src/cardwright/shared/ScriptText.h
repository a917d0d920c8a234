// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <unordered_map>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// Name of the procedure that a script has for an event: name, "_", event; the event alone for an empty name.
Text BuildEventName(std::u16string_view name, std::u16string_view event);
/// The procedure's first line as FindProcedure looks for it: CR LF, keyword, name, "(". "" for an empty name,
/// CR LF alone for an unknown language.
Text BuildProcedureHeader(std::u16string_view name, std::u16string_view language);
/// Position of the procedure's header in the script, from 1; 0 where there is none. It must be at the
/// start of a line, with one blank after the keyword and the bracket directly after the name; case does not
/// matter.
std::size_t FindProcedure(std::u16string_view script, std::u16string_view name, std::u16string_view language);

/// Whether a script has a procedure, for callers that ask again and again: every change of a field asks.
class ProcedureCache {
 public:
  bool Has(const Text& script, const Text& name, const Text& language);

 private:
  struct Hash {
    std::size_t operator()(const Text& name) const noexcept { return HashNoCase(name); }
  };

  Text m_Script;
  Text m_Language;
  std::unordered_map<Text, bool, Hash> m_Answers;
};

/// A script made ready for the engine.
struct ComposedScript {
  Text code;           ///< declarations and the user's script
  Text mainCode;       ///< `Main`, which binds each name to its control
  int lineOffset = 0;  ///< lines of `code` before the user's first
};

/// Declares a variable for each control before the user's script; a leading "option explicit" line stays
/// first. In a language other than VBScript and JScript nothing is added.
ComposedScript ComposeScript(std::u16string_view script, std::u16string_view language,
                             std::span<const Text> userNames);

}  // namespace cardwright
