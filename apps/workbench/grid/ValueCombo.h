#pragma once

#include <QComboBox>
#include <optional>

namespace cardwright::workbench {

/// The editor of a value that is chosen from a list. What is picked from the opened list is final; arrows,
/// letters and the wheel only step through the choices, and what is typed waits for Enter.
class ValueCombo final : public QComboBox {
  Q_OBJECT
 public:
  ValueCombo(QWidget* parent, bool canType);

  /// Puts a text into the box, whether it is a choice or not.
  void SetText(const QString& text);
  /// What stands in the box; none where nothing was chosen.
  std::optional<QString> Chosen() const;
  /// Adds a choice that is no value, but opens a dialog with more of them.
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
