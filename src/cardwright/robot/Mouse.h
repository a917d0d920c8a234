#pragma once

#include <QEvent>
#include <QPoint>
#include <QWidget>
#include <memory>
#include <vector>

namespace cardwright::robot {

/// How a button is pressed: which one, with which keys held.
struct MouseGrip {
  Qt::MouseButton button = Qt::LeftButton;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// A hand on the mouse. Points are pixels inside the widget named. Error 5 with a description where no person
/// could get there: a widget that is hidden, a point outside the window.
class Mouse {
 public:
  void Move(QWidget& widget, QPoint to);
  void Click(QWidget& widget, QPoint at, MouseGrip grip = {});
  void DoubleClick(QWidget& widget, QPoint at, MouseGrip grip = {});
  /// Presses, goes in that many even moves, and releases.
  void Drag(QWidget& widget, QPoint from, QPoint to, MouseGrip grip, int moves);
  /// Ends the stroke that is on its way. There is one mouse: where another stroke is asked for in the middle
  /// of one, as for a menu that its press has opened, this comes first.
  void Finish();

 private:
  struct Step {
    QEvent::Type type;
    QPoint at;
  };
  struct Stroke;

  void Play(QWidget& widget, MouseGrip grip, std::vector<Step> steps);
  static void Perform(const std::shared_ptr<Stroke>& stroke);

  std::shared_ptr<Stroke> m_Latest;
};

}  // namespace cardwright::robot
