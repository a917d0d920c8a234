// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <optional>

#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// Divides the typing of a script into steps: a step ends with its line, after a long pause, and where the
/// position or the language changes.
class Typing {
 public:
  /// Whether the next edit continues the one before.
  bool Continues(const Script& before, const Script& after);

 private:
  QElapsedTimer m_SinceLast;
  std::optional<std::size_t> m_Line;  // of the last edit; none if it ended the line
};

}  // namespace cardwright::workbench
