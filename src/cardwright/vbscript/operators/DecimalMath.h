// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/operators/Operators.h"

/// Arithmetic on Decimal values, which scripts meet only as values of host objects. Results are exact where
/// 96 bits and 28 decimals hold them, else rounded half to even; error 6 beyond 96 bits.
namespace cardwright::vbscript {

bool IsZero(const Decimal& value) noexcept;
Decimal AddDecimals(const Decimal& a, const Decimal& b);
Decimal MultiplyDecimals(const Decimal& a, const Decimal& b);
/// `b` is not zero.
Decimal DivideDecimals(const Decimal& a, const Decimal& b);
/// To that many decimals, half to even.
Decimal RoundDecimal(const Decimal& value, int decimals);
/// The whole part, towards zero.
Decimal TruncateDecimal(const Decimal& value) noexcept;
Ordering CompareDecimals(const Decimal& a, const Decimal& b) noexcept;

}  // namespace cardwright::vbscript
