// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/HostListControl.h"

namespace cardwright {

/// An attribute of the theme that a theme selector of the form shows, for one feature type. The selector, and
/// a combo box that chooses the type, are given by their user names; the widgets are linked after the whole
/// form was read.
class CAttributeSelector final : public HostListControl {
 public:
  static const ClassTable kTable;
  CAttributeSelector() : HostListControl(kTable) {}

  void AttachControls(Collection& controls) override;
  void LinkControlNameChanged(const Text& oldName, const Text& newName) override;
  void LinkControlDelete(Collection& controls) override;

 protected:
  bool Accepts(const Widget& widget) const override {
    return dynamic_cast<const AttributeSelectorWidget*>(&widget);
  }

 private:
  struct Tables;
  void LinkWidgets(const Collection& controls);

  Text m_ThemeSelectorName;
  Text m_FeatureSelectorName;
};

}  // namespace cardwright
