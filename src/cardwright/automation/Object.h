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

/// How a member is called; a request may allow several, as `o(1)` allows a method or a get.
enum class CallKind : std::uint8_t { Method = 1, Get = 2, MethodOrGet = 3, Let = 4, Set = 8 };
constexpr bool Allows(CallKind request, CallKind kind) noexcept {
  return (static_cast<int>(request) & static_cast<int>(kind)) != 0;
}

/// Number of a member of one object's class: looked up once by name, then called.
using MemberId = std::int32_t;
inline constexpr MemberId kNoMember = -1;

/// Arguments in order. A Let or Set has the new value last.
using Args = std::span<Variant>;

/// For Each over an object: the next value, or false at the end.
class Enumerator {
 public:
  virtual ~Enumerator() = default;
  virtual bool Next(Variant& value) = 0;
};

/// Receives the events of an object. `event` is the event's own spelling; arguments that the event passes by
/// reference are ByRef values.
using EventHandler = std::function<void(std::u16string_view event, Args args)>;

/// An object that scripts and C++ reach by member names, whatever their case.
class Object : public RefCounted {
 public:
  /// Name that TypeName answers.
  virtual Text TypeName() const = 0;
  /// Number of the member of that name, or kNoMember. Stays valid for the life of the object.
  virtual MemberId FindMember(std::u16string_view name) const = 0;
  /// Number of the default member, or kNoMember.
  virtual MemberId DefaultMember() const { return kNoMember; }
  /// Calls a member. Errors: 438 for an unknown number or a kind that the member does not offer, 450 for a
  /// wrong count of arguments, 449 for a missing one, and whatever the member itself raises.
  virtual Variant Invoke(MemberId member, CallKind kind, Args args) = 0;
  /// Objects of one shape answer the same numbers to the same names, so that a caller may keep a number for
  /// all of them; null for an object whose names are its own.
  virtual const void* Shape() const { return nullptr; }
  /// Mark by which an engine knows the objects that it made itself; null for all others.
  const void* Family() const noexcept { return m_Family; }
  /// Names of the public members, in declared order, for documentation and completion.
  virtual std::vector<Text> MemberNames() const { return {}; }
  /// For Each; error 451 where the object is no collection.
  virtual std::unique_ptr<Enumerator> Enumerate();

  /// Hooks all events of the object until the connection is dropped; the number is for Disconnect.
  int Connect(EventHandler handler);
  void Disconnect(int connection);

 protected:
  explicit Object(const void* family = nullptr);
  ~Object() override;
  /// Calls every handler connected at this moment, in order of connection. A handler may connect, disconnect
  /// or release the object; one that is disconnected before its turn is passed over.
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
/// The value of the default member where `value` is an object that has one, else the value; error 438
/// for an object without a default member, 91 for Nothing.
Variant DefaultValue(const Variant& value);
/// The object in `value`; error 91 for Nothing, 424 where it holds none.
Object& RequireObject(const Variant& value);
/// @}

}  // namespace cardwright
