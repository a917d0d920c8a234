// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/DragOutline.h"

#include <QPainter>
#include <QWidget>
#include <algorithm>

namespace cardwright::qt {

namespace {

constexpr int kDash = 4;

/// Alternating black and white, visible on every background.
class Edge final : public QWidget {
 public:
  explicit Edge(QWidget& canvas) : QWidget(&canvas) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    hide();  // explicitly, or it would be shown with the canvas
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const bool isFlat = width() >= height();
    for (int at = 0; at < std::max(width(), height()); at += 2 * kDash)
      painter.fillRect(isFlat ? QRect(at, 0, kDash, height()) : QRect(0, at, width(), kDash), Qt::black);
  }
};

}  // namespace

DragOutline::DragOutline(QWidget& canvas) {
  for (QPointer<QWidget>& edge : m_Edges) edge = new Edge(canvas);
}

DragOutline::~DragOutline() {
  for (const QPointer<QWidget>& edge : m_Edges) delete edge.data();
}

void DragOutline::Show(const QRect& outline, int penWidth) {
  const int across = std::min(penWidth, outline.width());
  const int down = std::min(penWidth, outline.height());
  const QRect places[] = {
      {outline.left(), outline.top(), outline.width(), down},
      {outline.left(), outline.top() + outline.height() - down, outline.width(), down},
      {outline.left(), outline.top(), across, outline.height()},
      {outline.left() + outline.width() - across, outline.top(), across, outline.height()}};
  for (std::size_t i = 0; i < m_Edges.size(); ++i) {
    if (!m_Edges[i]) return;
    m_Edges[i]->setGeometry(places[i]);
    if (!m_Edges[i]->isHidden()) continue;
    m_Edges[i]->raise();
    m_Edges[i]->show();
  }
}

void DragOutline::Hide() {
  for (const QPointer<QWidget>& edge : m_Edges)
    if (edge) edge->hide();
}

}  // namespace cardwright::qt
