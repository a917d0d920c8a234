// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/robot/hosts/OpenConnections.h"

namespace cardwright::robot {

/// `Cardwright.Hosts`: opens connections and logs what is sent over them. All objects of one script run share
/// the connections, which stay open until they are closed or the run ends.
class Hosts final : public TableObject {
 public:
  explicit Hosts(Ref<OpenConnections> list) : m_List(std::move(list)) {}

  Text TypeName() const override { return u"Hosts"; }
  /// Connects to an object of the script, whose ORVExecute(text) and ORVRequest(text) then receive every
  /// command. Their errors are raised in the sender. Returns the handle.
  std::int32_t Register(Ref<Object> host);
  /// Connects to the embedded host over a data source. Error 53 with a description where it cannot be opened.
  std::int32_t OpenStore(const Text& source);
  void Close(std::int32_t handle) { m_List->Close(handle); }
  /// All commands sent, one a line: "X " or "R ", the command, and for a request " -> " and the reply.
  Text Log(std::int32_t handle) const { return m_List->Find(handle).Log(); }
  void ClearLog(std::int32_t handle) { m_List->Find(handle).ClearLog(); }

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<OpenConnections> m_List;
};

}  // namespace cardwright::robot
