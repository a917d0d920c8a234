#pragma once

#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace cardwright::workbench {

/// The editor of a value that is chosen in a dialog: its text, and a button that opens the dialog. Blank,
/// Enter, F4 and a double click open it too.
class DialogCell final : public QWidget {
  Q_OBJECT
 public:
  /// `canType` where the text may be typed as well.
  DialogCell(QWidget* parent, bool canType);

  QLineEdit& Edit() const noexcept { return *m_Edit; }
  QToolButton& Button() const noexcept { return *m_Button; }
  bool CanType() const noexcept { return !m_Edit->isReadOnly(); }

 Q_SIGNALS:
  void DialogWanted();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QLineEdit* m_Edit;
  QToolButton* m_Button;
};

}  // namespace cardwright::workbench
