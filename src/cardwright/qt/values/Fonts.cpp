// SPDX-License-Identifier: MIT
#include "cardwright/qt/values/Fonts.h"

#include <QApplication>
#include <QFontDatabase>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

QFont MakeFont(const FontValues& values) {
  QFont font = QApplication::font();
  const QString family = ToQString(values.name);
  font.setFamily(QFontDatabase::hasFamily(family) ? family : font.family());
  if (values.size > 0) font.setPointSizeF(values.size);
  font.setBold(values.bold);
  font.setItalic(values.italic);
  font.setUnderline(values.underline);
  font.setStrikeOut(values.strikethrough);
  return font;
}

}  // namespace

QFont FontCache::Get(const FontValues& values) {
  for (const auto& [known, font] : m_Fonts) {
    if (known == values) return font;
  }
  return m_Fonts.emplace_back(values, MakeFont(values)).second;
}

QFont PlainFont() {
  QFont font = QApplication::font();
  font.setResolveMask(QFont::AllPropertiesResolved);
  return font;
}

}  // namespace cardwright::qt
