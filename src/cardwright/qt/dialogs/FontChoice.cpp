// SPDX-License-Identifier: MIT
#include "cardwright/qt/dialogs/FontChoice.h"

#include <QFontDialog>
#include <QFontInfo>

#include "cardwright/qt/dialogs/RunDialog.h"
#include "cardwright/qt/values/Fonts.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

FontValues ValuesOf(const QFont& font) {
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  return {.name = FromQString(font.family()),
          .size = ToFontSize(points),
          .bold = font.bold(),
          .italic = font.italic(),
          .underline = font.underline(),
          .strikethrough = font.strikeOut()};
}

}  // namespace

std::optional<FontValues> ChooseFont(QWidget& owner, const QString& title, const FontValues& present) {
  const QFont shown = FontCache().Get(present);
  auto* const dialog = new QFontDialog(shown, owner.window());
  if (!title.isEmpty()) dialog->setWindowTitle(title);
  const double offered = dialog->currentFont().pointSizeF();
  std::optional<QFont> font;
  RunDialog(dialog, owner, [&](const QFontDialog& accepted) { font = accepted.selectedFont(); });
  if (!font) return std::nullopt;
  FontValues chosen = ValuesOf(*font);
  if (chosen.name == FromQString(shown.family())) chosen.name = present.name;
  // The dialog offers whole sizes only.
  if (font->pointSizeF() == offered) chosen.size = present.size;
  return chosen;
}

}  // namespace cardwright::qt
