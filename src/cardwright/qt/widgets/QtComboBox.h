// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/ChoiceNotice.h"
#include "cardwright/qt/widgets/QtTextEntry.h"

class QComboBox;
class QLineEdit;

namespace cardwright::qt {

/// A drop-down list. Its height follows the font, whatever is asked for. A text that is typed is no
/// selection, even where it equals an entry. While the list is not editable its text can only be set to an
/// entry's (error 383 otherwise) and has no caret (error 5).
class QtComboBox final : public QtLineEntry<ComboWidget> {
 public:
  explicit QtComboBox(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

  bool IsEditable() const override;
  void SetEditable(bool editable) override;
  int ListCount() const override;
  Text ListText(int index) const override;
  void SetListText(int index, const Text& text) override;
  std::int32_t ItemData(int index) const override;
  void SetItemData(int index, std::int32_t data) override;
  int ListIndex() const override;
  void SetListIndex(int index) override;
  void AddItem(const Text& text, std::optional<int> index = {}) override;
  void RemoveItem(int index) override;
  void Clear() override;

  /// Signals another ListIndex.
  const ChoiceNotice& Choice() const noexcept { return m_Choice; }

 private:
  void ApplyLocked() override;
  void ApplyMaxLength(int length) override;
  QLineEdit& Editor() const override;
  float HeightFor(float height) const override;
  void OnFontApplied() override;
  /// While it is locked, mouse and keys do nothing but give it the focus.
  bool IsBlocked() const override { return m_IsLocked; }
  bool TakesWheel() const override;

  void SetUpEditor();
  void OnActivated(int index);
  void SetChosen(int index);
  void Select(int index);
  void RequireIndex(int index) const;
  template <class Change>
  void ChangeList(Change&& change, int indexAfter);

  QComboBox* m_Combo;
  ChoiceNotice m_Choice;
  int m_ListIndex = -1;  // the toolkit's own index stays at the last entry while another text is typed
};

}  // namespace cardwright::qt
