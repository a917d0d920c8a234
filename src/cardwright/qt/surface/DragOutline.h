// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <array>

class QRect;
class QWidget;

namespace cardwright::qt {

/// The outline of a rectangle in front of all widgets of a canvas. Its four edges are widgets: the toolkit
/// paints the rest as usual, on each window system, and a move repaints no more than the edges.
class DragOutline {
 public:
  explicit DragOutline(QWidget& canvas);
  ~DragOutline();
  DragOutline(const DragOutline&) = delete;
  DragOutline& operator=(const DragOutline&) = delete;

  /// `outline` is in the canvas's pixels; the pen stays inside it.
  void Show(const QRect& outline, int penWidth);
  void Hide();

 private:
  std::array<QPointer<QWidget>, 4> m_Edges;  // null once the canvas is gone
};

}  // namespace cardwright::qt
