// SPDX-License-Identifier: MIT
#include "cardwright/robot/hosts/Hosts.h"

#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/shared/ObjectConnection.h"

namespace cardwright::robot {
namespace {

constexpr Member kHostsMembers[] = {
    Method<&Hosts::Register>(u"Register"), Method<&Hosts::OpenStore>(u"OpenStore"),
    Method<&Hosts::Close>(u"Close"),       Property<&Hosts::Log>(u"Log"),
    Method<&Hosts::ClearLog>(u"ClearLog"),
};

}  // namespace

std::int32_t Hosts::Register(Ref<Object> host) {
  if (!host) Raise(ErrorNumber::ObjectNotSet);
  return m_List->Open(MakeRef<ObjectConnection>(std::move(host)));
}

std::int32_t Hosts::OpenStore(const Text& source) {
  const Ref<EmbeddedHost> store = EmbeddedHost::Open(source);
  const std::int32_t handle = m_List->Open(store);
  store->SetHandle(handle);
  return handle;
}

const MemberTable& Hosts::Members() const {
  static const MemberTable table(kHostsMembers);
  return table;
}

}  // namespace cardwright::robot
