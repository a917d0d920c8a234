#pragma once

#include "qt/QtWidget.h"

class QLineEdit;

namespace cardwright::qt {

/// A text box of one line. Pasted text passes the key filter by, as it does on the platform.
class TextBoxWidget final : public QtWidget<TextWidget> {
 public:
  explicit TextBoxWidget(WidgetPlace place);
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

  QLineEdit* m_Edit;
  int m_MaxLength = 0;
};

}  // namespace cardwright::qt
