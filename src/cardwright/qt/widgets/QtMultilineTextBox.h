// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/QtTextEntry.h"

namespace cardwright::qt {

/// The companion library's text box of several lines. To its users a line ends with CR LF, which counts as
/// two characters; LF and CR alone are accepted too. Tab leaves the box, Enter starts a line.
class QtMultilineTextBox final : public QtTextEntry<TextWidget> {
 public:
  explicit QtMultilineTextBox(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  int SelStart() const override;
  void SetSelStart(int start) override;
  int SelLength() const override;
  void SetSelLength(int length) override;
  Text SelText() const override;
  void SetSelText(const Text& text) override;

 private:
  class Edit;
  void ApplyLocked() override;
  void ApplyMaxLength(int length) override;
  bool TakesEnter() const override { return true; }
  void OnTextChanged();

  Edit* m_Edit;
  Text m_LastText;  // as the listener knows it
};

}  // namespace cardwright::qt
