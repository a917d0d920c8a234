// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/Mouse.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/input/EventProcessing.h"
#include "cardwright/robot/input/PlatformInput.h"

namespace cardwright::robot {
namespace {

/// The time stamp of the latest mouse event, in milliseconds. All mice share it, because time never goes
/// back.
std::uint32_t s_Time = 0;

[[noreturn]] void RaiseOutOfReach(const QWidget& widget, std::u16string_view reason) {
  Raise(static_cast<int>(ErrorNumber::InvalidCall), qt::FromQString(widget.objectName()) + reason);
}

QWindow& WindowAround(const QWidget& widget) {
  QWindow* const window = widget.window()->windowHandle();
  if (!window || !widget.isVisible()) RaiseOutOfReach(widget, u": the widget is not on the screen");
  return *window;
}

}  // namespace

/// The steps of one gesture in one window. Points are converted at the start, because what is dragged may
/// move.
struct Mouse::Gesture {
  QPointer<QWindow> window;
  std::vector<MouseInput> inputs;
  std::size_t next = 0;
};

void Mouse::Move(QWidget& widget, QPoint to) { Perform(widget, {}, {{QEvent::MouseMove, to}}); }

void Mouse::Click(QWidget& widget, QPoint at, ClickOptions options) {
  Perform(widget, options, {{QEvent::MouseButtonPress, at}, {QEvent::MouseButtonRelease, at}});
}

void Mouse::DoubleClick(QWidget& widget, QPoint at, ClickOptions options) {
  Perform(widget, options,
          {{QEvent::MouseButtonPress, at},
           {QEvent::MouseButtonRelease, at},
           {QEvent::MouseButtonPress, at},
           {QEvent::MouseButtonRelease, at}});
}

void Mouse::Drag(QWidget& widget, QPoint from, QPoint to, ClickOptions options, int moves) {
  std::vector<Step> steps{{QEvent::MouseButtonPress, from}};
  for (int i = 1; i <= moves; ++i) steps.push_back({QEvent::MouseMove, from + (to - from) * i / moves});
  steps.push_back({QEvent::MouseButtonRelease, to});
  Perform(widget, options, std::move(steps));
}

void Mouse::Perform(QWidget& widget, ClickOptions options, std::vector<Step> steps) {
  const QPointer<QWidget> target(&widget);
  FinishGesture();
  if (!target) return;
  auto gesture = std::make_shared<Gesture>();
  m_Latest = gesture;
  gesture->window = &WindowAround(widget);
  QWidget& top = *widget.window();
  if (!top.rect().contains(widget.mapTo(&top, steps.front().at)))
    RaiseOutOfReach(widget, u": the point lies outside the window");
  // Long enough after the latest gesture not to become the second click of a double click.
  s_Time += 2 * static_cast<std::uint32_t>(QApplication::doubleClickInterval());
  Qt::MouseButtons held = Qt::NoButton;
  for (const Step& step : steps) {
    if (step.type == QEvent::MouseButtonPress) held = options.button;
    if (step.type == QEvent::MouseButtonRelease) held = Qt::NoButton;
    const bool isMove = step.type == QEvent::MouseMove;
    gesture->inputs.push_back({step.type, widget.mapTo(&top, step.at), isMove ? Qt::NoButton : options.button,
                               held, options.modifiers, static_cast<int>(++s_Time)});
  }
  SendNext(gesture);
  FinishGesture();
  ProcessEvents();
}

void Mouse::FinishGesture() {
  while (m_Latest && m_Latest->next < m_Latest->inputs.size()) ProcessEvents();
}

// A press may start an event loop that returns only after the release. So each step is scheduled before the
// one before it is sent. The timer's millisecond lets a loop that polls the mouse see every step.
void Mouse::SendNext(const std::shared_ptr<Gesture>& gesture) {
  const MouseInput& input = gesture->inputs[gesture->next++];
  if (gesture->next < gesture->inputs.size()) QTimer::singleShot(1, qApp, [gesture] { SendNext(gesture); });
  if (gesture->window) SendMouse(*gesture->window, input);
}

}  // namespace cardwright::robot
