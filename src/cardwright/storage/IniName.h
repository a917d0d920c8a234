// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "cardwright/storage/CodePage.h"

namespace cardwright {

/// A section or key name to look for: as bytes of the page, without blanks around it, in one case. Short
/// names need no allocation.
class IniName {
 public:
  IniName(std::u16string_view text, const CodePage& page);
  IniName(const IniName&) = delete;
  IniName& operator=(const IniName&) = delete;

  std::string_view Folded() const noexcept { return m_Folded; }

  /// Hash of the name over a start value.
  std::uint32_t Hash(std::uint32_t seed) const noexcept {
    for (const char c : m_Folded) seed = Mix(seed, static_cast<unsigned char>(c));
    return seed;
  }
  /// One step of the hash (FNV-1a).
  static constexpr std::uint32_t Mix(std::uint32_t hash, unsigned char folded) noexcept {
    return (hash ^ folded) * 16777619u;
  }
  static constexpr std::uint32_t kSeed = 2166136261u;

  /// The text without blanks and tabs at both ends.
  static std::u16string_view Trim(std::u16string_view text) noexcept;

 private:
  std::array<char, 48> m_Short;
  std::string m_Long;
  std::string_view m_Folded;
};

}  // namespace cardwright
