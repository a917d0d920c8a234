#pragma once

#include <cstddef>

namespace cardwright {

/// The memory that the calling thread's texts, arrays and objects take, counted so that whoever runs foreign
/// code can bound it. Without a limit nothing is refused.
class MemoryBudget {
 public:
  /// Error 7 where the limit would be passed.
  static void Charge(std::size_t bytes) {
    if (t_Used + bytes > t_Limit) Refuse();
    t_Used += bytes;
  }
  static void Refund(std::size_t bytes) noexcept { t_Used -= bytes; }
  static std::size_t Used() noexcept { return t_Used; }

  /// Allows that many further bytes for as long as it lives; an outer limit that is stricter stays.
  class Limit {
   public:
    explicit Limit(std::size_t furtherBytes) noexcept;
    ~Limit() { t_Limit = m_Outer; }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

   private:
    std::size_t m_Outer;
  };

  /// Lifts the limits for as long as it lives, for what there is to say about a failure: that must not fail.
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

  // Values may go from one thread to another only as a whole engine does, so a plain count a thread will do.
  // It may wrap where a thread releases what another made; the comparison above then refuses nothing.
  static constinit thread_local std::size_t t_Used;
  static constinit thread_local std::size_t t_Limit;
};

}  // namespace cardwright
