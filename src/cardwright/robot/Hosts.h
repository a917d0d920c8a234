#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/robot/HostList.h"

namespace cardwright::robot {

/// `Cardwright.Hosts`: opens connections and shows what was sent over them. All objects of one run share the
/// connections, which last until they are closed or the run ends.
class Hosts final : public TableObject {
 public:
  explicit Hosts(Ref<HostList> list) : m_List(std::move(list)) {}

  Text TypeName() const override { return u"Hosts"; }
  /// Makes an object the host: its ORVExecute(text) and ORVRequest(text) answer every command, and their
  /// errors reach whoever sent it. Gives the handle.
  std::int32_t Register(Ref<Object> host);
  /// The embedded host over a data source. Error 53 with a description where it cannot be opened.
  std::int32_t OpenStore(const Text& source);
  void Close(std::int32_t handle) { m_List->Close(handle); }
  /// Every command sent, a line each: "X " or "R ", the command, and for a request " -> " and the reply.
  Text Log(std::int32_t handle) const { return m_List->Find(handle).Log(); }
  void ClearLog(std::int32_t handle) { m_List->Find(handle).ClearLog(); }

 protected:
  const MemberTable& Members() const override;

 private:
  const Ref<HostList> m_List;
};

}  // namespace cardwright::robot
