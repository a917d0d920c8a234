// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "cardwright/automation/Object.h"

namespace cardwright {

/// The objects whose events call procedures of a script: the event E of an object connected with a prefix
/// calls the procedure `prefix & "E"`.
class EventSinks {
 public:
  /// Calls the procedure with the event's arguments.
  using Call = std::function<void(std::u16string_view procedure, Args args)>;

  explicit EventSinks(Call call) : m_Call(std::move(call)) {}
  ~EventSinks() { DisconnectAll(); }
  EventSinks(const EventSinks&) = delete;
  EventSinks& operator=(const EventSinks&) = delete;

  void Connect(Object& object, std::u16string_view prefix);
  /// Ends all connections of the object, if it has any.
  void Disconnect(const Object& object);
  void DisconnectAll();

 private:
  struct Connection {
    Ref<Object> object;
    int id;
  };

  const Call m_Call;
  std::vector<Connection> m_Connections;
};

}  // namespace cardwright
