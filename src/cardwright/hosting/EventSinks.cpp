// SPDX-License-Identifier: MIT
#include "cardwright/hosting/EventSinks.h"

#include <utility>

namespace cardwright {

void EventSinks::Connect(Object& object, std::u16string_view prefix) {
  const int id = object.Connect(
      [this, start = Text(prefix)](std::u16string_view event, Args args) { m_Call(start + event, args); });
  m_Connections.push_back({Ref<Object>(&object), id});
}

void EventSinks::Disconnect(const Object& object) {
  std::vector<Connection> kept;
  for (Connection& connection : m_Connections) {
    if (connection.object == &object) {
      connection.object->Disconnect(connection.id);
    } else {
      kept.push_back(std::move(connection));
    }
  }
  m_Connections.swap(kept);
}

void EventSinks::DisconnectAll() {
  for (const Connection& connection : std::exchange(m_Connections, {}))
    connection.object->Disconnect(connection.id);
}

}  // namespace cardwright
