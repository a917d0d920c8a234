// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/code/Procedure.h"

#include <algorithm>

namespace cardwright::vbscript {

void Procedure::Complete() {
  const auto bytes = [](const auto& list) { return list.capacity() * sizeof(list[0]); };
  m_Memory.Grow(bytes(code) + bytes(constants) + bytes(symbols) + bytes(members) + bytes(marks) +
                bytes(locals));
}

const StatementMark* Procedure::MarkAt(std::size_t instruction) const noexcept {
  const auto after =
      std::upper_bound(marks.begin(), marks.end(), instruction,
                       [](std::size_t at, const StatementMark& mark) { return at < mark.start; });
  return after == marks.begin() ? nullptr : &*std::prev(after);
}

}  // namespace cardwright::vbscript
