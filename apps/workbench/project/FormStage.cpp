// SPDX-License-Identifier: MIT
#include "workbench/project/FormStage.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include "cardwright/qt/surface/QtHostWindow.h"

namespace cardwright::workbench {
namespace {

constexpr int kMargin = 16;
constexpr int kGrip = 8;
constexpr QSize kNewFormSize(480, 320);
constexpr QSize kMinimumSize(40, 20);

/// The title bar of the form.
class TitleBar final : public QWidget {
 public:
  TitleBar(QWidget* window, QWidget* parent) : QWidget(parent), m_Window(window) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Active, QPalette::Highlight));
    painter.setPen(palette().color(QPalette::Active, QPalette::HighlightedText));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const QRect room = rect().adjusted(8, 0, -8, 0);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(bold).elidedText(m_Window->windowTitle(), Qt::ElideRight, room.width()));
  }

 private:
  QWidget* m_Window;
};

}  // namespace

/// An edge or the corner of the form, by which the mouse resizes it.
class FormStage::Edge final : public QWidget {
 public:
  Edge(FormStage& stage, QWidget* parent, bool across, bool down)
      : QWidget(parent), m_Stage(stage), m_Across(across), m_Down(down) {
    setCursor(across && down ? Qt::SizeFDiagCursor : across ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    setToolTip(tr("Pull to size the form"));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    if (!m_Down || !m_Across) {
      const QRect grip = m_Across ? QRect(1, height() / 2 - 12, 3, 24) : QRect(width() / 2 - 12, 1, 24, 3);
      painter.fillRect(grip, palette().color(QPalette::Highlight));
    } else {
      painter.fillRect(QRect(0, 0, kGrip - 2, kGrip - 2), palette().color(QPalette::Highlight));
    }
  }
  void mousePressEvent(QMouseEvent* event) override {
    m_Pressed = event->globalPosition().toPoint();
    m_Size = m_Stage.m_Designer->size();
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint by = event->globalPosition().toPoint() - m_Pressed;
    const QSize size(m_Size.width() + (m_Across ? by.x() : 0), m_Size.height() + (m_Down ? by.y() : 0));
    m_Stage.m_Designer->resize(size.expandedTo(kMinimumSize));
  }

 private:
  FormStage& m_Stage;
  bool m_Across, m_Down;
  QPoint m_Pressed;
  QSize m_Size;
};

FormStage::FormStage(QWidget* parent)
    : QScrollArea(parent), m_Desk(new QWidget), m_Title(nullptr), m_Window(new QWidget(m_Desk)) {
  m_Desk->setObjectName(QStringLiteral("desk"));
  m_Title = new TitleBar(m_Window, m_Desk);
  m_Window->setBackgroundRole(QPalette::Window);
  m_Window->setAutoFillBackground(true);
  m_Window->setProperty(qt::kActsAsWindow, true);
  m_Window->installEventFilter(this);
  m_Edges = {new Edge(*this, m_Desk, true, false), new Edge(*this, m_Desk, false, true),
             new Edge(*this, m_Desk, true, true)};
  setWidget(m_Desk);
  setWidgetResizable(false);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  viewport()->setBackgroundRole(QPalette::Mid);
  viewport()->setAutoFillBackground(true);
  setAccessibleName(tr("Form"));
  ReplaceDesigner();
}

FormStage::~FormStage() = default;

qt::FormDesigner& FormStage::ReplaceDesigner() {
  if (m_Designer) {
    m_Designer->removeEventFilter(this);
    m_Designer->hide();
    m_Designer->deleteLater();  // one of its events may be running
  }
  m_Window->setWindowTitle({});
  m_Designer = new qt::FormDesigner(m_Window);
  m_Designer->setAccessibleName(tr("Form that is drawn"));
  m_Designer->installEventFilter(this);
  m_Designer->move(0, 0);
  m_Designer->resize(kNewFormSize);
  m_Designer->show();
  Arrange();
  return *m_Designer;
}

void FormStage::Arrange() {
  const QSize size = m_Designer->size();
  const int bar = fontMetrics().height() + 12;
  const QPoint at(kMargin, kMargin + bar);
  m_Window->setGeometry(QRect(at, size));
  m_Title->setGeometry(kMargin, kMargin, size.width(), bar);
  const int right = at.x() + size.width();
  const int bottom = at.y() + size.height();
  m_Edges[0]->setGeometry(right, at.y(), kGrip, size.height());
  m_Edges[1]->setGeometry(at.x(), bottom, size.width(), kGrip);
  m_Edges[2]->setGeometry(right, bottom, kGrip, kGrip);
  m_Desk->resize(right + kMargin, bottom + kMargin);
}

void FormStage::Reveal(const QRect& part) {
  const QPoint at = m_Designer->mapTo(m_Desk, part.center());
  ensureVisible(at.x(), at.y(), part.width() / 2 + kMargin, part.height() / 2 + kMargin);
}

bool FormStage::eventFilter(QObject* object, QEvent* event) {
  if (object == m_Designer && event->type() == QEvent::Resize) Arrange();
  if (object == m_Window && event->type() == QEvent::WindowTitleChange) m_Title->update();
  return QScrollArea::eventFilter(object, event);
}

void FormStage::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange && m_Designer) Arrange();
}

}  // namespace cardwright::workbench
