#include "cardwright/hosting/EventSinks.h"

#include <utility>

namespace cardwright {

void EventSinks::Connect(Object& object, std::u16string_view prefix) {
  const int connection = object.Connect(
      [this, start = Text(prefix)](std::u16string_view event, Args args) { m_Call(start + event, args); });
  m_Sinks.push_back({Ref<Object>(&object), connection});
}

void EventSinks::Disconnect(const Object& object) {
  std::vector<Sink> kept;
  for (Sink& sink : m_Sinks) {
    if (sink.object == &object) {
      sink.object->Disconnect(sink.connection);
    } else {
      kept.push_back(std::move(sink));
    }
  }
  m_Sinks.swap(kept);
}

void EventSinks::Clear() {
  for (const Sink& sink : std::exchange(m_Sinks, {})) sink.object->Disconnect(sink.connection);
}

}  // namespace cardwright
