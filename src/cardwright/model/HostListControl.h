#pragma once

#include "cardwright/model/SelectorControl.h"

namespace cardwright {

/// A selector whose list comes from the host: the text of its project is a choice from that list.
class HostListControl : public SelectorControl {
 public:
  void BindObject(Ref<Object> object) override;

 protected:
  using SelectorControl::SelectorControl;

  /// Chooses the entry of that text, whatever its case; a text that the list does not have chooses none.
  static void SelectText(TableControl& control, const Variant& text);
  /// What a project keeps: the chosen text, or the one that waits for a list.
  static Variant StoredText(const TableControl& control);
  /// Chooses the text that waits, now that there may be a list.
  void ChooseWaiting();
  /// The list asks over the connection that the form has now.
  void HandOverConnection();
  /// Asks the host for the list before the stored text is looked for in it.
  virtual void FillList() {}

  bool ClickSelects() const override { return false; }
  void OnClick() override;
  void FinishRead(const CIni& ini, const Text& sectionName) override;

 private:
  void Choose(const Text& text);

  Text m_Waiting;  // of the project, read while there was nothing to look it up in
};

}  // namespace cardwright
