// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/ChoiceButton.h"

#include <QKeyEvent>
#include <algorithm>

#include "cardwright/qt/values/Fonts.h"

namespace cardwright::qt {

ChoiceButton::ChoiceButton(QWidget& parent, QWidget& field) : QToolButton(&parent) {
  setText(QStringLiteral("\u2026"));
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(&field);
  // Whatever font the field shows, the button's points stay as they are.
  setFont(PlainFont());
}

int ChoiceButton::WidthFor(int height) {
  constexpr int kNarrowest = 19, kWidest = 28;
  return std::clamp(height, kNarrowest, kWidest);
}

bool IsChoiceKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
  return (event.key() == Qt::Key_F4 && held == Qt::NoModifier) ||
         (event.key() == Qt::Key_Down && held == Qt::AltModifier);
}

}  // namespace cardwright::qt
