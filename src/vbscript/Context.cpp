#include "vbscript/Context.h"

#include "automation/Errors.h"

namespace cardwright::vbscript {

namespace {

constexpr int kOutOfStringSpace = 14;

}  // namespace

Text Context::Character(char16_t unit) {
  const std::u16string_view character(&unit, 1);
  if (unit >= m_Characters.size()) return Text(character);
  Text& shared = m_Characters[unit];
  if (shared.IsEmpty()) shared = Text(character);
  return shared;
}

void Context::CheckTextSize(std::size_t units) const {
  if (units > maxTextUnits) Raise(kOutOfStringSpace);
}

}  // namespace cardwright::vbscript
