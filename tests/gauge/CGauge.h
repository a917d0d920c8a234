// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// A bar that shows how full something is, from 0 to 100: a control class that a program adds to the
/// library's.
class CGauge final : public Control {
 public:
  static const ClassTable kTable;
  CGauge() : Control(kTable) {}

  /// The level as the attribute has it.
  Text Value(std::optional<Variant> params = {}) const override;

 private:
  struct Tables;
};

}  // namespace cardwright
