// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/QtWidget.h"

namespace cardwright::qt {

/// A widget whose value a user can be kept from changing, while it still shows it and takes the focus.
template <class Interface>
class QtLockable : public QtWidget<Interface> {
 public:
  bool IsLocked() const final { return this->Live(m_IsLocked); }
  void SetLocked(bool locked) final {
    this->Live(m_IsLocked) = locked;
    ApplyLocked();
  }

 protected:
  using QtWidget<Interface>::QtWidget;

  /// Hands the lock on to the toolkit's widget where that knows one of its own.
  virtual void ApplyLocked() {}

  bool m_IsLocked = false;
};

}  // namespace cardwright::qt
