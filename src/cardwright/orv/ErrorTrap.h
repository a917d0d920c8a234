// SPDX-License-Identifier: MIT
#pragma once

#include <cpl_error.h>

#include <string>

#include "cardwright/automation/Text.h"

namespace cardwright::orv {

/// While it exists, errors that the data library reports on this thread are caught here and not printed.
class ErrorTrap {
 public:
  ErrorTrap();
  ~ErrorTrap();
  ErrorTrap(const ErrorTrap&) = delete;
  ErrorTrap& operator=(const ErrorTrap&) = delete;

  bool HasFailed() const noexcept { return m_Worst >= CE_Failure; }
  /// Whether another program has locked the store.
  bool IsLock() const;
  /// The first of the worst errors, shortened to what a user can act on.
  Text Reason() const;

 private:
  /// The message without the statement that failed.
  std::string Cause() const;
  static void CPL_STDCALL Keep(CPLErr kind, CPLErrorNum number, const char* message);

  CPLErr m_Worst = CE_None;
  std::string m_Message;
};

}  // namespace cardwright::orv
