// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/shared/ConnectionByHandle.h"

namespace cardwright {

/// Whether commands reach the host.
enum class ExecutorMode : std::int32_t { Normal = 0, Debug = 2 };

/// Carries commands to the host that a connection handle stands for. A handle that is no connection, 0 among
/// them, answers every command with "" and sends nothing.
///
/// In debugging mode each command is written as a line to `SelText` of the debug output. Requests are still
/// answered by the host, but nothing is executed: a debugging run must not change data.
///
/// Members by name are script names too, as the object's members are global in a form's script; those besides
/// ORVExecute and ORVRequest have names that no script variable is likely to bear.
class HostExecutor final : public TableObject {
 public:
  Text TypeName() const override { return u"HostExecutor"; }

  std::int32_t Handle() const noexcept { return m_Connection->Handle(); }
  void SetHandle(std::int32_t handle) noexcept { m_Connection->SetHandle(handle); }
  bool IsConnected() const noexcept { return Handle() != 0; }
  /// Sends to the host in debugging mode too, and follows the handle when it changes.
  Ref<HostConnection> Connection() const noexcept { return m_Connection; }

  /// Sends a command and gives its reply.
  Text ORVExecute(const Text& command);
  /// Sends a request and gives its answer.
  Text ORVRequest(const Text& command);

  ExecutorMode Mode() const noexcept { return m_Mode; }
  void SetMode(ExecutorMode mode) noexcept { m_Mode = mode; }
  void SetDebugOutput(Ref<Object> output) noexcept { m_DebugOutput = std::move(output); }
  /// The host's editor object, or null.
  Ref<Object> Editor() const noexcept { return m_Editor; }
  void SetEditor(Ref<Object> editor) noexcept { m_Editor = std::move(editor); }

 protected:
  const MemberTable& Members() const override;

 private:
  void WriteDebugLine(std::u16string_view command);

  const Ref<ConnectionByHandle> m_Connection = MakeRef<ConnectionByHandle>();
  ExecutorMode m_Mode = ExecutorMode::Normal;
  Ref<Object> m_DebugOutput;
  Ref<Object> m_Editor;
};

}  // namespace cardwright
