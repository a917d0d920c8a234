// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/automation/Variant.h"

namespace cardwright::scripting {

/// Whether the case of a text makes another key of it.
enum class KeyCase : std::uint8_t { Matters, Ignored };

/// Equal for equal keys. Error 5 for an array or an error value, which are no keys.
std::uint32_t HashOfKey(const Variant& key, KeyCase keyCase);

/// Whether two values are the same key: numbers of any type by their value, objects by identity; a text, a
/// date, a Boolean, Empty and Null only equal their own kind.
bool IsSameKey(const Variant& a, const Variant& b, KeyCase keyCase) noexcept;

}  // namespace cardwright::scripting
