// SPDX-License-Identifier: MIT
#pragma once

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

namespace cardwright::qt {

/// The widget that contains the parts of a selector. It fills itself with the palette's window colour, and
/// consumes the mouse buttons that its parts do not use.
class SelectorBackground : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(rect(), palette().window()); }
  void mousePressEvent(QMouseEvent* event) override { event->accept(); }
  void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
};

}  // namespace cardwright::qt
