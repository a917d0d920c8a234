// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/CaptionWidgets.h"

#include <qdrawutil.h>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStylePainter>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kLabel = MakeFaceKind(u"Label", MouseUse::None, ClickSource::MouseRelease);
constexpr WidgetKind kFrame = MakeFaceKind(u"Frame", MouseUse::None, ClickSource::MouseRelease);
constexpr WidgetKind kCommandButton = {.typeName = u"CommandButton",
                                       .backColor = ToOleColor(SystemColor::ButtonFace),
                                       .foreColor = ToOleColor(SystemColor::ButtonText),
                                       .backRole = QPalette::NoRole,
                                       .foreRole = QPalette::NoRole,
                                       .isTransparent = false,
                                       .mouse = MouseUse::LeftButton,
                                       .click = ClickSource::Widget};

constexpr WidgetKind kDbTableViewer =
    MakeFieldKind(u"DbTableViewer", MouseUse::None, ClickSource::MouseRelease);

/// A caption as it is read: '&' only marks a key, "&&" is the character itself.
QString WithoutMarks(const QString& caption) {
  if (!caption.contains(u'&')) return caption;
  QString shown;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size()) break;
    shown += caption[i];
  }
  return shown;
}

}  // namespace

QtLabel::QtLabel(WidgetPlace place) : QtWidget(kLabel, place), m_Label(new QLabel(place.parent)) {
  m_Label->setTextFormat(Qt::PlainText);
  m_Label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_Label->setWordWrap(true);
  Adopt(*m_Label);
}

Text QtLabel::DisplayText() const { return Live(m_Text); }

void QtLabel::SetDisplayText(const Text& text) {
  Live(m_Text) = text;
  m_Label->setText(WithoutMarks(ToQString(text)));
}

class QtFrame::Box final : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QStylePainter painter(this);
    const QString caption = title();
    const QSize size =
        caption.isEmpty() ? QSize() : fontMetrics().size(Qt::TextSingleLine | Qt::TextShowMnemonic, caption);
    const int borderTop = caption.isEmpty() ? 0 : size.height() / 2;
    qDrawShadeRect(&painter, rect().adjusted(0, borderTop, 0, 0), palette(), true, 1);
    if (caption.isEmpty()) return;
    const QRect captionRect(kCaptionLeft, 0, size.width(), size.height());
    painter.fillRect(captionRect.adjusted(-kCaptionGap, 0, kCaptionGap, 0), palette().window());
    painter.drawItemText(captionRect, Qt::AlignLeft | Qt::TextSingleLine | Qt::TextShowMnemonic, palette(),
                         isEnabled(), caption, foregroundRole());
  }

 private:
  static constexpr int kCaptionLeft = 9;
  static constexpr int kCaptionGap = 2;
};

QtFrame::QtFrame(WidgetPlace place) : QtWidget(kFrame, place), m_Box(new Box(place.parent)) { Adopt(*m_Box); }

Text QtFrame::DisplayText() const { return FromQString(Live(m_Box)->title()); }

void QtFrame::SetDisplayText(const Text& text) { Live(m_Box)->setTitle(ToQString(text)); }

QtCommandButton::QtCommandButton(WidgetPlace place)
    : QtWidget(kCommandButton, place), m_Button(new QPushButton(place.parent)) {
  m_Button->setAutoDefault(true);
  Adopt(*m_Button);
  QObject::connect(m_Button, &QPushButton::clicked, this, [this] { NotifyClick(); });
}

Text QtCommandButton::DisplayText() const { return FromQString(Live(m_Button)->text()); }

void QtCommandButton::SetDisplayText(const Text& text) { Live(m_Button)->setText(ToQString(text)); }

QtDbTableViewer::QtDbTableViewer(WidgetPlace place)
    : QtWidget(kDbTableViewer, place), m_Sheet(new QLabel(place.parent)) {
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
