// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/Context.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/StopSignal.h"

namespace cardwright::vbscript {

namespace {

// Takes some dozens of microseconds.
constexpr std::size_t kLongWork = std::size_t{1} << 16;

}  // namespace

Text Context::Character(char16_t unit) {
  const std::u16string_view character(&unit, 1);
  if (unit >= m_Characters.size()) return Text(character);
  Text& shared = m_Characters[unit];
  if (shared.IsEmpty()) shared = Text(character);
  return shared;
}

void Context::CheckTextSize(std::size_t units) const {
  if (units > maxTextUnits) Raise(ErrorNumber::OutOfStringSpace);
  ChargeWork(units);
}

void Context::ChargeWork(std::size_t units) noexcept {
  if (units >= kLongWork) StopSignal::IsRaised();
}

}  // namespace cardwright::vbscript
