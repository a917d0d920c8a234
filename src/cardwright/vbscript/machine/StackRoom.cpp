// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/StackRoom.h"

#include <pthread.h>

#include <cstddef>
#include <cstdint>

namespace cardwright::vbscript {

namespace {

// Reserved for the host's own work; generous, since instrumented builds have much larger frames.
constexpr std::uintptr_t kReserve = 384 * 1024;

std::uintptr_t LowestAddress() noexcept {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return 0;
  void* address = nullptr;
  std::size_t size = 0;
  pthread_attr_getstack(&attributes, &address, &size);
  pthread_attr_destroy(&attributes);
  return reinterpret_cast<std::uintptr_t>(address);
}

}  // namespace

bool HasStackRoom(std::size_t further) noexcept {
  static thread_local const std::uintptr_t lowest = LowestAddress();
  return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) > lowest + kReserve + further;
}

}  // namespace cardwright::vbscript
