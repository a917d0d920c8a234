// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include "cardwright/automation/Text.h"

namespace cardwright::robot {

/// Records the text of the tooltip that a designer shows during a drag, and that is gone with the drag.
class TooltipRecorder final : public QObject {
 public:
  TooltipRecorder();

  /// The tooltip shown last.
  const Text& Last() const noexcept { return m_Last; }

 private:
  bool eventFilter(QObject* target, QEvent* event) override;

  Text m_Last;
};

}  // namespace cardwright::robot
