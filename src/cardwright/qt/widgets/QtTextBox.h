// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/QtTextEntry.h"

class QLineEdit;

namespace cardwright::qt {

/// A text box of one line. Pasted text bypasses the key filter, as it does on the platform.
///
/// While the box is not visible, a text that code sets is kept pending: laying out text is most of the cost
/// of opening a feature, and a form is usually filled before it is shown. The toolkit's widget gets the text
/// with the next turn of the event loop at the latest.
class QtTextBox final : public QtLineEntry<TextWidget> {
 public:
  explicit QtTextBox(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  void ApplyLocked() override;
  void ApplyMaxLength(int length) override;
  QLineEdit& Editor() const override;
  void Flush() override;

  void OnTextChanged();
  bool CanPutOff(const Text& text) const;

  QLineEdit* m_Edit;
  mutable std::optional<Text> m_Pending;
};

}  // namespace cardwright::qt
