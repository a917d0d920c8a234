// SPDX-License-Identifier: MIT
#include "cardwright/robot/hosts/OpenConnections.h"

#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::robot {

std::int32_t OpenConnections::Open(Ref<HostConnection> host) {
  auto logged = MakeRef<LoggedConnection>(std::move(host));
  const std::int32_t handle = Module().connections.Register(logged);
  m_Open.emplace(handle, std::move(logged));
  return handle;
}

void OpenConnections::Close(std::int32_t handle) {
  const auto found = m_Open.find(handle);
  if (found == m_Open.end()) Raise(ErrorNumber::InvalidPropertyValue);
  const Ref<LoggedConnection> keepAlive = found->second;  // a host may use its handle in its destructor
  m_Open.erase(found);
  Module().connections.Close(handle);
}

void OpenConnections::CloseAll() {
  for (const auto& [handle, host] : std::exchange(m_Open, {})) Module().connections.Close(handle);
}

LoggedConnection& OpenConnections::Find(std::int32_t handle) const {
  const auto found = m_Open.find(handle);
  if (found == m_Open.end()) Raise(ErrorNumber::InvalidPropertyValue);
  return *found->second;
}

}  // namespace cardwright::robot
