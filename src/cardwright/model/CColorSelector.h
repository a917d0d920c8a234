// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/SelectorControl.h"

namespace cardwright {

/// A colour. Its value is a text made from a template, in the form that the host wants.
class CColorSelector final : public SelectorControl {
 public:
  static const ClassTable kTable;
  CColorSelector() : SelectorControl(kTable) {}

  /// The template with the colour's values: the first of `params`, else MaskValue.
  Text Value(std::optional<Variant> params = {}) const override;
  /// The title of the choice.
  Text DisplayText() const override { return RowText(u"Title"); }

 protected:
  bool Accepts(const Widget& widget) const override {
    return dynamic_cast<const ColorSelectorWidget*>(&widget);
  }

 private:
  struct Tables;

  Text m_MaskValue = u"%r% %g% %b%";
};

}  // namespace cardwright
