// SPDX-License-Identifier: MIT
#include "cardwright/shared/HostExecutor.h"

namespace cardwright {
namespace {

constexpr Member kHostExecutorMembers[] = {
    Property<&HostExecutor::Handle, &HostExecutor::SetHandle>(u"TarvoHandle"),
    Method<&HostExecutor::ORVExecute>(u"ORVExecute"),
    Method<&HostExecutor::ORVRequest>(u"ORVRequest"),
    Property<&HostExecutor::Mode, &HostExecutor::SetMode>(u"ORVMode"),
    Property<nullptr, nullptr, &HostExecutor::SetDebugOutput>(u"ORVDebugOutput"),
    Property<&HostExecutor::Editor, nullptr, &HostExecutor::SetEditor>(u"ORVEditor"),
};

}  // namespace

Text HostExecutor::ORVExecute(const Text& command) {
  if (m_Mode == ExecutorMode::Debug) {
    WriteDebugLine(command);
    return {};
  }
  return m_Connection->Execute(command);
}

Text HostExecutor::ORVRequest(const Text& command) {
  if (m_Mode == ExecutorMode::Debug) WriteDebugLine(command);
  return m_Connection->Request(command);
}

void HostExecutor::WriteDebugLine(std::u16string_view command) {
  if (m_DebugOutput) LetProperty(*m_DebugOutput, u"SelText", Text(command) + u"\r\n");
}

const MemberTable& HostExecutor::Members() const {
  static const MemberTable table(kHostExecutorMembers);
  return table;
}

}  // namespace cardwright
