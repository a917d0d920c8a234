#pragma once

#include "cardwright/model/Control.h"
#include "cardwright/platform/SelectorWidgets.h"

namespace cardwright {

/// What the selectors share: a widget that the author must not be able to use while drawing the form, and
/// that may have a height of its own.
class SelectorControl : public Control {
 protected:
  using Control::Control;

  bool HasOwnMenu() const override { return true; }
  void FinishRead(const CIni& ini, const Text& sectionName) override;
  /// Tells the designer's host and the grab handles of the height that the widget has now.
  void TellHeight();
};

/// The text that a selector's value is made from: the first element of `params` where there is one, even an
/// empty one, else the control's own template.
Text TemplateOf(const std::optional<Variant>& params, const Text& own);

}  // namespace cardwright
