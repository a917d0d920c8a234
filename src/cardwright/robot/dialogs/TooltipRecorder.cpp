// SPDX-License-Identifier: MIT
#include "cardwright/robot/dialogs/TooltipRecorder.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::robot {

TooltipRecorder::TooltipRecorder() { qApp->installEventFilter(this); }

bool TooltipRecorder::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::WindowTitleChange && target->objectName() == u"frmTooltip")
    m_Last = qt::FromQString(static_cast<QWidget&>(*target).windowTitle());
  return false;
}

}  // namespace cardwright::robot
