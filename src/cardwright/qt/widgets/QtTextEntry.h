// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/LineEditText.h"
#include "cardwright/qt/widgets/QtLockable.h"

namespace cardwright::qt {

/// What the kinds with editable text have in common: the lock and the greatest length.
template <class Interface>
class QtTextEntry : public QtLockable<Interface> {
 public:
  int MaxLength() const final { return this->Live(m_MaxLength); }
  void SetMaxLength(int length) final {
    this->RequireAlive();
    if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
    ApplyMaxLength(length);
    m_MaxLength = length;
  }

 protected:
  using QtLockable<Interface>::QtLockable;

  /// Limits what can be typed into the toolkit's widget; 0 for no limit.
  virtual void ApplyMaxLength(int length) = 0;

  int m_MaxLength = 0;
};

/// One that is edited in a single line: the selection.
template <class Interface>
class QtLineEntry : public QtTextEntry<Interface> {
 public:
  int SelStart() const final { return SelectionStart(Editor()); }
  void SetSelStart(int start) final { SetSelectionStart(Editor(), start); }
  int SelLength() const final { return SelectionLength(Editor()); }
  void SetSelLength(int length) final { SetSelectionLength(Editor(), length); }
  Text SelText() const final { return FromQString(SelectedText(Editor())); }
  void SetSelText(const Text& text) final { ReplaceSelection(Editor(), ToQString(text)); }

 protected:
  using QtTextEntry<Interface>::QtTextEntry;

  /// The toolkit's editor with the present text in it: error 91 where it is gone, 5 where nothing can be
  /// typed.
  virtual QLineEdit& Editor() const = 0;
};

}  // namespace cardwright::qt
