// SPDX-License-Identifier: MIT
#include "cardwright/shared/ConnectionByHandle.h"

#include "cardwright/shared/ModuleState.h"

namespace cardwright {

Text ConnectionByHandle::Execute(std::u16string_view command) {
  const Ref<HostConnection> connection = Module().connections.Find(m_Handle);
  return connection ? connection->Execute(command) : Text();
}

Text ConnectionByHandle::Request(std::u16string_view command) {
  const Ref<HostConnection> connection = Module().connections.Find(m_Handle);
  return connection ? connection->Request(command) : Text();
}

}  // namespace cardwright
