// SPDX-License-Identifier: MIT
#include "cardwright/scripting/DictionaryKey.h"

#include <bit>
#include <cstring>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"

namespace cardwright::scripting {

namespace {

constexpr std::uint64_t kMultiplier =
    0x9E3779B97F4A7C15u;           // 2^64 over the golden ratio: odd, its bits well mixed
constexpr std::size_t kChunk = 4;  // characters in eight bytes

std::uint64_t Mix(std::uint64_t hash, std::uint64_t chunk) noexcept {
  return (std::rotl(hash, 23) ^ chunk) * kMultiplier;
}

// Only the upper bits of a product depend on all bits of its factors.
std::uint32_t Finish(std::uint64_t hash) noexcept {
  hash = (hash ^ (hash >> 32)) * kMultiplier;
  return static_cast<std::uint32_t>(hash >> 32);
}

std::uint64_t ExactChunk(const char16_t* characters) noexcept {
  std::uint64_t chunk;
  std::memcpy(&chunk, characters, sizeof chunk);
  return chunk;
}

std::uint64_t FoldedChunk(const char16_t* characters) noexcept {
  std::uint64_t chunk = 0;
  for (std::size_t i = 0; i < kChunk; ++i) chunk = chunk << 16 | ToLower(characters[i]);
  return chunk;
}

template <std::uint64_t (*ReadChunk)(const char16_t*) noexcept>
std::uint32_t HashOfText(std::u16string_view text) noexcept {
  std::uint64_t hash = text.size() * kMultiplier;
  const char16_t* at = text.data();
  std::size_t left = text.size();
  for (; left >= kChunk; left -= kChunk, at += kChunk) hash = Mix(hash, ReadChunk(at));
  if (left != 0) {
    char16_t tail[kChunk] = {};
    for (std::size_t i = 0; i < left; ++i) tail[i] = at[i];
    hash = Mix(hash, ReadChunk(tail));
  }
  return Finish(hash);
}

std::uint32_t HashOfNumber(double number) noexcept {
  return Finish(std::bit_cast<std::uint64_t>(number + 0.0) * kMultiplier);  // the sum makes -0 the plain 0
}

bool IsWholeNumber(const Variant& value) noexcept {
  return value.Type() == VarType::Long || value.Type() == VarType::Integer || value.Type() == VarType::Byte;
}

bool IsNumber(const Variant& value) noexcept {
  switch (value.Type()) {
    case VarType::Byte:
    case VarType::Integer:
    case VarType::Long:
    case VarType::Single:
    case VarType::Double:
    case VarType::Currency:
    case VarType::Decimal: return true;
    default: return false;
  }
}

// By bits, so that NaN equals itself and can be found again.
bool IsSameNumber(double a, double b) noexcept {
  return std::bit_cast<std::uint64_t>(a + 0.0) == std::bit_cast<std::uint64_t>(b + 0.0);
}

bool AreSameNumbers(const Variant& a, const Variant& b) noexcept {
  if (IsWholeNumber(a) && IsWholeNumber(b)) return a.Long() == b.Long();
  // Amounts may differ by less than the precision of a Double.
  if (a.Type() == VarType::Currency && b.Type() == VarType::Currency) {
    return a.CurrencyValue().tenThousandths == b.CurrencyValue().tenThousandths;
  }
  return IsNumber(b) && IsSameNumber(ToDouble(a), ToDouble(b));
}

bool AreSameTexts(std::u16string_view a, std::u16string_view b, KeyCase keyCase) noexcept {
  if (a.size() != b.size()) return false;
  if (a.data() == b.data() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0) return true;
  return keyCase == KeyCase::Ignored && EqualsNoCase(a, b);
}

}  // namespace

std::uint32_t HashOfKey(const Variant& key, KeyCase keyCase) {
  switch (key.Type()) {
    case VarType::String:
      return keyCase == KeyCase::Matters ? HashOfText<ExactChunk>(key.StringView())
                                         : HashOfText<FoldedChunk>(key.StringView());
    case VarType::Byte:
    case VarType::Integer:
    case VarType::Long: return HashOfNumber(key.Long());
    case VarType::Object:
      return Finish(static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(key.ObjectPtr())) *
                    kMultiplier);
    case VarType::Empty:
    case VarType::Null: return static_cast<std::uint32_t>(key.Type());
    case VarType::Boolean: return key.Boolean() ? 3 : 2;
    default:
      if (key.Type() != VarType::Date && !IsNumber(key)) Raise(ErrorNumber::InvalidCall);
      return HashOfNumber(ToDouble(key));
  }
}

bool IsSameKey(const Variant& a, const Variant& b, KeyCase keyCase) noexcept {
  if (a.IsString() && b.IsString()) return AreSameTexts(a.StringView(), b.StringView(), keyCase);
  if (IsNumber(a)) return AreSameNumbers(a, b);
  if (a.Type() != b.Type()) return false;
  switch (a.Type()) {
    case VarType::Date: return IsSameNumber(a.Double(), b.Double());
    case VarType::Boolean: return a.Boolean() == b.Boolean();
    case VarType::Object: return a.ObjectPtr() == b.ObjectPtr();
    default: return true;  // Empty and Null have one value each
  }
}

}  // namespace cardwright::scripting
