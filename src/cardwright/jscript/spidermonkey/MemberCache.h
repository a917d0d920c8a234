#pragma once

#include <js/Id.h>
#include <js/RootingAPI.h>
#include <js/TracingAPI.h>

#include <array>

#include "cardwright/automation/Object.h"

namespace cardwright::jscript {

/// What is known of a member of a host object.
struct HostMember {
  MemberId id = kNoMember;
  /// It is to be called, not read: `o.m` is a function.
  bool isMethod = false;
  bool IsThere() const noexcept { return id != kNoMember; }
};

/// Members by shape and name, so that a name is looked up once for all objects of a class.
class MemberCache {
 public:
  explicit MemberCache(JSContext* cx);
  ~MemberCache();
  MemberCache(const MemberCache&) = delete;
  MemberCache& operator=(const MemberCache&) = delete;

  /// The member of that name; none for a name that is no text.
  HostMember Find(const Object& object, JS::PropertyKey name);
  /// Notes that a member cannot be read without arguments, so that nobody tries it again.
  void NoteNeedsArguments(const Object& object, JS::PropertyKey name);

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

/// The characters of a name that is a text or a number.
std::u16string SpellingOf(JS::PropertyKey name);

}  // namespace cardwright::jscript
