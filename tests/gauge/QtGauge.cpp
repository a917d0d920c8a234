// SPDX-License-Identifier: MIT
#include "gauge/QtGauge.h"

#include <QProgressBar>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {
namespace {

constexpr WidgetKind kGauge = MakeFieldKind(u"Gauge", MouseUse::None, ClickSource::MouseRelease);

}  // namespace

QtGauge::QtGauge(WidgetPlace place) : QtWidget(kGauge, place), m_Bar(new QProgressBar(place.parent)) {
  m_Bar->setRange(0, 100);
  Adopt(*m_Bar);
}

Text QtGauge::DisplayText() const {
  const int level = Live(m_Bar)->value();
  return level < 0 ? Text() : FromQString(QString::number(level));
}

void QtGauge::SetDisplayText(const Text& text) {
  if (text.IsEmpty()) return Live(m_Bar)->reset();
  Live(m_Bar)->setValue(ToQString(text).toInt());
}

}  // namespace cardwright::qt
