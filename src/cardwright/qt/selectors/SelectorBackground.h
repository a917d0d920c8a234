#pragma once

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

namespace cardwright::qt {

/// What the parts of a selector stand on. It fills itself with the colour of windows, and what its parts
/// leave of a mouse button's strokes ends here.
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
