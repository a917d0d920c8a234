// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/scripting/RegExpPattern.h"
#include "cardwright/scripting/SearchBudget.h"

struct pcre2_real_code_16;
struct pcre2_real_match_data_16;

namespace cardwright::scripting {

/// End of a group that took no part in a match, and its start.
inline constexpr std::size_t kUnsetGroup = ~std::size_t{0};

/// A pattern ready for searching.
class RegExpProgram {
 public:
  /// Errors as TranslatePattern; 7 also where the program itself is too large.
  RegExpProgram(std::u16string_view pattern, RegExpFlags flags);

  /// Number of groups.
  std::size_t Groups() const noexcept { return m_Groups; }

  /// The first match in `text` that starts at `from` or after it: start and end of the whole, then of each
  /// group. Nothing where there is none. Good until the next search. Error 17 where the search would take too
  /// long or too much memory.
  std::span<const std::size_t> Search(std::u16string_view text, std::size_t from, SearchBudget& budget);

 private:
  struct Free {
    void operator()(pcre2_real_code_16* code) const noexcept;
    void operator()(pcre2_real_match_data_16* data) const noexcept;
  };
  using MatchData = std::unique_ptr<pcre2_real_match_data_16, Free>;

  MatchData NewMatchData() const;
  void CompileIfWorthwhile(std::size_t textUnits);
  int SearchWithMoreMemory(std::u16string_view text, std::size_t from, SearchBudget& budget);

  std::unique_ptr<pcre2_real_code_16, Free> m_Code;
  MatchData m_Data;
  std::size_t m_Groups = 0;
  std::size_t m_Searched = 0;
  bool m_IsCompiled = false;
  MemoryShare m_Memory;
};

}  // namespace cardwright::scripting
