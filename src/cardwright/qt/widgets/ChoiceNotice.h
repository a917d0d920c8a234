// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace cardwright::qt {

/// Says that a list has another entry chosen than before, ahead of the list's own click.
class ChoiceNotice final : public QObject {
  Q_OBJECT
 Q_SIGNALS:
  void Changed();
};

}  // namespace cardwright::qt
