#include "cardwright/qt/DbTableViewerBox.h"

#include "cardwright/qt/FieldKind.h"
#include "cardwright/qt/QtText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kViewer = MakeFieldKind(u"DbTableViewer", MouseUse::None, ClickSource::MouseRelease);

}  // namespace

DbTableViewerBox::DbTableViewerBox(WidgetPlace place)
    : QtWidget(kViewer, place), m_Sheet(new QLabel(place.parent)) {
  m_Sheet->setTextFormat(Qt::PlainText);
  m_Sheet->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  m_Sheet->setAlignment(Qt::AlignCenter);
  m_Sheet->setBackgroundRole(QPalette::Base);
  m_Sheet->setForegroundRole(QPalette::Text);
  m_Sheet->setAutoFillBackground(true);
  Adopt(*m_Sheet);
}

Text DbTableViewerBox::DisplayText() const {
  RequireAlive();
  return FromQString(m_Sheet->text());
}

void DbTableViewerBox::SetDisplayText(const Text& text) {
  RequireAlive();
  m_Sheet->setText(ToQString(text));
}

}  // namespace cardwright::qt
