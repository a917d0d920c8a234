// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// Base of check box and option button: the flag `Selected`, a text beside the state of the widget.
class StateControl : public Control {
 protected:
  explicit StateControl(const ClassTable& table) : Control(table) {}

  void FinishRead(const SectionReader& section) override;
  bool ClickSelects() const override { return false; }

  /// The bound widget; error 91 where there is none.
  StateWidget& Box() const;
  /// Stores and returns "True" or "False", by the state of the widget.
  Text ReadSelected() const;
  void ApplySelected(const Text& selected);

  static Variant GetSelected(const TableControl& control);
  static void LetSelected(TableControl& control, const Variant& value);

 public:
  /// The state that was last set or read. Projects store this text, in spite of clicks since then.
  mutable Text m_Selected;
};

}  // namespace cardwright
