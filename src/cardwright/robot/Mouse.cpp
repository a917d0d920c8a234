#include "cardwright/robot/Mouse.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/EventService.h"
#include "cardwright/robot/PlatformInput.h"

namespace cardwright::robot {
namespace {

/// The clock of the mouse, in milliseconds: it goes on from stroke to stroke, whoever makes it.
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

/// Steps in one window, all points resolved at the start: what is dragged may move under the mouse.
struct Mouse::Stroke {
  QPointer<QWindow> window;
  std::vector<MouseInput> inputs;
  std::size_t next = 0;
};

void Mouse::Move(QWidget& widget, QPoint to) { Play(widget, {}, {{QEvent::MouseMove, to}}); }

void Mouse::Click(QWidget& widget, QPoint at, MouseGrip grip) {
  Play(widget, grip, {{QEvent::MouseButtonPress, at}, {QEvent::MouseButtonRelease, at}});
}

void Mouse::DoubleClick(QWidget& widget, QPoint at, MouseGrip grip) {
  Play(widget, grip,
       {{QEvent::MouseButtonPress, at},
        {QEvent::MouseButtonRelease, at},
        {QEvent::MouseButtonPress, at},
        {QEvent::MouseButtonRelease, at}});
}

void Mouse::Drag(QWidget& widget, QPoint from, QPoint to, MouseGrip grip, int moves) {
  std::vector<Step> steps{{QEvent::MouseButtonPress, from}};
  for (int i = 1; i <= moves; ++i) steps.push_back({QEvent::MouseMove, from + (to - from) * i / moves});
  steps.push_back({QEvent::MouseButtonRelease, to});
  Play(widget, grip, std::move(steps));
}

void Mouse::Play(QWidget& widget, MouseGrip grip, std::vector<Step> steps) {
  const QPointer<QWidget> target(&widget);
  Finish();
  if (!target) return;
  auto stroke = std::make_shared<Stroke>();
  m_Latest = stroke;
  stroke->window = &WindowAround(widget);
  QWidget& top = *widget.window();
  if (!top.rect().contains(widget.mapTo(&top, steps.front().at)))
    RaiseOutOfReach(widget, u": the point lies outside the window");
  // Far enough behind the latest stroke to be no second half of a double click.
  s_Time += 2 * static_cast<std::uint32_t>(QApplication::doubleClickInterval());
  Qt::MouseButtons held = Qt::NoButton;
  for (const Step& step : steps) {
    if (step.type == QEvent::MouseButtonPress) held = grip.button;
    if (step.type == QEvent::MouseButtonRelease) held = Qt::NoButton;
    const bool isMove = step.type == QEvent::MouseMove;
    stroke->inputs.push_back({step.type, widget.mapTo(&top, step.at), isMove ? Qt::NoButton : grip.button,
                              held, grip.modifiers, static_cast<int>(++s_Time)});
  }
  Perform(stroke);
  Finish();
  ServeEvents();
}

void Mouse::Finish() {
  while (m_Latest && m_Latest->next < m_Latest->inputs.size()) ServeEvents();
}

// A press may begin a loop that waits for the moves and the release, and then does not return before them:
// each step is put on its way before the one ahead of it is made. A loop that polls the mouse is to see each
// of them, so no two come in one turn.
void Mouse::Perform(const std::shared_ptr<Stroke>& stroke) {
  const MouseInput& input = stroke->inputs[stroke->next++];
  if (stroke->next < stroke->inputs.size()) QTimer::singleShot(1, qApp, [stroke] { Perform(stroke); });
  if (stroke->window) SendMouse(*stroke->window, input);
}

}  // namespace cardwright::robot
