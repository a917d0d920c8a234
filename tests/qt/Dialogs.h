// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>
#include <memory>

namespace cardwright::qt {

/// Calls `answer` with the next modal dialog of that class, as soon as it waits for its user. It has to end
/// the dialog.
template <class Dialog>
void Meet(std::function<void(Dialog& dialog)> answer) {
  auto* const timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, answer = std::move(answer)] {
    auto* const dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) return;
    timer->stop();
    timer->deleteLater();
    answer(*dialog);
  });
  timer->start(1);
}

}  // namespace cardwright::qt
