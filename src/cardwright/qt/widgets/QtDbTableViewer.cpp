#include "cardwright/qt/widgets/QtDbTableViewer.h"

#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kViewer = MakeFieldKind(u"DbTableViewer", MouseUse::None, ClickSource::MouseRelease);

}  // namespace

QtDbTableViewer::QtDbTableViewer(WidgetPlace place)
    : QtWidget(kViewer, place), m_Sheet(new QLabel(place.parent)) {
  m_Sheet->setTextFormat(Qt::PlainText);
  m_Sheet->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  m_Sheet->setAlignment(Qt::AlignCenter);
  m_Sheet->setBackgroundRole(QPalette::Base);
  m_Sheet->setForegroundRole(QPalette::Text);
  m_Sheet->setAutoFillBackground(true);
  Adopt(*m_Sheet);
}

Text QtDbTableViewer::DisplayText() const { return FromQString(Live(m_Sheet)->text()); }

void QtDbTableViewer::SetDisplayText(const Text& text) { Live(m_Sheet)->setText(ToQString(text)); }

}  // namespace cardwright::qt
