#include "cardwright/robot/EventService.h"

#include <QEventLoop>
#include <QTimer>

namespace cardwright::robot {

// A loop of its own rather than one turn of the application's: only in a loop go widgets that were to be
// deleted.
void ServeEvents(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace cardwright::robot
