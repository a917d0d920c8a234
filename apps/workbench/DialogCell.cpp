#include "workbench/DialogCell.h"

#include <QHBoxLayout>
#include <QKeyEvent>

namespace cardwright::workbench {

DialogCell::DialogCell(QWidget* parent, bool canType)
    : QWidget(parent), m_Edit(new QLineEdit(this)), m_Button(new QToolButton(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  layout->addWidget(m_Edit, 1);
  layout->addWidget(m_Button);
  setAutoFillBackground(true);
  m_Edit->setReadOnly(!canType);
  m_Edit->setFrame(false);
  m_Edit->installEventFilter(this);
  m_Button->setText(QStringLiteral("…"));
  m_Button->setAccessibleName(tr("Choose"));
  m_Button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  setFocusProxy(canType ? static_cast<QWidget*>(m_Edit) : m_Button);
  m_Button->installEventFilter(this);
  connect(m_Button, &QToolButton::clicked, this, &DialogCell::DialogWanted);
}

bool DialogCell::eventFilter(QObject* object, QEvent* event) {
  if (object == m_Edit && event->type() == QEvent::MouseButtonDblClick && !CanType()) {
    Q_EMIT DialogWanted();
    return true;
  }
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (!isKey) return QWidget::eventFilter(object, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (event->type() == QEvent::ShortcutOverride) {
    // F4 is a shortcut of the window, too.
    if (key == Qt::Key_F4) event->accept();
    return key == Qt::Key_F4;
  }
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (key == Qt::Key_F4 || (isEnter && object == m_Button)) {
    Q_EMIT DialogWanted();
    return true;
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace cardwright::workbench
