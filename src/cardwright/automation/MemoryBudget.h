// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace cardwright {

/// Counts the memory of the calling thread's texts, arrays and objects, so that a program that runs scripts
/// can limit it. Without a limit nothing is refused.
class MemoryBudget {
 public:
  /// Error 7 where the limit would be exceeded.
  static void Charge(std::size_t bytes) {
    if (t_Used + bytes > t_Limit) Refuse();
    t_Used += bytes;
  }
  /// Subtracts memory that was charged.
  static void Refund(std::size_t bytes) noexcept { t_Used -= bytes; }
  /// Bytes in use by the calling thread.
  static std::size_t Used() noexcept { return t_Used; }

  /// Allows that many further bytes as long as it lives; a stricter outer limit stays in force.
  class Limit {
   public:
    /// Starts the limit; nested limits end in reverse order.
    explicit Limit(std::size_t furtherBytes) noexcept;
    ~Limit() { t_Limit = m_Outer; }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

   private:
    std::size_t m_Outer;
  };

  /// Lifts the limits as long as it lives: reporting a failure must not fail.
  class Exemption {
   public:
    Exemption() noexcept;
    ~Exemption() { t_Limit = m_Outer; }
    Exemption(const Exemption&) = delete;
    Exemption& operator=(const Exemption&) = delete;

   private:
    std::size_t m_Outer;
  };

 private:
  [[noreturn]] static void Refuse();

  // A plain count for each thread is enough, as values change the thread only together with their engine. The
  // count may wrap where a thread releases what another allocated; the comparison above then refuses nothing.
  static constinit thread_local std::size_t t_Used;
  static constinit thread_local std::size_t t_Limit;
};

}  // namespace cardwright
