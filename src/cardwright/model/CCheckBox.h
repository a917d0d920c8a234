// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/StateControl.h"

namespace cardwright {

/// A check box; its state, "1" or "0", is written to the attribute.
class CCheckBox final : public StateControl {
 public:
  static const ClassTable kTable;
  CCheckBox() : StateControl(kTable) {}

  Text Value(std::optional<Variant> params = {}) const override;

 protected:
  bool Accepts(const Widget& widget) const override;

 private:
  struct Tables;
};

}  // namespace cardwright
