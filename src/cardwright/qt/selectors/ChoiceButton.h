// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

namespace cardwright::qt {

/// The button with three points beside what it lets a user choose. It is no stop of its own on the
/// keyboard: a press gives the focus to `field`, whose keys open the choice too.
class ChoiceButton final : public QToolButton {
 public:
  ChoiceButton(QWidget& parent, QWidget& field);

  /// Width that looks well beside a field of that height.
  static int WidthFor(int height);
};

/// Whether a key opens a choice as it opens the list of a combo box: F4, or Alt with the down arrow.
bool IsChoiceKey(const QKeyEvent& event);

}  // namespace cardwright::qt
