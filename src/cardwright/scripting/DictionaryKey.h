#pragma once

#include <cstdint>

#include "cardwright/automation/Variant.h"

namespace cardwright::scripting {

/// Whether the case of a text makes another key of it.
enum class KeyCase : std::uint8_t { Matters, Ignored };

/// Number that equal keys share. Error 5 for an array or an error value, which are no keys.
std::uint32_t HashOfKey(const Variant& key, KeyCase keyCase);

/// Whether two values are the same key. Numbers of any type are by their value, objects when they are one
/// object; texts, dates, Booleans, Empty and Null only ever equal their own kind.
bool IsSameKey(const Variant& a, const Variant& b, KeyCase keyCase) noexcept;

}  // namespace cardwright::scripting
