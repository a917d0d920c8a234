#include "cardwright/robot/HostList.h"

#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::robot {

std::int32_t HostList::Open(Ref<HostConnection> host) {
  auto logged = MakeRef<LoggedConnection>(std::move(host));
  const std::int32_t handle = Module().connections.Register(logged);
  m_Open.emplace(handle, std::move(logged));
  return handle;
}

void HostList::Close(std::int32_t handle) {
  const auto found = m_Open.find(handle);
  if (found == m_Open.end()) Raise(ErrorNumber::InvalidPropertyValue);
  const Ref<LoggedConnection> keepAlive = found->second;  // a host may look for its handle at its end
  m_Open.erase(found);
  Module().connections.Close(handle);
}

void HostList::CloseAll() {
  for (const auto& [handle, host] : std::exchange(m_Open, {})) Module().connections.Close(handle);
}

LoggedConnection& HostList::Find(std::int32_t handle) const {
  const auto found = m_Open.find(handle);
  if (found == m_Open.end()) Raise(ErrorNumber::InvalidPropertyValue);
  return *found->second;
}

}  // namespace cardwright::robot
