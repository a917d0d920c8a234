// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/CItems.h"
#include "cardwright/model/TextEntry.h"

namespace cardwright {

/// A drop-down list; the value of the selected item is written to the attribute.
class CComboBox final : public TextEntry {
 public:
  static const ClassTable kTable;
  CComboBox() : TextEntry(kTable) {}

  /// Value of the selected item; "" without a selection, even if a text was typed.
  Text Value(std::optional<Variant> params = {}) const override;
  /// Fills the widget from the items; to be called after a grid edited them.
  void Refresh() override;
  void ShowValue(const Text& attribute, const Text& value) override;
  /// Value of the selected item; without a selection the typed text.
  bool TakeValue(Text& value) const override;
  /// The shown text counts as missing while nothing is selected from a list that has items.
  void TakeRequiredValue(Text& value) const override;

  Ref<CItems> m_Items = MakeRef<CItems>();

 protected:
  bool Accepts(const Widget& widget) const override { return dynamic_cast<const ComboWidget*>(&widget); }
  void FinishRead(const SectionReader& section) override;
  bool ClickSelects() const override { return false; }
  bool LimitsLength() const override { return false; }
  bool TakesTyping() const override { return FlagIsSet(m_Editable); }
  void OnKeyDown(int& keyCode, int& shift) override;

 private:
  struct Tables;
  ComboWidget& Box() const;
  Ref<CItem> CurrentItem() const { return m_Items->Item(Variant(Box().ListIndex() + 1)); }
  void FillWidget();
  void SelectText(const Text& text);
  void SetEditable(const Text& editable);

  Text m_Editable = u"False";
};

}  // namespace cardwright
