// SPDX-License-Identifier: MIT
#include "cardwright/platform/HostConnection.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {

std::int32_t Connections::Register(Ref<HostConnection> connection) {
  m_Open.emplace(++m_LastHandle, std::move(connection));
  return m_LastHandle;
}

void Connections::Close(std::int32_t handle) { m_Open.erase(handle); }

Ref<HostConnection> Connections::Find(std::int32_t handle) const {
  const auto found = m_Open.find(handle);
  return found == m_Open.end() ? nullptr : found->second;
}

Text LoggedConnection::Execute(std::u16string_view command) {
  Write(u"X " + std::u16string(command));
  return m_Target->Execute(command);
}

Text LoggedConnection::Request(std::u16string_view command) {
  const Text line(u"R " + std::u16string(command));
  try {
    const Text reply = m_Target->Request(command);
    Write(line + u" -> " + reply);
    return reply;
  } catch (const Error&) {
    Write(line);  // it was sent, though no reply came
    throw;
  }
}

void LoggedConnection::Write(const Text& line) {
  m_Log += line;
  m_Log += u"\r\n";
  if (onLine) onLine(line);
}

}  // namespace cardwright
