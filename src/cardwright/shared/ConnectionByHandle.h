// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/HostConnection.h"

namespace cardwright {

/// Sends to the connection that a handle stands for at that moment, as a connection can be closed at any
/// time. A handle that is none, 0 among them, answers "" and sends nothing.
class ConnectionByHandle final : public HostConnection {
 public:
  explicit ConnectionByHandle(std::int32_t handle = 0) noexcept : m_Handle(handle) {}

  std::int32_t Handle() const noexcept { return m_Handle; }
  void SetHandle(std::int32_t handle) noexcept { m_Handle = handle; }

  Text Execute(std::u16string_view command) override;
  Text Request(std::u16string_view command) override;

 private:
  std::int32_t m_Handle;
};

}  // namespace cardwright
