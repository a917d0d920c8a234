// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/QtPictureBox.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>
#include <cmath>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/Colors.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kPictureBox = MakeFaceKind(u"PictureBox", MouseUse::None, ClickSource::MouseRelease);

}  // namespace

/// Shows the drawing over the background.
class QtPictureBox::Box final : public QWidget {
 public:
  Box(QWidget* parent, QtPictureBox& owner) : QWidget(parent), m_Owner(owner) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    if (m_Owner.Native() != this) return;  // the box outlives its adapter by a turn of the event loop
    QPainter(this).drawPixmap(0, 0, m_Owner.m_Drawing);
    if (!m_Owner.m_AutoRedraw) m_Owner.m_Drawing = QPixmap();
  }

 private:
  QtPictureBox& m_Owner;
};

QtPictureBox::QtPictureBox(WidgetPlace place)
    : QtWidget(kPictureBox, place), m_Box(new Box(place.parent, *this)) {
  Adopt(*m_Box);
}

Text QtPictureBox::DisplayText() const {
  RequireAlive();
  return {};
}

void QtPictureBox::SetDisplayText(const Text&) { Raise(ErrorNumber::NotSupported); }

// A new background takes the drawing with it, as it does on the platform.
void QtPictureBox::SetBackColor(OleColor color) {
  QtWidget::SetBackColor(color);
  Cls();
}

float QtPictureBox::ScaleWidth() const {
  return PixelsToScale(static_cast<float>(Live(m_Box)->width()), m_Scale);
}

float QtPictureBox::ScaleHeight() const {
  return PixelsToScale(static_cast<float>(Live(m_Box)->height()), m_Scale);
}

void QtPictureBox::SetDrawWidth(int pixels) {
  if (pixels < 1) Raise(ErrorNumber::InvalidPropertyValue);
  m_DrawWidth = pixels;
}

void QtPictureBox::Cls() {
  Live(m_Drawing) = QPixmap();
  m_Box->update();
}

QPixmap& QtPictureBox::Drawing() {
  const qreal ratio = m_Box->devicePixelRatioF();
  const QSize wanted = m_Box->size() * ratio;
  if (m_Drawing.size() != wanted) {
    QPixmap fresh(wanted);
    fresh.setDevicePixelRatio(ratio);
    fresh.fill(Qt::transparent);
    if (!m_Drawing.isNull()) QPainter(&fresh).drawPixmap(0, 0, m_Drawing);
    m_Drawing = std::move(fresh);
  }
  return m_Drawing;
}

void QtPictureBox::DrawBox(float left, float top, float right, float bottom, OleColor color) {
  RequireAlive();
  if (m_Box->size().isEmpty()) return;
  const auto pixel = [this](float value) {
    return static_cast<int>(std::lround(ScaleToPixels(value, m_Scale)));
  };
  QPainter painter(&Drawing());
  painter.setPen(QPen(ToQColor(color, QApplication::palette()), m_DrawWidth, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(QRect(QPoint(pixel(left), pixel(top)), QSize(pixel(right - left), pixel(bottom - top))));
  m_Box->update();
}

}  // namespace cardwright::qt
