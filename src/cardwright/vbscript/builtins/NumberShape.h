#pragma once

#include <cstdint>
#include <string>

#include "cardwright/automation/DecimalDigits.h"
#include "cardwright/automation/Locale.h"

namespace cardwright::vbscript {

/// How the digits of a number are set.
struct NumberShape {
  int decimals = 2;  ///< digits behind the separator, of which there is none for 0
  bool leadingZero = true;
  bool grouped = true;
};

/// The number without its sign, rounded half away from zero, with the locale's separators.
std::u16string ShapeNumber(DecimalDigits number, const NumberShape& shape, const Locale& locale);

}  // namespace cardwright::vbscript
