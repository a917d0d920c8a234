// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QToolButton>

namespace cardwright::workbench {

/// The editor of a value that is chosen in a dialog: its text, and a button that opens the dialog. F4 opens
/// it too; so do Space, Enter and a double click if the text is read-only.
class DialogCell final : public QLineEdit {
  Q_OBJECT
 public:
  /// `name` is the name of the property, for screen readers.
  DialogCell(QWidget* parent, const QString& name, bool canType);

  bool CanType() const noexcept { return !isReadOnly(); }
  /// Adds a button that clears the value, as the Delete key then does. It is disabled if there is no value.
  void OfferClearing(bool isFilled);

 Q_SIGNALS:
  void DialogWanted();
  void ClearWanted();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QToolButton* AddButton(const QString& text, const QString& name, const QString& keys);

  QString m_Name;
  QToolButton* m_Choose;
  QToolButton* m_Clear = nullptr;
};

}  // namespace cardwright::workbench
