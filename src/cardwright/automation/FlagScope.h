// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright {

/// Sets a flag for a scope; its end restores what the flag was.
class FlagScope {
 public:
  explicit FlagScope(bool& flag) noexcept : m_Flag(flag), m_Was(flag) { flag = true; }
  ~FlagScope() { m_Flag = m_Was; }
  FlagScope(const FlagScope&) = delete;
  FlagScope& operator=(const FlagScope&) = delete;

 private:
  bool& m_Flag;
  const bool m_Was;
};

}  // namespace cardwright
