#pragma once

#include "vbscript/NamedError.h"
#include "vbscript/syntax/Position.h"

namespace cardwright::vbscript {

inline constexpr const char16_t* kRuntimeErrorSource = u"Microsoft VBScript runtime error";

/// An error that no script handled, with its place: what an engine's caller catches.
class ScriptFault : public Error {
 public:
  ScriptFault(const Error& error, Position position, Text report)
      : Error(error), m_Position(position), m_Report(std::move(report)) {}
  Position Where() const noexcept { return m_Position; }
  /// Description as a host shows it.
  const Text& Report() const noexcept { return m_Report; }

 private:
  Position m_Position;
  Text m_Report;
};

/// Thrown to end all running code, which cannot catch it.
struct Interrupted {};

}  // namespace cardwright::vbscript
