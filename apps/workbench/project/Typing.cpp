// SPDX-License-Identifier: MIT
#include "workbench/project/Typing.h"

#include <algorithm>

#include "workbench/project/TextChange.h"

namespace cardwright::workbench {
namespace {

constexpr qint64 kLongPause = 3000;  // milliseconds

std::size_t LineOf(std::u16string_view text, std::size_t position) {
  return static_cast<std::size_t>(std::ranges::count(text.substr(0, position), u'\n'));
}

}  // namespace

bool Typing::Continues(const Script& before, const Script& after) {
  const TextChange change = ChangeBetween(before.content, after.content);
  const std::size_t line = LineOf(after.content, change.begin);
  const bool isPrompt = m_SinceLast.isValid() && m_SinceLast.elapsed() < kLongPause;
  const bool continues = isPrompt && m_Line == line && before.language == after.language;
  m_SinceLast.start();
  m_Line = LineOf(after.content, change.endAfter) == line ? std::optional(line) : std::nullopt;
  return continues;
}

}  // namespace cardwright::workbench
