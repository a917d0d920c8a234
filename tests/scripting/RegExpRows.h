// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/RegExp.h"
#include "cardwright/scripting/RegExpMatches.h"

namespace cardwright::scripting {

inline bool Has(std::string_view flags, char flag) { return flags.find(flag) != std::string_view::npos; }

/// An expression with flags of "g", "i" and "m".
inline Ref<RegExp> Make(std::u16string_view pattern, std::string_view flags) {
  auto expression = MakeRef<RegExp>();
  expression->SetPattern(pattern);
  expression->SetGlobal(Has(flags, 'g'));
  expression->SetIgnoreCase(Has(flags, 'i'));
  expression->SetMultiLine(Has(flags, 'm'));
  return expression;
}

inline std::string ShowMatch(RegExpMatch& match) {
  std::string result = std::to_string(match.FirstIndex()) + ':' + match.Value().String().ToUtf8();
  const Ref<RegExpSubMatches> groups = match.SubMatches();
  for (std::int32_t i = 0; i < groups->Count(); ++i) {
    const Variant value = groups->Item(i);
    result += (i == 0 ? "(" : "|") + (value.IsEmpty() ? "~" : value.String().ToUtf8());
  }
  return groups->Count() > 0 ? result + ')' : result;
}

/// Each match as INDEX:VALUE(GROUP|GROUP), ~ being a group that took no part; "-" for none, "error N" for an
/// error.
inline std::string Matches(std::u16string_view pattern, std::string_view flags, std::u16string_view text) {
  try {
    const auto matches = Make(pattern, flags)->Execute(text);
    std::string result;
    for (std::int32_t i = 0; i < matches->Count(); ++i) {
      result += (i == 0 ? "" : " ") + ShowMatch(*matches->Item(i));
    }
    return matches->Count() == 0 ? "-" : result;
  } catch (const Error& error) {
    return "error " + std::to_string(error.Number());
  }
}

inline std::string Replaced(std::u16string_view pattern, std::string_view flags, std::u16string_view text,
                            std::u16string_view replacement) {
  try {
    return Make(pattern, flags)->Replace(text, replacement).ToUtf8();
  } catch (const Error& error) {
    return "error " + std::to_string(error.Number());
  }
}

struct Row {
  std::u16string_view pattern;
  std::string_view flags;
  std::u16string_view text;
  std::string_view expected;
};

inline void CheckRows(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    SCOPED_TRACE(Text(row.pattern).ToUtf8() + " /" + std::string(row.flags) + " on " +
                 Text(row.text).ToUtf8());
    EXPECT_EQ(Matches(row.pattern, row.flags, row.text), row.expected);
  }
}

struct ReplaceRow {
  std::u16string_view pattern;
  std::string_view flags;
  std::u16string_view text;
  std::u16string_view replacement;
  std::string_view expected;
};

inline void CheckRows(std::initializer_list<ReplaceRow> rows) {
  for (const ReplaceRow& row : rows) {
    SCOPED_TRACE(Text(row.pattern).ToUtf8() + " by " + Text(row.replacement).ToUtf8());
    EXPECT_EQ(Replaced(row.pattern, row.flags, row.text, row.replacement), row.expected);
  }
}

}  // namespace cardwright::scripting
