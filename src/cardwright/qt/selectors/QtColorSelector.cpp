// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/QtColorSelector.h"

#include <QApplication>
#include <QColorDialog>
#include <QResizeEvent>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/ValueTemplate.h"
#include "cardwright/qt/dialogs/RunDialog.h"
#include "cardwright/qt/selectors/ColorSwatch.h"
#include "cardwright/qt/selectors/SelectorBackground.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kColorSelector = {.typeName = u"ColorSelector",
                                       .backColor = ToOleColor(SystemColor::ButtonFace),
                                       .foreColor = ToOleColor(SystemColor::ButtonText),
                                       .backRole = QPalette::Window,
                                       .foreRole = QPalette::NoRole,
                                       .isTransparent = false,
                                       .mouse = MouseUse::LeftButton,
                                       .click = ClickSource::MouseRelease};

/// The colour chosen; invalid where it was cancelled or the dialog ended with its window.
QColor ChooseColor(QWidget& owner, const QString& title, const QColor& present) {
  auto* const dialog = new QColorDialog(present, owner.window());
  if (!title.isEmpty()) dialog->setWindowTitle(title);
  QColor chosen;
  RunDialog(dialog, owner, [&](const QColorDialog& accepted) { chosen = accepted.selectedColor(); });
  return chosen;
}

}  // namespace

/// The swatch, with a narrow edge around it where the back colour is to be seen; the edge belongs to the
/// button.
class QtColorSelector::Box final : public SelectorBackground {
 public:
  Box(QWidget* parent) : SelectorBackground(parent), swatch(new ColorSwatch(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(swatch);
  }

  ColorSwatch* const swatch;

  void SetEdge(bool shown) {
    m_Edge = shown ? 2 : 0;
    LayOut();
  }

 protected:
  void resizeEvent(QResizeEvent* /*event*/) override { LayOut(); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) swatch->click();
  }

 private:
  void LayOut() { swatch->setGeometry(rect().adjusted(m_Edge, m_Edge, -m_Edge, -m_Edge)); }

  int m_Edge = 0;
};

QtColorSelector::QtColorSelector(WidgetPlace place)
    : QtDialogSelector(kColorSelector, place), m_Box(new Box(place.parent)), m_Swatch(m_Box->swatch) {
  Adopt(*m_Box);
  WatchPart(*m_Swatch);
  QObject::connect(m_Swatch, &QAbstractButton::clicked, this, [this] { Choose(); });
}

QWidget* QtColorSelector::Part(std::u16string_view name) const {
  return Native() && EqualsNoCase(name, u"button") ? m_Swatch : nullptr;
}

void QtColorSelector::SetBackColor(OleColor color) {
  QtWidget::SetBackColor(color);
  m_Box->SetEdge(color != Kind().backColor);
}

Text QtColorSelector::DisplayText() const {
  RequireAlive();
  return {};
}

void QtColorSelector::SetDisplayText(const Text& /*text*/) { RequireAlive(); }

void QtColorSelector::Choose() {
  if (m_IsLocked) return;
  // Whatever runs while the dialog is open may take the widget away.
  const HandlerScope scope(*this);
  const QColor chosen = ChooseColor(*m_Box, ToQString(m_Title), ToQColor(Color(), QApplication::palette()));
  if (!Native()) return;
  if (chosen.isValid()) m_Swatch->SetColor(FromQColor(chosen));
  NotifyClick();
}

OleColor QtColorSelector::Color() const { return Live(m_Swatch)->Color(); }

void QtColorSelector::SetColor(OleColor color) { Live(m_Swatch)->SetColor(color); }

std::int32_t QtColorSelector::BorderStyle() const { return Live(m_Swatch)->HasBorder() ? 1 : 0; }

void QtColorSelector::SetBorderStyle(std::int32_t style) {
  RequireAlive();
  if (style < 0 || style > 1) Raise(ErrorNumber::InvalidPropertyValue);
  m_Swatch->SetBorder(style == 1);
}

Text QtColorSelector::Value(const Text& mask) const {
  return FillColorTemplate(mask, FromQColor(ToQColor(Live(m_Swatch)->Color(), QApplication::palette())));
}

}  // namespace cardwright::qt
