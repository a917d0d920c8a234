// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <optional>

#include "cardwright/automation/Text.h"

namespace cardwright::robot {

/// The font to choose in a font dialog.
struct FontAnswer {
  Text name;  ///< empty to cancel
  double size = 0;
};

/// The queued answers to dialogs, first in first out.
struct Answers {
  std::deque<int> boxes;
  std::deque<Text> menus;  ///< names of items; empty to dismiss
  std::deque<Text> files;  ///< paths; empty to cancel
  std::deque<int> colors;  ///< colour numbers; -1 to cancel
  std::deque<FontAnswer> fonts;
};

/// Removes and returns the next answer of a queue; none where it is empty.
template <class T>
std::optional<T> TakeNext(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  std::optional<T> next(std::move(queue.front()));
  queue.pop_front();
  return next;
}

}  // namespace cardwright::robot
