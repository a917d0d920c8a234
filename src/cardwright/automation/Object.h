// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "cardwright/automation/Ref.h"
#include "cardwright/automation/Text.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// How a member is called. A request may allow several kinds: `o(1)` is a method call or a get.
enum class CallKind : std::uint8_t { Method = 1, Get = 2, MethodOrGet = 3, Let = 4, Set = 8 };
/// Whether the request includes this kind.
constexpr bool Allows(CallKind request, CallKind kind) noexcept {
  return (static_cast<int>(request) & static_cast<int>(kind)) != 0;
}

/// Identifies a member of a class: looked up once by name, then used for calls.
using MemberId = std::int32_t;
/// No member.
inline constexpr MemberId kNoMember = -1;

/// Arguments in order. A Let or Set has the new value last.
using Args = std::span<Variant>;

/// For Each over an object: the next value, or false at the end.
class Enumerator {
 public:
  virtual ~Enumerator() = default;
  /// Stores the next value; returns false at the end.
  virtual bool Next(Variant& value) = 0;
};

/// Receives the events of an object. `event` is the event's own spelling; arguments that the event passes by
/// reference are ByRef values.
using EventHandler = std::function<void(std::u16string_view event, Args args)>;

/// An object that scripts and C++ reach by member names, whatever their case.
class Object : public RefCounted {
 public:
  /// The name that TypeName gives to scripts.
  virtual Text TypeName() const = 0;
  /// The member of a name in any case, or kNoMember. Valid as long as the object lives.
  virtual MemberId FindMember(std::u16string_view name) const = 0;
  /// The default member, or kNoMember.
  virtual MemberId DefaultMember() const { return kNoMember; }
  /// Calls a member. Errors: 438 for an unknown number or a kind that the member does not offer, 450 for a
  /// wrong count of arguments, 449 for a missing one, and whatever the member itself raises.
  virtual Variant Invoke(MemberId member, CallKind kind, Args args) = 0;
  /// Objects of one shape have the same ids for the same names, so that callers can cache an id for all of
  /// them. Null for an object with names of its own.
  virtual const void* Shape() const { return nullptr; }
  /// Marks the objects that an engine made itself; null for all others.
  const void* Family() const noexcept { return m_Family; }
  /// Names of the public members, in declared order, for documentation and completion.
  virtual std::vector<Text> MemberNames() const { return {}; }
  /// For Each; error 451 where the object is no collection.
  virtual std::unique_ptr<Enumerator> Enumerate();

  /// Subscribes to all events of the object; returns the id of the connection for Disconnect.
  int Connect(EventHandler handler);
  /// Ends a subscription; an unknown id is ignored.
  void Disconnect(int connection);

 protected:
  explicit Object(const void* family = nullptr);
  ~Object() override;
  /// Calls the handlers that are connected now, in order of connection. A handler may connect and disconnect
  /// handlers and release the object; a handler that is disconnected before its turn is not called.
  void RaiseEvent(std::u16string_view event, Args args = {});

 private:
  struct Connections;
  const void* m_Family;
  std::unique_ptr<Connections> m_Connections;
};

/// @name Calls by name, as late-bound code makes them. Error 438 where there is no such member.
/// @{
Variant GetProperty(Object& object, std::u16string_view name, std::initializer_list<Variant> args = {});
void LetProperty(Object& object, std::u16string_view name, const Variant& value,
                 std::initializer_list<Variant> args = {});
void SetProperty(Object& object, std::u16string_view name, const Variant& value);
Variant CallMethod(Object& object, std::u16string_view name, std::initializer_list<Variant> args = {});
/// The value of an object's default member; any other value itself. Error 438 for an object without a default
/// member, 91 for Nothing.
Variant DefaultValue(const Variant& value);
/// The object in `value`; error 91 for Nothing, 424 where it holds none.
Object& RequireObject(const Variant& value);
/// @}

}  // namespace cardwright
