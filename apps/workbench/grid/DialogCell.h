#pragma once

#include <QLineEdit>
#include <QToolButton>

namespace cardwright::workbench {

/// The editor of a value that is chosen in a dialog: its text, and a button that opens the dialog, as F4 does
/// and, where the text cannot be typed, a blank, Enter and a double click.
class DialogCell final : public QLineEdit {
  Q_OBJECT
 public:
  /// `name` is that of the value, for who cannot see where the cell stands.
  DialogCell(QWidget* parent, const QString& name, bool canType);

  bool CanType() const noexcept { return !isReadOnly(); }
  /// Adds a button that empties the value, as the Delete key does then. It is off while there is nothing.
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
