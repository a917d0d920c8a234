// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <utility>
#include <vector>

#include "cardwright/platform/Font.h"

namespace cardwright::qt {

/// The toolkit's fonts for the values of font objects. A form uses a handful, so equal values give the same
/// shared QFont, which widgets compare and inherit without looking inside.
class FontCache {
 public:
  /// A family that is not installed gives the application's own, at the size asked for.
  QFont Get(const FontValues& values);

 private:
  std::vector<std::pair<FontValues, QFont>> m_Fonts;
};

/// The application's font, for what keeps it besides text in a font of its own. Every property of it is set,
/// as the toolkit would take those that are not from that text.
QFont PlainFont();

}  // namespace cardwright::qt
