// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "cardwright/platform/HostConnection.h"

namespace cardwright::robot {

/// The connections that a script opened, with their logs. They stay open until they are closed here.
class OpenConnections final : public RefCounted {
 public:
  /// The new handle.
  std::int32_t Open(Ref<HostConnection> host);
  /// Error 380 for a handle of no such connection.
  void Close(std::int32_t handle);
  void CloseAll();
  LoggedConnection& Find(std::int32_t handle) const;

 private:
  ~OpenConnections() override { CloseAll(); }

  std::map<std::int32_t, Ref<LoggedConnection>> m_Open;
};

}  // namespace cardwright::robot
