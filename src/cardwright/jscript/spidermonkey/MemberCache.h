// SPDX-License-Identifier: MIT
#pragma once

#include <js/Id.h>
#include <js/RootingAPI.h>
#include <js/TracingAPI.h>

#include <array>

#include "cardwright/automation/Object.h"

namespace cardwright::jscript {

/// A member of a host object as the script uses it.
struct HostMember {
  MemberId id = kNoMember;
  /// `o.m` is a function: the member can be called but not read.
  bool isMethod = false;
  bool Exists() const noexcept { return id != kNoMember; }
};

/// Members by shape and name, so that a name is looked up once for all objects of a class. Entries that map
/// to the same slot replace each other.
class MemberCache {
 public:
  explicit MemberCache(JSContext* cx);
  ~MemberCache();
  MemberCache(const MemberCache&) = delete;
  MemberCache& operator=(const MemberCache&) = delete;

  /// The member of that name; none where the name is a symbol.
  HostMember Find(const Object& object, JS::PropertyKey name);
  /// Marks a member that cannot be read without arguments, so that reading it is not tried again.
  void SetNeedsArguments(const Object& object, JS::PropertyKey name);

 private:
  struct Slot;
  Slot& SlotOf(const void* shape, JS::PropertyKey name);
  struct Slot {
    const void* shape = nullptr;
    JS::Heap<JS::PropertyKey> name;
    HostMember member;
  };
  static void Trace(JSTracer* tracer, void* data);

  JSContext* m_Context;
  std::array<Slot, 256> m_Slots;
};

/// The text of a property name, or the digits of an index; empty for a symbol.
std::u16string SpellingOf(JS::PropertyKey name);

}  // namespace cardwright::jscript
