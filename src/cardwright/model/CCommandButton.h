// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// A push button; it does nothing but run its script procedure.
class CCommandButton final : public Control {
 public:
  static const ClassTable kTable;
  CCommandButton() : Control(kTable) {}

  /// The button has no colours of its own.
  OleColor BackColor() const override { return 0; }
  void SetBackColor(OleColor) override {}
  OleColor ForeColor() const override { return 0; }
  void SetForeColor(OleColor) override {}
  /// Always "": a button has no value.
  Text Value(std::optional<Variant> = {}) const override { return {}; }
  bool TakeValue(Text&) const override { return false; }

 private:
  struct Tables;
};

}  // namespace cardwright
