// SPDX-License-Identifier: MIT
#include "workbench/grid/PropertyText.h"

#include <QCoreApplication>
#include <QPixmap>
#include <cmath>

#include "cardwright/automation/Conversions.h"
#include "cardwright/model/CItems.h"
#include "cardwright/platform/Picture.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/grid/ColorNames.h"
#include "workbench/grid/Pictures.h"

namespace cardwright::workbench {
namespace {

struct Wording {
  Q_DECLARE_TR_FUNCTIONS(PropertyText)
};

template <class T>
const T* As(const Variant& value) {
  return value.IsObject() ? dynamic_cast<const T*>(value.ObjectPtr()) : nullptr;
}

QString FontText(const FontValues& font) {
  QString text = QStringLiteral("%1, %2 pt").arg(qt::ToQString(font.name)).arg(font.size);
  if (font.bold) text += Wording::tr(", bold");
  if (font.italic) text += Wording::tr(", italic");
  if (font.underline) text += Wording::tr(", underlined");
  if (font.strikethrough) text += Wording::tr(", struck out");
  return text;
}

QString PlainText(const Variant& value) {
  if (value.IsEmpty() || value.IsObject()) return {};
  return qt::ToQString(BestEffortOr(Text(), [&] { return ToText(value); }));
}

// A comma is accepted as decimal point. Infinity and NaN are not numbers here.
TypedValue NumberOf(const QString& text) {
  bool isNumber = false;
  const double number = QString(text).replace(u',', u'.').toDouble(&isNumber);
  if (isNumber && std::isfinite(number)) return {Variant(number), {}};
  return {{}, Wording::tr("“%1” is no number.").arg(text)};
}

TypedValue ColorValueOf(const QString& text) {
  if (const auto color = ColorOf(text)) return {Variant(*color), {}};
  return {{}, Wording::tr("“%1” is no colour. Write a name from the list, #RRGGBB, or a number.").arg(text)};
}

TypedValue FeatureTypeOf(const QString& text) {
  for (const FeatureTypeEnum type : kFeatureTypes)
    if (text == FeatureTypeName(type)) return {Variant(static_cast<std::int32_t>(type)), {}};
  return {{}, Wording::tr("“%1” is no type of features.").arg(text)};
}

}  // namespace

QString FeatureTypeName(FeatureTypeEnum type) {
  switch (type) {
    case FeatureTypeEnum::ftPoint: return Wording::tr("Points");
    case FeatureTypeEnum::ftArc: return Wording::tr("Lines");
    case FeatureTypeEnum::ftPolygon: return Wording::tr("Areas");
    case FeatureTypeEnum::ftNone: break;
  }
  return Wording::tr("(none)");
}

QString TextOf(PropertyTypeEnum type, const Variant& value) {
  using enum PropertyTypeEnum;
  switch (type) {
    case ptColor: return BestEffortOr(QString(), [&] { return ColorName(ToLong(value)); });
    case ptFont: {
      const auto* font = As<Font>(value);
      return font ? FontText(font->Values()) : QString();
    }
    case ptCollection: {
      const auto* items = As<CItems>(value);
      const int count = items ? items->Count() : 0;
      return count == 1 ? Wording::tr("1 item") : Wording::tr("%1 items").arg(count);
    }
    case ptFeatureType:
      return BestEffortOr(QString(),
                          [&] { return FeatureTypeName(static_cast<FeatureTypeEnum>(ToLong(value))); });
    case ptImage: {
      const auto* picture = As<Picture>(value);
      return picture ? Wording::tr("%1 × %2 pixels").arg(picture->Width()).arg(picture->Height())
                     : Wording::tr("(none)");
    }
    case ptBoolean:
      return BestEffortOr(false, [&] { return ToBoolean(value); }) ? QStringLiteral("True")
                                                                   : QStringLiteral("False");
    default: return PlainText(value);
  }
}

TypedValue ValueOfText(PropertyTypeEnum type, const QString& text) {
  switch (type) {
    case PropertyTypeEnum::ptColor: return ColorValueOf(text);
    case PropertyTypeEnum::ptInteger:
    case PropertyTypeEnum::ptFloat: return NumberOf(text);
    case PropertyTypeEnum::ptFeatureType: return FeatureTypeOf(text);
    default: return {Variant(qt::FromQString(text)), {}};
  }
}

QIcon SampleOf(PropertyTypeEnum type, const Variant& value) {
  if (type == PropertyTypeEnum::ptColor)
    return BestEffortOr(QIcon(), [&] { return ColorSample(ToLong(value)); });
  const auto* picture = type == PropertyTypeEnum::ptImage ? As<Picture>(value) : nullptr;
  return picture ? QIcon(QPixmap::fromImage(ImageOf(*picture))) : QIcon();
}

}  // namespace cardwright::workbench
