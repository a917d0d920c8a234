// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/CItems.h"
#include "cardwright/model/Control.h"

namespace cardwright {

/// A list of one column, with check boxes if MultiSelect is set; the value of the selected entry is written
/// to the attribute. On the design surface it shows its name instead of its items.
class CListBox final : public Control {
 public:
  static const ClassTable kTable;
  CListBox() : Control(kTable) {}

  void SetName(const Text& name) override;
  /// Value of the selected entry's item; "" without one.
  Text Value(std::optional<Variant> params = {}) const override;
  /// Fills the widget from the items; to be called after a grid edited them.
  void Refresh() override;
  void ShowValue(const Text& attribute, const Text& value) override;
  /// Leaves `value` unchanged without a selected entry; forms rely on what is written then.
  bool TakeValue(Text& value) const override;
  void FinishDrawing() override;

  Ref<CItems> m_Items = MakeRef<CItems>();

 protected:
  bool Accepts(const Widget& widget) const override { return dynamic_cast<const ListViewWidget*>(&widget); }
  void FinishRead(const SectionReader& section) override;
  bool ClickSelects() const override { return false; }
  void OnItemCheck(int index) override;

 private:
  struct Tables;
  ListViewWidget& View() const;
  Ref<CItem> CurrentItem() const;
  void FillWidget();
  void ShowName();
  void SelectStoredText();
  void SetMultiSelect(const Variant& value);
  /// The only column fills the view, less a margin in pixels.
  void FitColumn(float margin, ScaleMode scale);

  Text m_Text;
};

}  // namespace cardwright
