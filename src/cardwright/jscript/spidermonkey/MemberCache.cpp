// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/MemberCache.h"

#include <js/GCAPI.h>
#include <js/String.h>
#include <jsapi.h>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::jscript {
namespace {

// A table says of each member whether it can be read; naming a method must not call it. Objects without a
// table are simply read, and refuse what cannot be.
bool IsMethod(const Object& object, MemberId id) {
  if (!dynamic_cast<const TableObject*>(&object)) return false;
  const auto& table = *static_cast<const MemberTable*>(object.Shape());
  const auto index = static_cast<std::size_t>(id);
  return index < table.Members().size() && !table.Members()[index].get;
}

HostMember LookUp(const Object& object, JS::PropertyKey name) {
  HostMember member;
  member.id = object.FindMember(SpellingOf(name));
  member.isMethod = member.Exists() && IsMethod(object, member.id);
  return member;
}

}  // namespace

std::u16string SpellingOf(JS::PropertyKey name) {
  if (name.isInt()) {
    const std::string digits = std::to_string(name.toInt());
    return {digits.begin(), digits.end()};
  }
  if (!name.isString()) return {};
  JSLinearString* text = name.toLinearString();
  const std::size_t size = JS::GetLinearStringLength(text);
  std::u16string spelling(size, u'\0');
  for (std::size_t k = 0; k < size; ++k) spelling[k] = JS::GetLinearStringCharAt(text, k);
  return spelling;
}

MemberCache::MemberCache(JSContext* cx) : m_Context(cx) {
  for (Slot& slot : m_Slots) slot.name = JS::PropertyKey::Void();
  JS_AddExtraGCRootsTracer(cx, &Trace, this);
}

MemberCache::~MemberCache() { JS_RemoveExtraGCRootsTracer(m_Context, &Trace, this); }

void MemberCache::Trace(JSTracer* tracer, void* data) {
  for (Slot& slot : static_cast<MemberCache*>(data)->m_Slots)
    if (slot.shape) JS::TraceEdge(tracer, &slot.name, "member name");
}

MemberCache::Slot& MemberCache::SlotOf(const void* shape, JS::PropertyKey name) {
  const std::size_t hash = (reinterpret_cast<std::size_t>(shape) >> 4) ^ (name.asRawBits() >> 3);
  return m_Slots[(hash ^ (hash >> 8)) % m_Slots.size()];
}

void MemberCache::SetNeedsArguments(const Object& object, JS::PropertyKey name) {
  const void* shape = object.Shape();
  if (!shape || !(name.isString() || name.isInt())) return;
  Slot& slot = SlotOf(shape, name);
  if (slot.shape == shape && slot.name.unbarrieredGet() == name) slot.member.isMethod = true;
}

HostMember MemberCache::Find(const Object& object, JS::PropertyKey name) {
  if (!name.isString() && !name.isInt()) return {};
  const void* shape = object.Shape();
  if (!shape) return LookUp(object, name);
  Slot& slot = SlotOf(shape, name);
  if (slot.shape != shape || slot.name.unbarrieredGet() != name) {
    slot.member = LookUp(object, name);
    slot.name = name;
    slot.shape = shape;
  }
  return slot.member;
}

}  // namespace cardwright::jscript
