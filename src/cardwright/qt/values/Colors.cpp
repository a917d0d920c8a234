// SPDX-License-Identifier: MIT
#include "cardwright/qt/values/Colors.h"

#include <QPalette>
#include <array>

namespace cardwright::qt {

namespace {

// By index. A form's background and the texts on it are the platform's "button face" and "button text"; here
// they are the window's, so that a form looks like every other window of the user's desktop.
constexpr std::array kSystemRoles = {
    QPalette::Mid,              // 0 scroll bar
    QPalette::Dark,             // 1 desktop
    QPalette::Highlight,        // 2 active title
    QPalette::Mid,              // 3 inactive title
    QPalette::Window,           // 4 menu
    QPalette::Base,             // 5 window
    QPalette::Shadow,           // 6 window frame
    QPalette::WindowText,       // 7 menu text
    QPalette::Text,             // 8 window text
    QPalette::HighlightedText,  // 9 title text
    QPalette::Window,           // 10 active border
    QPalette::Window,           // 11 inactive border
    QPalette::Mid,              // 12 application workspace
    QPalette::Highlight,        // 13
    QPalette::HighlightedText,  // 14
    QPalette::Window,           // 15 button face
    QPalette::Dark,             // 16 button shadow
    QPalette::WindowText,       // 17 grey text: the disabled one
    QPalette::WindowText,       // 18 button text
    QPalette::WindowText,       // 19 inactive title text
    QPalette::Light,            // 20 button highlight
    QPalette::Shadow,           // 21 dark shadow
    QPalette::Midlight,         // 22 light edge
    QPalette::ToolTipText,      // 23 information text
    QPalette::ToolTipBase,      // 24 information background
    QPalette::Button,           // 25, which the platform leaves out
    QPalette::Link,             // 26 hot text
    QPalette::Highlight,        // 27 active title, far end
    QPalette::Mid,              // 28 inactive title, far end
    QPalette::Highlight,        // 29 menu highlight
    QPalette::Window,           // 30 menu bar
};
constexpr std::size_t kUnusedIndex = 25;

}  // namespace

QColor ToQColor(OleColor color, const QPalette& palette) {
  if (!IsSystemColor(color)) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
  }
  const auto index = static_cast<std::size_t>(static_cast<std::uint32_t>(color) & 0x7FFFFFFFu);
  if (index >= kSystemRoles.size() || index == kUnusedIndex) return QColor(Qt::black);
  const bool grey = color == ToOleColor(SystemColor::GrayText);
  return palette.color(grey ? QPalette::Disabled : QPalette::Active, kSystemRoles[index]);
}

OleColor FromQColor(const QColor& color) noexcept {
  return Rgb(static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
             static_cast<std::uint8_t>(color.blue()));
}

}  // namespace cardwright::qt
