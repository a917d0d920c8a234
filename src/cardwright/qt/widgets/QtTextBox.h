#pragma once

#include "cardwright/qt/widgets/QtTextEntry.h"

class QLineEdit;

namespace cardwright::qt {

/// A text box of one line. Pasted text passes the key filter by, as it does on the platform.
///
/// While the box is not on the screen, a text that code sets waits here: laying text out is what makes
/// opening a feature dear, and a form is usually filled before it is shown. The text reaches the toolkit's
/// widget with the next turn of the event loop at the latest.
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
