// SPDX-License-Identifier: MIT
#include "cardwright/automation/MemberTable.h"

#include <bit>

namespace cardwright {

MemberTable::MemberTable(std::span<const Member> members, std::u16string_view defaultMember)
    : m_Members(members), m_Buckets(std::bit_ceil(members.size() * 2 + 1), kNoMember) {
  for (std::size_t i = 0; i < members.size(); ++i) {
    std::size_t bucket = HashNoCase(members[i].name) & (m_Buckets.size() - 1);
    while (m_Buckets[bucket] != kNoMember) bucket = (bucket + 1) & (m_Buckets.size() - 1);
    m_Buckets[bucket] = static_cast<MemberId>(i);
  }
  if (!defaultMember.empty()) m_Default = Find(defaultMember);
}

MemberId MemberTable::Find(std::u16string_view name) const noexcept {
  std::size_t bucket = HashNoCase(name) & (m_Buckets.size() - 1);
  while (m_Buckets[bucket] != kNoMember) {
    const MemberId member = m_Buckets[bucket];
    if (EqualsNoCase(m_Members[static_cast<std::size_t>(member)].name, name)) return member;
    bucket = (bucket + 1) & (m_Buckets.size() - 1);
  }
  return kNoMember;
}

namespace {

Member::Call CallFor(const Member& member, CallKind kind) noexcept {
  switch (kind) {
    case CallKind::Method: return member.method;
    case CallKind::Get: return member.get ? member.get : member.method;
    case CallKind::MethodOrGet: return member.method ? member.method : member.get;
    case CallKind::Let: return member.let;
    case CallKind::Set: return member.set ? member.set : member.let;
  }
  return nullptr;
}

}  // namespace

Variant MemberTable::Invoke(Object& self, MemberId member, CallKind kind, Args args) const {
  const auto index = static_cast<std::size_t>(member);
  if (index >= m_Members.size()) Raise(ErrorNumber::NotSupported);
  const Member::Call call = CallFor(m_Members[index], kind);
  if (!call) Raise(ErrorNumber::NotSupported);
  return call(self, args);
}

std::vector<Text> TableObject::MemberNames() const {
  std::vector<Text> names;
  for (const Member& member : Members().Members()) names.emplace_back(member.name);
  return names;
}

Variant detail::CallDefault(const Variant& result, Args args) {
  if (!result.IsObject()) Raise(ErrorNumber::WrongArgumentCount);
  Object& object = RequireObject(result);
  const MemberId member = object.DefaultMember();
  if (member == kNoMember) Raise(ErrorNumber::NotSupported);
  return object.Invoke(member, CallKind::Get, args);
}

}  // namespace cardwright
