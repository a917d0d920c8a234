// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/HostListControl.h"

namespace cardwright {

/// A theme of the host's project, which the end user chooses or creates.
class CThemeSelector final : public HostListControl {
 public:
  static const ClassTable kTable;
  CThemeSelector() : HostListControl(kTable) {}

 protected:
  bool Accepts(const Widget& widget) const override {
    return dynamic_cast<const ThemeSelectorWidget*>(&widget);
  }
  void FillList() override;

 private:
  struct Tables;
};

}  // namespace cardwright
