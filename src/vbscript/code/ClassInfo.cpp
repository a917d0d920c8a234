#include "vbscript/code/ClassInfo.h"

namespace cardwright::vbscript {

ClassMember& ClassInfo::Member(NameId id) {
  const auto [entry, isNew] = index.try_emplace(id, static_cast<std::int32_t>(members.size()));
  if (isNew) members.emplace_back().name = id;
  return members[static_cast<std::size_t>(entry->second)];
}

}  // namespace cardwright::vbscript
