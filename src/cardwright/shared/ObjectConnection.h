// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Conversions.h"
#include "cardwright/platform/HostConnection.h"

namespace cardwright {

/// An object as a host: its methods ORVExecute and ORVRequest answer the commands, and their errors reach
/// whoever sent them.
class ObjectConnection final : public HostConnection {
 public:
  explicit ObjectConnection(Ref<Object> object) : m_Object(std::move(object)) {}

  Text Execute(std::u16string_view command) override { return Call(u"ORVExecute", command); }
  Text Request(std::u16string_view command) override { return Call(u"ORVRequest", command); }

 private:
  Text Call(std::u16string_view method, std::u16string_view command) {
    return ToText(CallMethod(*m_Object, method, {Text(command)}));
  }

  const Ref<Object> m_Object;
};

}  // namespace cardwright
