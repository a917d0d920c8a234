// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The 8-bit code page of Asc and Chr: the Western European one of the platform.
namespace cardwright::vbscript {

/// The character of a byte.
char16_t FromAnsi(std::uint8_t byte) noexcept;
/// The byte of a character; that of a question mark where the code page has none.
std::uint8_t ToAnsi(char16_t character) noexcept;

}  // namespace cardwright::vbscript
