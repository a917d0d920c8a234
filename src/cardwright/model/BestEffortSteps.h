// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Errors.h"

namespace cardwright {

/// Runs the steps of a routine that continues after failures: a numbered error ends only its own step.
class BestEffortSteps {
 public:
  template <class Step>
  void operator()(Step&& step) {
    try {
      step();
    } catch (const Error& error) {
      m_LastFailure = error.Number();
    }
  }

  /// False only if the last error had the number -1, which the library never raises, but an object of the
  /// host can. Form projects depend on it: a control that was read in part is accepted.
  bool Result() const noexcept { return m_LastFailure != -1; }

 private:
  int m_LastFailure = 0;
};

}  // namespace cardwright
