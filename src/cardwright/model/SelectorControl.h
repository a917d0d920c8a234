// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"
#include "cardwright/platform/SelectorWidgets.h"

namespace cardwright {

/// Base of the selectors: the widget is locked in the designer, and it may change its own height.
class SelectorControl : public Control {
 protected:
  using Control::Control;

  bool HasOwnMenu() const override { return true; }
  void FinishRead(const SectionReader& section) override;
  /// Raises PropertyChanged for the height that the widget has now, and moves the grab handles.
  void ReportHeight();
};

/// The template of a selector's value: the first element of `params` if there is one, even an empty text,
/// else the control's own template.
Text TemplateOf(const std::optional<Variant>& params, const Text& own);

}  // namespace cardwright
