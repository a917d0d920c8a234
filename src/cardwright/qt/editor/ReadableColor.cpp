// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/ReadableColor.h"

#include <algorithm>
#include <cmath>

namespace cardwright::qt {

namespace {

constexpr double kLeastContrast = 4.5;
constexpr int kSteps = 20;

double Linear(double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double x = Luminance(a);
  const double y = Luminance(b);
  return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

}  // namespace

QColor ReadableOn(const QColor& background, const QColor& color) {
  // Authors chose their colours on light ground; there they stay what they are.
  if (Luminance(background) > 0.5 || Contrast(background, color) >= kLeastContrast) return color;
  for (int step = 1; step <= kSteps; ++step) {
    const double share = static_cast<double>(step) / kSteps;
    const auto lighten = [&](double part) { return part + (1 - part) * share; };
    const QColor lighter = QColor::fromRgbF(static_cast<float>(lighten(color.redF())),
                                            static_cast<float>(lighten(color.greenF())),
                                            static_cast<float>(lighten(color.blueF())));
    if (Contrast(background, lighter) >= kLeastContrast) return lighter;
  }
  return Qt::white;
}

}  // namespace cardwright::qt
