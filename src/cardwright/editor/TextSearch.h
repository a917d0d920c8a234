// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "cardwright/editor/EditorCore.h"

namespace cardwright {

/// Directions of a search, as the dialog lists them.
enum class SearchDirection : std::int16_t { All = 0, Down = 1, Up = 2 };

/// What a search starts from; what is left out is as it was the last time.
struct SearchStep {
  Text text = {};
  std::int32_t start = -1;
  std::optional<int> options = {};
  std::optional<SearchDirection> direction = {};
};

/// Searches the text and remembers what was looked for, so that it can be looked for again.
class TextSearch {
 public:
  explicit TextSearch(EditorCore& core) : m_Core(core) {}

  /// Asks the user what to look for, and looks for it; true for a hit.
  bool Ask();
  /// Looks for the same text from the caret on; true for a hit.
  bool Again();
  bool Run(const SearchStep& step);

 private:
  std::int32_t Find(const Text& text, std::int32_t start, int options, SearchDirection direction) const;

  EditorCore& m_Core;
  Text m_LastFind;
  std::int32_t m_LastPos = 0;  // of the last hit, or where the search that failed began
  int m_LastOptions = 0;
  SearchDirection m_LastDirection = SearchDirection::All;
};

/// Texts that were looked for, the newest first, as the dialog's field lists them.
class SearchHistory {
 public:
  /// Puts a text before the others, unless it is blank or the newest already.
  void Add(const Text& text);
  const std::vector<Text>& Texts() const noexcept { return m_Texts; }

 private:
  static constexpr std::size_t kKept = 50;

  std::vector<Text> m_Texts;
};

}  // namespace cardwright
