// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/vbscript/NamedError.h"
#include "cardwright/vbscript/syntax/Position.h"

namespace cardwright::vbscript {

class Machine;

inline constexpr const char16_t* kRuntimeErrorSource = u"Microsoft VBScript runtime error";

/// An error that no script handled, with its position. The callers of an engine catch it.
class ScriptFault : public Error {
 public:
  ScriptFault(const Error& error, Position position, Text report, const Machine& machine)
      : Error(error), m_Position(position), m_Report(std::move(report)), m_Machine(&machine) {}
  /// Whether a script of this machine failed, so that the position is in its code.
  bool IsOf(const Machine& machine) const noexcept { return m_Machine == &machine; }
  Position Where() const noexcept { return m_Position; }
  /// The description as a host shows it.
  const Text& Report() const noexcept { return m_Report; }

 private:
  Position m_Position;
  Text m_Report;
  const Machine* m_Machine;
};

/// Thrown to end all running code. Scripts cannot catch it.
struct Interrupted {};

}  // namespace cardwright::vbscript
