// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cstdint>

#include "cardwright/automation/Locale.h"
#include "cardwright/automation/Text.h"
#include "cardwright/platform/ScriptEngine.h"

namespace cardwright::vbscript {

/// State that the functions of the library share within one engine.
class Context {
 public:
  explicit Context(ScriptHost& host) : m_Host(host) {}

  ScriptHost& Host() noexcept { return m_Host; }

  /// A text of one character. Those of the first 256 code units are created once and shared.
  Text Character(char16_t unit);

  /// State of Rnd and Randomize: 24 bits.
  std::uint32_t randomSeed = 0x50000;
  /// The locale that SetLocale chose for this engine.
  const Locale* locale = &Locale::Current();
  /// Whether MsgBox and InputBox may show anything.
  bool allowUI = true;
  /// Length of the longest text that a script may create, in UTF-16 units; error 14 beyond it.
  std::size_t maxTextUnits = std::size_t{1} << 28;

  /// Error 14 where a text of that many units would be too long.
  void CheckTextSize(std::size_t units) const;
  /// Charges work on that many code units or array elements. The machine checks the clock only every few
  /// thousand jumps, which is too seldom where each of them does much work: after a large charge the clock is
  /// checked at once.
  static void ChargeWork(std::size_t units) noexcept;

 private:
  ScriptHost& m_Host;
  std::array<Text, 256> m_Characters;
};

}  // namespace cardwright::vbscript
