#pragma once

#include "cardwright/model/SelectorControl.h"

namespace cardwright {

/// The path of a file or a folder. It can keep the folder chosen last among the user's settings, as the start
/// of the next choice.
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
  /// Takes the key as a project has it, and the folder kept under it.
  void ReadRegKey(const Text& key);
  /// The event as every click: it selects the control on the design surface and runs the script elsewhere.
  void SelectOrRun(std::u16string_view event);
  /// The folder that the present path would keep, "" where there is none.
  Text ChosenFolder() const;

  Text m_RegKey;
};

}  // namespace cardwright
