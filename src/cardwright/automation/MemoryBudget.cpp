// SPDX-License-Identifier: MIT
#include "cardwright/automation/MemoryBudget.h"

#include <algorithm>

#include "cardwright/automation/Errors.h"

namespace cardwright {

constinit thread_local std::size_t MemoryBudget::t_Used = 0;
constinit thread_local std::size_t MemoryBudget::t_Limit = static_cast<std::size_t>(-1);

MemoryBudget::Limit::Limit(std::size_t furtherBytes) noexcept : m_Outer(t_Limit) {
  t_Limit = std::min(t_Limit, t_Used + furtherBytes);
}

MemoryBudget::Exemption::Exemption() noexcept : m_Outer(t_Limit) { t_Limit = static_cast<std::size_t>(-1); }

void MemoryBudget::Refuse() {
  const Exemption exemption;
  Raise(ErrorNumber::OutOfMemory);
}

}  // namespace cardwright
