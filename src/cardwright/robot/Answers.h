#pragma once

#include <deque>
#include <optional>

#include "cardwright/automation/Text.h"

namespace cardwright::robot {

/// The font that a font dialog is to give.
struct FontAnswer {
  Text name;  ///< empty to cancel
  double size = 0;
};

/// What a person will answer when asked, first come first served.
struct Answers {
  std::deque<int> boxes;
  std::deque<Text> menus;  ///< names of items; empty to dismiss
  std::deque<Text> files;  ///< paths; empty to cancel
  std::deque<int> colors;  ///< colour numbers; -1 to cancel
  std::deque<FontAnswer> fonts;
};

/// The next answer of a queue, which loses it; none where it is empty.
template <class T>
std::optional<T> TakeNext(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  std::optional<T> next(std::move(queue.front()));
  queue.pop_front();
  return next;
}

}  // namespace cardwright::robot
