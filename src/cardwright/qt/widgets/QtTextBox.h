#pragma once

#include "cardwright/qt/widgets/QtWidget.h"

class QLineEdit;

namespace cardwright::qt {

/// A text box of one line. Pasted text passes the key filter by, as it does on the platform.
///
/// While the box is not on the screen, a text that code sets waits here: laying text out is what makes
/// opening a feature dear, and a form is usually filled before it is shown. The text reaches the toolkit's
/// widget with the next turn of the event loop at the latest.
class QtTextBox final : public QtWidget<TextWidget> {
 public:
  explicit QtTextBox(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  bool IsLocked() const override;
  void SetLocked(bool locked) override;
  int MaxLength() const override;
  void SetMaxLength(int length) override;
  int SelStart() const override;
  void SetSelStart(int start) override;
  int SelLength() const override;
  void SetSelLength(int length) override;
  Text SelText() const override;
  void SetSelText(const Text& text) override;

 private:
  void OnTextChanged();
  void Settle() override;
  /// The toolkit's widget with the text in it that it should show.
  QLineEdit& Edit() const;
  bool CanWait(const Text& text) const;

  QLineEdit* m_Edit;
  int m_MaxLength = 0;
  mutable std::optional<Text> m_Waiting;
};

}  // namespace cardwright::qt
