// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/SelectorControl.h"

namespace cardwright {

/// A font. Its value is a text made from a template, in the form that the host wants.
class CFontSelector final : public SelectorControl {
 public:
  static const ClassTable kTable;
  CFontSelector() : SelectorControl(kTable) {}

  /// The template with the font's values: the first of `params`, else MaskValue.
  Text Value(std::optional<Variant> params = {}) const override;
  /// The title of the choice.
  Text DisplayText() const override { return RowText(u"Title"); }

 protected:
  bool Accepts(const Widget& widget) const override {
    return dynamic_cast<const FontSelectorWidget*>(&widget);
  }
  void OnChange() override { RunScriptEvent(u"OnChange"); }
  void OnBeforeButtonClick() override { RunScriptEvent(u"BeforeButtonClick"); }
  void OnAfterButtonClick() override { RunScriptEvent(u"AfterButtonClick"); }
  void OnResize() override { ReportHeight(); }

 private:
  struct Tables;

  Text m_MaskValue = u"|%n%| %spx% %r% %g% %b% %bold% %italic% %underline% %strikethrough%";
};

}  // namespace cardwright
