// SPDX-License-Identifier: MIT
#include "cardwright/hosting/WScriptArguments.h"

#include "cardwright/automation/Enumerators.h"

namespace cardwright {
namespace {

constexpr Member kArgumentsMembers[] = {
    Property<&WScriptArguments::Item>(u"Item"),
    Property<&WScriptArguments::Count>(u"Count"),
    Property<&WScriptArguments::Count>(u"Length"),
};

}  // namespace

Text WScriptArguments::Item(std::int32_t index) const {
  if (index < 0 || index >= Count()) Raise(ErrorNumber::SubscriptOutOfRange);
  return m_Words[static_cast<std::size_t>(index)];
}

std::unique_ptr<Enumerator> WScriptArguments::Enumerate() {
  return std::make_unique<ItemEnumerator<WScriptArguments>>(*this);
}

const MemberTable& WScriptArguments::Members() const {
  static const MemberTable table(kArgumentsMembers, u"Item");
  return table;
}

}  // namespace cardwright
