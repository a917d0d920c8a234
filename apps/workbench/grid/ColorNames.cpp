// SPDX-License-Identifier: MIT
#include "workbench/grid/ColorNames.h"

#include <QApplication>
#include <QCoreApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <limits>

#include "cardwright/qt/values/Colors.h"

namespace cardwright::workbench {
namespace {

constexpr OleColor System(std::uint32_t index) { return static_cast<OleColor>(0x80000000u | index); }

constexpr NamedColor kSystem[] = {
    {System(15), QT_TRANSLATE_NOOP("Colors", "Button face")},
    {System(18), QT_TRANSLATE_NOOP("Colors", "Button text")},
    {System(5), QT_TRANSLATE_NOOP("Colors", "Window background")},
    {System(8), QT_TRANSLATE_NOOP("Colors", "Window text")},
    {System(13), QT_TRANSLATE_NOOP("Colors", "Highlight")},
    {System(14), QT_TRANSLATE_NOOP("Colors", "Highlight text")},
    {System(17), QT_TRANSLATE_NOOP("Colors", "Disabled text")},
    {System(24), QT_TRANSLATE_NOOP("Colors", "Tooltip")},
    {System(23), QT_TRANSLATE_NOOP("Colors", "Tooltip text")},
    {System(16), QT_TRANSLATE_NOOP("Colors", "Button shadow")},
    {System(20), QT_TRANSLATE_NOOP("Colors", "Button highlight")},
    {System(21), QT_TRANSLATE_NOOP("Colors", "Dark shadow")},
    {System(22), QT_TRANSLATE_NOOP("Colors", "Light edge")},
    {System(12), QT_TRANSLATE_NOOP("Colors", "Application workspace")},
    {System(1), QT_TRANSLATE_NOOP("Colors", "Desktop")},
    {System(2), QT_TRANSLATE_NOOP("Colors", "Active title bar")},
    {System(9), QT_TRANSLATE_NOOP("Colors", "Active title text")},
    {System(3), QT_TRANSLATE_NOOP("Colors", "Inactive title bar")},
    {System(19), QT_TRANSLATE_NOOP("Colors", "Inactive title text")},
    {System(4), QT_TRANSLATE_NOOP("Colors", "Menu")},
    {System(7), QT_TRANSLATE_NOOP("Colors", "Menu text")},
    {System(0), QT_TRANSLATE_NOOP("Colors", "Scroll bar")},
    {System(6), QT_TRANSLATE_NOOP("Colors", "Window frame")},
    {System(10), QT_TRANSLATE_NOOP("Colors", "Active border")},
    {System(11), QT_TRANSLATE_NOOP("Colors", "Inactive border")},
};

/// Draws the sample for each size, because system colours may change.
class SampleEngine final : public QIconEngine {
 public:
  explicit SampleEngine(OleColor color) : m_Color(color) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    painter->setPen(palette.color(QPalette::WindowText));
    painter->setBrush(qt::ToQColor(m_Color, palette));
    painter->drawRect(QRectF(rect).adjusted(1.5, 1.5, -1.5, -1.5));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect({}, size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new SampleEngine(m_Color); }

 private:
  OleColor m_Color;
};

QString Translated(const NamedColor& color) { return QCoreApplication::translate("Colors", color.name); }

}  // namespace

std::span<const NamedColor> SystemColors() noexcept { return kSystem; }

QString ColorName(OleColor color) {
  for (const NamedColor& known : kSystem)
    if (known.color == color) return Translated(known);
  if (IsSystemColor(color)) return QString::number(color);
  return qt::ToQColor(color, QApplication::palette()).name().toUpper();
}

std::optional<OleColor> ColorOf(const QString& name) {
  const QString text = name.trimmed();
  for (const NamedColor& known : kSystem)
    if (text.compare(Translated(known), Qt::CaseInsensitive) == 0) return known.color;
  // Projects store system colours as negative numbers, other tools as positive ones with the same bits.
  bool isNumber = false;
  const qint64 number = text.toLongLong(&isNumber);
  if (isNumber && number >= std::numeric_limits<std::int32_t>::min() &&
      number <= std::numeric_limits<std::uint32_t>::max())
    return static_cast<OleColor>(number);
  const QColor color(text);
  if (!color.isValid() || color.alpha() != 255) return std::nullopt;  // forms have no transparency
  return qt::FromQColor(color);
}

QIcon ColorSample(OleColor color) { return QIcon(new SampleEngine(color)); }

}  // namespace cardwright::workbench
