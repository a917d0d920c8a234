#include "cardwright/qt/selectors/QtFontSelector.h"

#include <QApplication>
#include <QResizeEvent>
#include <algorithm>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/ValueTemplate.h"
#include "cardwright/qt/dialogs/FontChoice.h"
#include "cardwright/qt/selectors/ChoiceButton.h"
#include "cardwright/qt/selectors/FontSample.h"
#include "cardwright/qt/selectors/GroundColor.h"
#include "cardwright/qt/selectors/SelectorBackground.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/FieldKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kFontSelector =
    MakeFieldKind(u"FontSelector", MouseUse::LeftButton, ClickSource::MouseRelease);

}  // namespace

/// Lays out the sample and the button, which keeps a usual height in a tall box.
class QtFontSelector::Box final : public Ground {
 public:
  Box(QWidget* parent)
      : Ground(parent), sample(new FontSample(this)), button(new ChoiceButton(*this, *sample)) {
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
    : QtWidget(kFontSelector, place),
      m_Box(new Box(place.parent)),
      m_Sample(m_Box->sample),
      m_Button(m_Box->button) {
  Adopt(*m_Box);
  WatchPart(*m_Sample);
  WatchPart(*m_Button);
  m_Shown = m_Font->Values();
  m_Sample->SetValues(m_Shown);
  m_Sample->onChoose = [this] { Choose(); };
  QObject::connect(m_Button, &QToolButton::clicked, this, [this] { Choose(); });
}

QWidget* QtFontSelector::Part(std::u16string_view name) const {
  if (!Native()) return nullptr;
  if (EqualsNoCase(name, u"edit")) return m_Sample;
  return EqualsNoCase(name, u"button") ? m_Button : nullptr;
}

bool QtFontSelector::IsClickedBy(const QWidget& part) const { return m_IsLocked || &part != m_Button; }

void QtFontSelector::CollectColors(QPalette& own, const QPalette& inherited) const {
  WidgetCore::CollectColors(own, inherited);
  CollectGround(own, inherited, m_BackColorBkg);
}

Text QtFontSelector::DisplayText() const {
  RequireAlive();
  return {};
}

void QtFontSelector::SetDisplayText(const Text& /*text*/) { RequireAlive(); }

bool QtFontSelector::IsLocked() const {
  RequireAlive();
  return m_IsLocked;
}

void QtFontSelector::SetLocked(bool locked) {
  RequireAlive();
  m_IsLocked = locked;
}

void QtFontSelector::SetFont(Ref<Font> font) {
  const Ref<Widget> keepAlive(&Self());
  ShareFont(std::move(font));
  if (Native()) TellChange();
}

void QtFontSelector::OnFontChanged(const Font& font) {
  const Ref<Widget> keepAlive(&Self());
  WidgetCore::OnFontChanged(font);
  if (Native()) TellChange();
}

/// Two families that are not installed look the same and still are not the same font.
void QtFontSelector::TellChange() {
  if (m_Font->Values() == m_Shown) return;
  m_Shown = m_Font->Values();
  m_Sample->SetValues(m_Shown);
  NotifyChange();
}

float QtFontSelector::HeightFor(float height) const {
  if (!m_AutoSizes) return height;
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

void QtFontSelector::Choose() {
  if (m_IsLocked) return;
  // Handlers, or whatever runs while the dialog is open, may take the widget away.
  const Ref<Widget> keepAlive(&Self());
  const SurfaceState::Handling handling(*m_Place.state);
  Notify([](WidgetListener& listener) { listener.OnBeforeButtonClick(); });
  if (!Native()) return;
  Attempt([&] {
    const auto chosen = ChooseFont(*m_Box, ToQString(m_Title), m_Font->Values());
    const Ref<Font> font = m_Font;
    if (Native() && chosen) font->Assign(*chosen);
  });
  if (Native()) Notify([](WidgetListener& listener) { listener.OnAfterButtonClick(); });
}

OleColor QtFontSelector::BackColorBkg() const {
  RequireAlive();
  return m_BackColorBkg;
}

void QtFontSelector::SetBackColorBkg(OleColor color) {
  RequireAlive();
  m_BackColorBkg = color;
  ApplyColors();
}

Text QtFontSelector::Title() const {
  RequireAlive();
  return m_Title;
}

void QtFontSelector::SetTitle(const Text& title) {
  RequireAlive();
  m_Title = title;
}

std::int32_t QtFontSelector::BorderStyle() const {
  RequireAlive();
  return m_Sample->HasBorder() ? 1 : 0;
}

void QtFontSelector::SetBorderStyle(std::int32_t style) {
  RequireAlive();
  if (style < 0 || style > 1) Raise(ErrorNumber::InvalidPropertyValue);
  m_Sample->SetBorder(style == 1);
  FollowFont();
}

bool QtFontSelector::AutoSizes() const {
  RequireAlive();
  return m_AutoSizes;
}

void QtFontSelector::SetAutoSize(bool on) {
  RequireAlive();
  m_AutoSizes = on;
  FollowFont();
}

Text QtFontSelector::Value(const Text& mask) const {
  RequireAlive();
  const QColor color = ToQColor(m_State.foreColor, QApplication::palette());
  return FillFontTemplate(mask, m_Font->Values(), FromQColor(color));
}

}  // namespace cardwright::qt
