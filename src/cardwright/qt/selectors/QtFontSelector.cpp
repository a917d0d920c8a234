// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/QtFontSelector.h"

#include <QApplication>
#include <QResizeEvent>
#include <algorithm>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/ValueTemplate.h"
#include "cardwright/qt/dialogs/FontChoice.h"
#include "cardwright/qt/selectors/ChoiceButton.h"
#include "cardwright/qt/selectors/FontSample.h"
#include "cardwright/qt/selectors/SelectorBackground.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kFontSelector =
    MakeFieldKind(u"FontSelector", MouseUse::LeftButton, ClickSource::MouseRelease);

}  // namespace

/// Lays out the sample and the button, which keeps a usual height in a tall box.
class QtFontSelector::Box final : public SelectorBackground {
 public:
  Box(QWidget* parent)
      : SelectorBackground(parent), sample(new FontSample(this)), button(new ChoiceButton(*this, *sample)) {
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(sample);
    button->setToolTip(QToolButton::tr("Choose a font (F4)"));
    button->setAccessibleName(QToolButton::tr("Choose a font"));
  }

  FontSample* const sample;
  ChoiceButton* const button;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    constexpr int kGap = 2;
    const QSize size = event->size();
    const int side = std::min(ChoiceButton::WidthFor(size.height()), size.width());
    sample->setGeometry(0, 0, std::max(0, size.width() - side - kGap), size.height());
    const int high = std::min(size.height(), side);
    button->setGeometry(size.width() - side, (size.height() - high) / 2, side, high);
  }
};

QtFontSelector::QtFontSelector(WidgetPlace place)
    : QtButtonSelector(kFontSelector, place), m_Box(new Box(place.parent)), m_Sample(m_Box->sample) {
  Adopt(*m_Box, *m_Box->sample, *m_Box->button);
  m_Shown = m_Font->Values();
  m_Sample->SetValues(m_Shown);
  m_Sample->onChoose = [this] { Choose(); };
}

Text QtFontSelector::DisplayText() const {
  RequireAlive();
  return {};
}

void QtFontSelector::SetDisplayText(const Text& /*text*/) { RequireAlive(); }

void QtFontSelector::SetFont(Ref<Font> font) {
  const Ref<Widget> keepAlive(&Self());
  QtWidget::SetFont(std::move(font));
  if (Native()) NotifyFontChange();
}

void QtFontSelector::OnFontChanged(const Font& font) {
  const Ref<Widget> keepAlive(&Self());
  WidgetCore::OnFontChanged(font);
  if (Native()) NotifyFontChange();
}

/// Two families that are not installed look the same and still are not the same font.
void QtFontSelector::NotifyFontChange() {
  if (m_Font->Values() == m_Shown) return;
  m_Shown = m_Font->Values();
  m_Sample->SetValues(m_Shown);
  NotifyChange();
}

float QtFontSelector::HeightFor(float height) const {
  if (!m_AutoSize) return height;
  return PixelsToScale(static_cast<float>(m_Sample->FittingHeight()), Scale());
}

/// Takes the height that the font needs, where it is to follow it.
void QtFontSelector::FollowFont() {
  const float height = HeightFor(m_State.height);
  if (height == m_State.height) return;
  m_State.height = height;
  ApplyGeometry();
  Notify([](WidgetListener& listener) { listener.OnResize(); });
}

void QtFontSelector::RunDialog() {
  BestEffort([&] {
    const auto chosen = ChooseFont(*m_Box, ToQString(m_Title), m_Font->Values());
    const Ref<Font> font = m_Font;
    if (Native() && chosen) font->Assign(*chosen);
  });
}

std::int32_t QtFontSelector::BorderStyle() const { return Live(m_Sample)->HasBorder() ? 1 : 0; }

void QtFontSelector::SetBorderStyle(std::int32_t style) {
  RequireAlive();
  if (style < 0 || style > 1) Raise(ErrorNumber::InvalidPropertyValue);
  m_Sample->SetBorder(style == 1);
  FollowFont();
}

bool QtFontSelector::AutoSize() const { return Live(m_AutoSize); }

void QtFontSelector::SetAutoSize(bool on) {
  Live(m_AutoSize) = on;
  FollowFont();
}

Text QtFontSelector::Value(const Text& mask) const {
  const QColor color = ToQColor(Live(m_State).foreColor, QApplication::palette());
  return FillFontTemplate(mask, m_Font->Values(), FromQColor(color));
}

}  // namespace cardwright::qt
