// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QPoint>
#include <QWidget>
#include <memory>
#include <vector>

namespace cardwright::robot {

/// The button to press and the modifier keys to hold.
struct ClickOptions {
  Qt::MouseButton button = Qt::LeftButton;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// Makes gestures with the mouse. Points are pixels inside the widget. Error 5 with a description where a
/// user could not reach the point: in a hidden widget, or outside the window.
class Mouse {
 public:
  void Move(QWidget& widget, QPoint to);
  void Click(QWidget& widget, QPoint at, ClickOptions options = {});
  void DoubleClick(QWidget& widget, QPoint at, ClickOptions options = {});
  /// Presses, moves in that many equal steps, and releases.
  void Drag(QWidget& widget, QPoint from, QPoint to, ClickOptions options, int moves);
  /// Waits for the current gesture to end. There is only one mouse, so every gesture first finishes one that
  /// is not over yet, as when its press has opened a menu.
  void FinishGesture();

 private:
  struct Step {
    QEvent::Type type;
    QPoint at;
  };
  struct Gesture;

  void Perform(QWidget& widget, ClickOptions options, std::vector<Step> steps);
  static void SendNext(const std::shared_ptr<Gesture>& gesture);

  std::shared_ptr<Gesture> m_Latest;
};

}  // namespace cardwright::robot
