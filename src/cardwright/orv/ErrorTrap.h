#pragma once

#include <cpl_error.h>

#include <string>

#include "cardwright/automation/Text.h"

namespace cardwright::orv {

/// While it lives, what the data library reports on this thread is kept here instead of going to the error
/// stream.
class ErrorTrap {
 public:
  ErrorTrap();
  ~ErrorTrap();
  ErrorTrap(const ErrorTrap&) = delete;
  ErrorTrap& operator=(const ErrorTrap&) = delete;

  bool HasFailed() const noexcept { return m_Worst >= CE_Failure; }
  /// True where the store is locked by another program.
  bool IsLock() const;
  /// The first of the worst reports, shortened to what a person can use.
  Text Reason() const;

 private:
  /// What the message says beside the statement that failed.
  std::string Core() const;
  static void CPL_STDCALL Keep(CPLErr kind, CPLErrorNum number, const char* message);

  CPLErr m_Worst = CE_None;
  std::string m_Message;
};

}  // namespace cardwright::orv
