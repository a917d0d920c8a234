// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// A caption on the form.
class CLabel final : public Control {
 public:
  static const ClassTable kTable;
  CLabel() : Control(kTable) {}

 private:
  struct Tables;
};

}  // namespace cardwright
