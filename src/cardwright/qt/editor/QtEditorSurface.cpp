// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/QtEditorSurface.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QToolBar>
#include <algorithm>
#include <cmath>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/dialogs/RunDialog.h"
#include "cardwright/qt/editor/CodeEdit.h"
#include "cardwright/qt/editor/DescriptionDialog.h"
#include "cardwright/qt/editor/FindDialog.h"
#include "cardwright/qt/editor/OptionsDialog.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr std::chrono::milliseconds kTick{1};  // of the timer that follows the caret
constexpr int kComboGap = 10;                  // pixels between the two combos
constexpr int kLeastPopup = 60;                // pixels, of a pop-up that is drawn smaller

float ToTwips(int pixels) { return static_cast<float>(pixels) * kTwipsPerPixel; }

}  // namespace

/// The corner by which the user makes the pop-up larger or smaller.
class QtEditorSurface::Grip final : public QWidget {
 public:
  Grip(QWidget& popup, std::function<void(QSize)> resize) : QWidget(&popup), m_Resize(std::move(resize)) {
    setCursor(Qt::SizeFDiagCursor);
    const int side = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    setFixedSize(side, side);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QStyleOptionSizeGrip option;
    option.initFrom(this);
    option.corner = Qt::BottomRightCorner;
    style()->drawControl(QStyle::CE_SizeGrip, &option, &painter, this);
  }
  void mousePressEvent(QMouseEvent* event) override {
    m_Start = event->globalPosition().toPoint();
    m_Size = parentWidget()->size();
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    const QPoint moved = event->globalPosition().toPoint() - m_Start;
    m_Resize((m_Size + QSize(moved.x(), moved.y())).expandedTo({kLeastPopup, kLeastPopup}));
  }

 private:
  const std::function<void(QSize)> m_Resize;
  QPoint m_Start;
  QSize m_Size;
};

template <class WidgetClass, class... Arguments>
Ref<WidgetClass> QtEditorSurface::Make(std::u16string_view name, QWidget& parent, Arguments&&... arguments) {
  WidgetPlace place = m_Surface.PlaceIn(nullptr, name);
  place.parent = &parent;
  auto made = MakeRef<WidgetClass>(std::move(place), std::forward<Arguments>(arguments)...);
  m_Surface.KeepOwn(made);
  return made;
}

QtEditorSurface::QtEditorSurface(QWidget& canvas, std::function<bool()> isRunning)
    : m_Surface(canvas), m_IsRunning(std::move(isRunning)) {
  m_Surface.SetScale(ScaleMode::Twips);
  m_Toolbar = Make<QtToolbar>(u"tbrMenu", canvas, [this](const Text& key) {
    Tell([&](EditorListener& listener) { listener.OnToolButton(key); });
  });
  m_ControlsCombo = Make<QtComboBox>(u"cboCtrls", canvas);
  m_EventsCombo = Make<QtComboBox>(u"cboEvents", canvas);
  m_Pad = Make<QtLexipad>(u"tecEditor", canvas);
  m_PositionLabel = Make<QtLabel>(u"lblLineCol", m_Toolbar->Bar());
  m_LanguageLabel = Make<QtLabel>(u"lblLang", m_Toolbar->Bar());
  m_LanguageLabel->SetDisplayText(u"Language");
  m_Popup = Make<QtPictureBox>(u"picPropMethod", canvas);
  m_PopupList = Make<QtCompletionList>(u"lvwElenco", *m_Popup->Native());
  m_PopupTip = Make<QtLabel>(u"lblTooltip", *m_Popup->Native());
  m_Grip = new Grip(*m_Popup->Native(), [this](QSize size) {
    m_Popup->Move(m_Popup->Left(), m_Popup->Top(), ToTwips(size.width()), ToTwips(size.height()));
  });
  m_Grip->hide();
  m_ControlsCombo->SetEditable(false);
  m_EventsCombo->SetEditable(false);
  m_ControlsCombo->Native()->setAccessibleName(tr("Control"));
  m_EventsCombo->Native()->setAccessibleName(tr("Event or procedure"));
  m_Pad->Native()->setAccessibleName(tr("Script"));
  m_Toolbar->Native()->setAccessibleName(tr("Script editor"));
  FontValues font = m_Pad->GetFont()->Values();
  font.name = u"Courier New";
  font.size = 10;
  m_Pad->GetFont()->Assign(std::move(font));
  for (Widget* shown :
       {static_cast<Widget*>(m_Toolbar.get()), static_cast<Widget*>(m_ControlsCombo.get()),
        static_cast<Widget*>(m_EventsCombo.get()), static_cast<Widget*>(m_Pad.get()),
        static_cast<Widget*>(m_PositionLabel.get()), static_cast<Widget*>(m_LanguageLabel.get()),
        static_cast<Widget*>(m_PopupList.get()), static_cast<Widget*>(m_PopupTip.get())})
    shown->SetVisible(true);
  canvas.setFocusProxy(m_Pad->Native());
  canvas.installEventFilter(this);
  m_Popup->Native()->installEventFilter(this);
  m_Timer.setInterval(kTick);
  connect(&m_Timer, &QTimer::timeout, this, [this] { Tell([](EditorListener& l) { l.OnTimer(); }); });
  connect(qApp, &QApplication::focusChanged, this, &QtEditorSurface::OnFocusMoved);
}

// The widgets go after this, and what their end sets off must not come back here.
QtEditorSurface::~QtEditorSurface() {
  disconnect(qApp, nullptr, this, nullptr);
  if (QWidget* const canvas = Native()) canvas->removeEventFilter(this);
  if (QWidget* const popup = m_Popup->Native()) popup->removeEventFilter(this);
  m_Timer.stop();
  m_Listener = nullptr;
  delete m_Find.data();
  delete m_Description.data();
}

DescriptionWindow& QtEditorSurface::Description() {
  if (!m_Description) {
    m_Description = new DescriptionDialog(m_Surface.Canvas().window());
    connect(m_Description, &DescriptionDialog::PlaceChanged, this,
            [this] { Tell([](EditorListener& l) { l.OnDescriptionResize(); }); });
    connect(m_Description, &DescriptionDialog::Closed, this, [this] {
      if (const Ref<ToolButton> button = m_Toolbar->Buttons()->Find(u"help")) button->SetValue(0);
    });
  }
  return *m_Description;
}

QWidget* QtEditorSurface::DescriptionWidget() const { return m_Description; }

bool QtEditorSurface::eventFilter(QObject* target, QEvent* event) {
  if (target == Native()) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
      Tell([](EditorListener& listener) { listener.OnSurfaceResize(); });
    if (event->type() == QEvent::Show && !std::exchange(m_WasShown, true)) {
      LayOut();
      Tell([](EditorListener& listener) { listener.OnFirstShow(); });
    }
  } else if (event->type() == QEvent::Resize) {
    FillPopup();
    Tell([](EditorListener& listener) { listener.OnPopupResize(); });
  }
  return false;
}

bool QtEditorSurface::IsOurs(const QWidget* widget) const {
  if (!widget || !Native()) return false;
  const bool isInWindow = m_Description && (widget == m_Description || m_Description->isAncestorOf(widget));
  return widget == Native() || Native()->isAncestorOf(widget) || isInWindow;
}

void QtEditorSurface::OnFocusMoved(QWidget* before, QWidget* now) {
  if (IsOurs(before) && !IsOurs(now) && !QApplication::activePopupWidget())
    Tell([](EditorListener& listener) { listener.OnSurfaceLostFocus(); });
}

void QtEditorSurface::LayOut() {
  const QWidget& canvas = m_Surface.Canvas();
  const float width = ToTwips(canvas.width());
  const float barHeight = ToTwips(m_Toolbar->Native()->sizeHint().height());
  m_Toolbar->Move(0, 0, width, barHeight);
  PlacePanes();
  const float comboWidth = std::max(0.0F, (width - ToTwips(kComboGap)) / 2);
  const float top = m_Toolbar->IsVisible() ? barHeight : 0;
  m_ControlsCombo->Move(0, top, comboWidth, m_ControlsCombo->Height());
  m_EventsCombo->Move(width - comboWidth, top, comboWidth, m_EventsCombo->Height());
  const float padTop = top + m_ControlsCombo->Height();
  m_Pad->Move(0, padTop, width, std::max(0.0F, ToTwips(canvas.height()) - padTop));
}

// The panes are where the toolbar has left room for them, their text in the middle of its height.
void QtEditorSurface::PlacePanes() {
  const auto place = [&](QtLabel& label, std::u16string_view key) {
    const QRect room = m_Toolbar->RectOf(key);
    const float height = std::min(TextHeight(), ToTwips(room.height()));
    label.Move(ToTwips(room.left()), ToTwips(room.top()) + (ToTwips(room.height()) - height) / 2,
               ToTwips(room.width()), height);
  };
  place(*m_PositionLabel, u"linecol");
  place(*m_LanguageLabel, u"lang");
}

void QtEditorSurface::FillPopup() {
  const QWidget& popup = *m_Popup->Native();
  m_PopupList->Move(0, 0, ToTwips(popup.width()), ToTwips(popup.height()));
  m_Grip->move(popup.width() - m_Grip->width(), popup.height() - m_Grip->height());
  m_Grip->raise();
}

float QtEditorSurface::TextWidth(const Text& text) const {
  constexpr int kMargin = 4;  // pixels
  return ToTwips(m_PopupTip->Native()->fontMetrics().horizontalAdvance(ToQString(text)) + kMargin);
}

float QtEditorSurface::TextHeight() const { return ToTwips(m_Surface.Canvas().fontMetrics().height()); }

void QtEditorSurface::SetPopupSizable(bool sizable) {
  m_Surface.Canvas();
  m_Grip->setVisible(sizable);
  if (sizable) m_Grip->raise();
}

void QtEditorSurface::SetTimer(bool runs) {
  if (runs)
    m_Timer.start();
  else
    m_Timer.stop();
}

bool QtEditorSurface::IsPopupFocused() const {
  const QWidget* const focused = QApplication::focusWidget();
  const QWidget* const popup = m_Popup->Native();
  return focused && popup && (focused == popup || popup->isAncestorOf(focused));
}

ScreenRect QtEditorSurface::HostFrame() const {
  const QRect frame = m_Surface.Canvas().window()->frameGeometry();
  constexpr int kTwips = static_cast<int>(kTwipsPerPixel);
  return {frame.left() * kTwips, frame.top() * kTwips, (frame.left() + frame.width()) * kTwips,
          (frame.top() + frame.height()) * kTwips};
}

void QtEditorSurface::FocusHost() { m_Surface.Canvas().window()->activateWindow(); }

std::optional<SearchRequest> QtEditorSurface::AskSearch(const Text& text) {
  if (!m_Find) m_Find = new FindDialog(m_Surface.Canvas().window());
  if (!text.IsEmpty()) m_Find->SetSearched(text);
  const QPointer<FindDialog> open = m_Find;
  open->exec();
  if (!open) return std::nullopt;
  return open->Request();
}

void QtEditorSurface::UnloadSearch() { delete m_Find.data(); }

void QtEditorSurface::ShowOptions(SyntaxOptions& options) {
  QWidget& canvas = m_Surface.Canvas();
  RunDialog(new OptionsDialog(canvas.window(), options), canvas, [&](OptionsDialog&) { options.Apply(); });
}

void QtEditorSurface::TellPropertyChanged(std::u16string_view name) {
  Q_EMIT KeptPropertyChanged(ToQString(name));
}

Ref<Widget> QtEditorSurface::OwnWidget(std::u16string_view name) const {
  for (Widget* widget : {static_cast<Widget*>(m_Toolbar.get()), static_cast<Widget*>(m_ControlsCombo.get()),
                         static_cast<Widget*>(m_EventsCombo.get()), static_cast<Widget*>(m_Pad.get()),
                         static_cast<Widget*>(m_PositionLabel.get()),
                         static_cast<Widget*>(m_LanguageLabel.get()), static_cast<Widget*>(m_Popup.get()),
                         static_cast<Widget*>(m_PopupList.get()), static_cast<Widget*>(m_PopupTip.get())})
    if (EqualsNoCase(widget->Name(), name)) return Ref<Widget>(widget);
  return nullptr;
}

}  // namespace cardwright::qt
