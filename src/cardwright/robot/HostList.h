#pragma once

#include <map>

#include "cardwright/platform/HostConnection.h"

namespace cardwright::robot {

/// The connections that a script has opened, with their logs. They last until they are closed here.
class HostList final : public RefCounted {
 public:
  /// The new handle.
  std::int32_t Open(Ref<HostConnection> host);
  /// Error 380 for a handle that is none of these connections.
  void Close(std::int32_t handle);
  void CloseAll();
  LoggedConnection& Find(std::int32_t handle) const;

 private:
  ~HostList() override { CloseAll(); }

  std::map<std::int32_t, Ref<LoggedConnection>> m_Open;
};

}  // namespace cardwright::robot
