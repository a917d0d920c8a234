#pragma once

#include <QElapsedTimer>
#include <optional>

#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// Tells where the typing of a script falls into steps: behind each line, behind a long pause, and where the
/// place or the language changes.
class Typing {
 public:
  /// Takes the next edit; whether it goes on with the one before.
  bool Continues(const Script& before, const Script& after);

 private:
  QElapsedTimer m_SinceLast;
  std::optional<std::size_t> m_Line;  // on which the next edit goes on; none where a line has ended
};

}  // namespace cardwright::workbench
