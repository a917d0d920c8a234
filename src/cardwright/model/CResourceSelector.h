// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/SelectorControl.h"

namespace cardwright {

/// The path of a file or a folder. It can store the last chosen folder in the user's settings, as the start
/// folder of the next choice.
class CResourceSelector final : public SelectorControl {
 public:
  static const ClassTable kTable;
  CResourceSelector() : SelectorControl(kTable) {}

  /// The path.
  Text Value(std::optional<Variant> /*params*/ = {}) const override { return RowText(u"Path"); }
  /// The title of the selection's window.
  Text DisplayText() const override { return RowText(u"Title"); }

 protected:
  bool Accepts(const Widget& widget) const override {
    return dynamic_cast<const ResourceSelectorWidget*>(&widget);
  }
  void OnChange() override { SelectOrRun(u"OnChange"); }
  void OnBeforeButtonClick() override { SelectOrRun(u"BeforeButtonClick"); }
  void OnAfterButtonClick() override { SelectOrRun(u"AfterButtonClick"); }
  void OnGotFocus() override;
  void OnLostFocus() override;

 private:
  struct Tables;
  ResourceSelectorWidget& Selector() const;
  void MoveHeight(const Variant& height);
  /// Stores the key that was read from a project, and loads the folder that is stored under it.
  void ReadRegKey(const Text& key);
  /// Selects the control on the design surface, and runs the event procedure in a form that is filled in.
  void SelectOrRun(std::u16string_view event);
  /// Folder of the present path; "" where it does not exist.
  Text ChosenFolder() const;

  Text m_RegKey;
};

}  // namespace cardwright
