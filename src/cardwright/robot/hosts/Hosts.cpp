#include "cardwright/robot/hosts/Hosts.h"

#include "cardwright/orv/EmbeddedHost.h"

namespace cardwright::robot {
namespace {

/// A host that an object of the script implements.
class ObjectHost final : public HostConnection {
 public:
  explicit ObjectHost(Ref<Object> object) : m_Object(std::move(object)) {}

  Text Execute(std::u16string_view command) override { return Call(u"ORVExecute", command); }
  Text Request(std::u16string_view command) override { return Call(u"ORVRequest", command); }

 private:
  Text Call(std::u16string_view method, std::u16string_view command) {
    return ToText(CallMethod(*m_Object, method, {Text(command)}));
  }

  const Ref<Object> m_Object;
};

constexpr Member kHostsMembers[] = {
    Method<&Hosts::Register>(u"Register"), Method<&Hosts::OpenStore>(u"OpenStore"),
    Method<&Hosts::Close>(u"Close"),       Property<&Hosts::Log>(u"Log"),
    Method<&Hosts::ClearLog>(u"ClearLog"),
};

}  // namespace

std::int32_t Hosts::Register(Ref<Object> host) {
  if (!host) Raise(ErrorNumber::ObjectNotSet);
  return m_List->Open(MakeRef<ObjectHost>(std::move(host)));
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
