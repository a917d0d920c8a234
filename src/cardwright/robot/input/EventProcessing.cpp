// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/EventProcessing.h"

#include <QEventLoop>
#include <QTimer>

namespace cardwright::robot {

// Only a running event loop deletes the widgets whose deletion was deferred, so processing pending events is
// not enough.
void ProcessEvents(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace cardwright::robot
