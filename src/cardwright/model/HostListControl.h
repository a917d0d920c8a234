// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/SelectorControl.h"

namespace cardwright {

/// A selector whose list comes from the host: the text of its project is a choice from that list.
class HostListControl : public SelectorControl {
 public:
  void BindObject(Ref<Object> object) override;

 protected:
  using SelectorControl::SelectorControl;

  /// Selects the entry with that text, in any case; none for a text that is not in the list.
  static void SelectText(TableControl& control, const Variant& text);
  /// What a project stores: the selected text, or the pending one.
  static Variant StoredText(const TableControl& control);
  /// Selects the pending text once there is a list.
  void ChoosePending();
  /// Gives the widget the form's present connection.
  void HandOverConnection();
  /// Requests the list from the host; called before the stored text is selected.
  virtual void FillList() {}

  bool ClickSelects() const override { return false; }
  void OnClick() override;
  void FinishRead(const SectionReader& section) override;

 private:
  void Select(const Text& text);

  Text m_PendingText;  // read from the project while there was no list to select it in
};

}  // namespace cardwright
