// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/code/ClassInfo.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kBytesOfMember = sizeof(ClassMember) + 64;  // with its entry in the index

}  // namespace

ClassMember& ClassInfo::Member(NameId id) {
  if (const auto known = index.find(id); known != index.end())
    return members[static_cast<std::size_t>(known->second)];
  m_Memory.Grow(kBytesOfMember);
  index.emplace(id, static_cast<std::int32_t>(members.size()));
  ClassMember& member = members.emplace_back();
  member.name = id;
  return member;
}

}  // namespace cardwright::vbscript
