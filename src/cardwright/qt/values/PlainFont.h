#pragma once

#include <QApplication>
#include <QFont>

namespace cardwright::qt {

/// The application's font for what stays as it is beside text in a font of its own. Every property of it is
/// said aloud, or the toolkit would take over those of that text.
inline QFont PlainFont() {
  QFont font = QApplication::font();
  font.setResolveMask(QFont::AllPropertiesResolved);
  return font;
}

}  // namespace cardwright::qt
