// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <optional>

namespace cardwright::workbench {

/// The editor of a value that is chosen from a list. A choice in the open list is committed at once. Arrow
/// keys, letters and the wheel only step through the choices, and typed text is committed by Enter.
class ValueCombo final : public QComboBox {
  Q_OBJECT
 public:
  ValueCombo(QWidget* parent, bool canType);

  /// Shows a text, whether it is a choice or not.
  void SetText(const QString& text);
  /// The text of the editor; none if nothing was chosen.
  std::optional<QString> Chosen() const;
  /// Adds an entry that opens a dialog with more choices.
  void AddOther(const QString& text);
  bool IsOther() const;

  void showPopup() override;

 Q_SIGNALS:
  void Picked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool m_IsStepping = false;
};

}  // namespace cardwright::workbench
