// SPDX-License-Identifier: MIT
#include "cardwright/qt/Library.h"

#include "cardwright/shared/ModuleState.h"

namespace cardwright::qt {

Library::Library() {
  Module().desktop = &m_Desktop;
  m_Vellum = MakeRef<cardwright::Vellum>();
}

Library::~Library() {
  m_Vellum = nullptr;
  Module().desktop = nullptr;
}

std::int32_t Library::Connect(Ref<HostConnection> connection) {
  const std::int32_t handle = Module().connections.Register(std::move(connection));
  m_Vellum->SetTarvoHandle(handle);
  return handle;
}

}  // namespace cardwright::qt
