// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string_view>

#include "cardwright/automation/Object.h"

namespace cardwright {

/// A host that commands are sent to. Both calls may run nested: a command may make the host call back.
class HostConnection : public RefCounted {
 public:
  /// Sends a command; the reply is empty for most.
  virtual Text Execute(std::u16string_view command) = 0;
  /// Sends a request and returns its answer.
  virtual Text Request(std::u16string_view command) = 0;
};

/// The connections of one thread by their handles. A handle is never used twice.
class Connections {
 public:
  /// The new handle; never 0.
  std::int32_t Register(Ref<HostConnection> connection);
  /// Ends a connection; an unknown handle is ignored.
  void Close(std::int32_t handle);
  /// Null for a handle that is no connection.
  Ref<HostConnection> Find(std::int32_t handle) const;

 private:
  std::map<std::int32_t, Ref<HostConnection>> m_Open;
  std::int32_t m_LastHandle = 0x1000;
};

/// Passes everything on to another connection and keeps a line for each command: "X " or "R ", the command,
/// and for a request " -> " and the reply.
class LoggedConnection final : public HostConnection {
 public:
  /// Passes everything on to `target`.
  explicit LoggedConnection(Ref<HostConnection> target) : m_Target(std::move(target)) {}

  Text Execute(std::u16string_view command) override;
  Text Request(std::u16string_view command) override;

  /// All lines, each ended by CR LF.
  const Text& Log() const noexcept { return m_Log; }
  /// Empties the log.
  void ClearLog() { m_Log = Text(); }
  /// Called with each line as it is written, without its end.
  std::function<void(std::u16string_view line)> onLine;

 private:
  void Write(const Text& line);

  Ref<HostConnection> m_Target;
  Text m_Log;
};

}  // namespace cardwright
