#pragma once

#include "cardwright/automation/Errors.h"

namespace cardwright {

/// Runs the steps of a routine that carries on past failures: each step stands for itself, a numbered error
/// ends only its own step.
class Steps {
 public:
  template <class Step>
  void operator()(Step&& step) {
    try {
      step();
    } catch (const Error& error) {
      m_LastFailure = error.Number();
    }
  }

  /// False only where the last failure had the number -1. Form projects depend on the lenience: a control
  /// that read partly is accepted by the loader.
  bool Result() const noexcept { return m_LastFailure != -1; }

 private:
  int m_LastFailure = 0;
};

}  // namespace cardwright
