// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QPainter>
#include <QPalette>

namespace cardwright::qt {

/// A scrolling widget of the toolkit whose frame shows the focus, as the frames of its one-line fields do.
/// Many styles leave that out, and a user on the keyboard would not see where they are.
template <class Base>
class FocusFramed : public Base {
 public:
  using Base::Base;

 protected:
  bool event(QEvent* event) override {
    const bool done = Base::event(event);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) this->QWidget::update();
    if (event->type() == QEvent::Paint && this->hasFocus()) {
      QPainter painter(this);
      painter.setPen(this->palette().color(QPalette::Highlight));
      painter.drawRect(this->rect().adjusted(0, 0, -1, -1));
    }
    return done;
  }
};

}  // namespace cardwright::qt
