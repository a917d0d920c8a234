#include "cardwright/jscript/spidermonkey/Puts.h"

#include <js/Array.h>
#include <js/CallArgs.h>
#include <js/Object.h>
#include <js/PropertyAndElement.h>
#include <jsapi.h>

#include "cardwright/jscript/spidermonkey/Calls.h"
#include "cardwright/jscript/spidermonkey/HostObjects.h"
#include "cardwright/jscript/spidermonkey/Values.h"
#include "cardwright/jscript/syntax/Rewriter.h"

namespace cardwright::jscript {
namespace {

constexpr std::uint32_t kObjectSlot = 0, kNameSlot = 1, kArgumentsSlot = 2;
constexpr JSClass kPlaceClass = {"Object", JSCLASS_HAS_RESERVED_SLOTS(3), nullptr, nullptr, nullptr, nullptr};

// The place of a member of `object`, or of its default member, with the arguments from `first` on.
bool MakePlace(JSContext* cx, JS::HandleValue object, JS::HandleValue name, const JS::CallArgs& args,
               unsigned first) {
  Session* session = Session::Required(cx);
  if (!session) return false;
  JS::RootedValueVector values(cx);
  for (unsigned k = first; k < args.length(); ++k)
    if (!values.append(args[k])) return false;
  JS::RootedObject list(cx, JS::NewArrayObject(cx, values));
  JS::RootedObject prototype(cx, session->PutPrototype());
  JS::RootedObject place(cx, list ? JS_NewObjectWithGivenProto(cx, &kPlaceClass, prototype) : nullptr);
  if (!place) return false;
  JS::SetReservedSlot(place, kObjectSlot, object);
  JS::SetReservedSlot(place, kNameSlot, name);
  JS::SetReservedSlot(place, kArgumentsSlot, JS::ObjectValue(*list));
  args.rval().setObject(*place);
  return true;
}

bool MakePlaceOfCallee(JSContext* cx, JS::HandleValue callee, const JS::CallArgs& args, unsigned first) {
  if (!callee.isObject()) return ThrowNumber(cx, callee.isUndefined() ? kObjectExpected : kNotAFunction);
  JS::RootedValue object(cx), name(cx);
  if (IsHostObject(&callee.toObject())) return MakePlace(cx, callee, name, args, first);
  if (IsBoundMethod(&callee.toObject(), &object, &name)) return MakePlace(cx, object, name, args, first);
  return ThrowNumber(cx, kCannotAssignToResult);
}

bool Put(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  JS::RootedValue callee(cx, args.get(0));
  return MakePlaceOfCallee(cx, callee, args, 1);
}

bool PutNamed(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  JS::RootedValue object(cx, args.get(0)), name(cx, args.get(1)), callee(cx);
  if (object.isNullOrUndefined()) return ThrowNumber(cx, kObjectExpected);
  if (object.isObject() && IsHostObject(&object.toObject())) return MakePlace(cx, object, name, args, 2);
  JS::RootedObject holder(cx);
  JS::RootedId id(cx);
  if (!JS_ValueToObject(cx, object, &holder) || !JS_ValueToId(cx, name, &id) ||
      !JS_GetPropertyById(cx, holder, id, &callee))
    return false;
  return MakePlaceOfCallee(cx, callee, args, 2);
}

/// A place, taken apart.
struct Place {
  Session* session = nullptr;
  Ref<Object> object;
  MemberId member = kNoMember;
  bool isNamed = false;
  std::vector<Variant> arguments;
};

bool Open(JSContext* cx, const JS::CallArgs& args, Place& place) {
  place.session = Session::Required(cx);
  if (!place.session) return false;
  if (!args.thisv().isObject() || JS::GetClass(&args.thisv().toObject()) != &kPlaceClass)
    return ThrowNumber(cx, kObjectExpected);
  JSObject* self = &args.thisv().toObject();
  place.object = Ref<Object>(WrappedObject(&JS::GetReservedSlot(self, kObjectSlot).toObject()));
  if (!place.object) return ThrowNumber(cx, kFreedScript);
  JS::RootedObject list(cx, &JS::GetReservedSlot(self, kArgumentsSlot).toObject());
  JS::RootedValue name(cx, JS::GetReservedSlot(self, kNameSlot));
  place.isNamed = !name.isUndefined();
  JS::RootedId id(cx);
  std::uint32_t count = 0;
  if ((place.isNamed && !JS_ValueToId(cx, name, &id)) || !JS::GetArrayLength(cx, list, &count)) return false;
  place.arguments.resize(count);
  for (std::uint32_t k = 0; k < count; ++k) {
    JS::RootedValue value(cx);
    const auto take = [&] { return FromScript(*place.session, value, place.arguments[k]); };
    if (!JS_GetElement(cx, list, k, &value) || !CallHost(*place.session, take)) return false;
  }
  place.member =
      place.isNamed ? place.session->Members().Find(*place.object, id).id : place.object->DefaultMember();
  return place.member != kNoMember || ThrowNumber(cx, kNoSuchMember);
}

bool GetPlace(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  Place place;
  return Open(cx, args, place) && InvokeMember(*place.session, *place.object, place.member,
                                               CallKind::MethodOrGet, place.arguments, args.rval());
}

// `o.Items(1) = v`: a member that gives a collection, and the assignment is to one of its items.
bool LeadsToCollection(Session& session, Place& place) {
  return CallHost(session, [&] {
    const Variant held = place.object->Invoke(place.member, CallKind::Get, {});
    if (!held.IsObject() || !held.ObjectPtr() || held.ObjectPtr()->DefaultMember() == kNoMember)
      Raise(kNoSuchMember, ErrorText(kNoSuchMember));
    place.object = Ref<Object>(held.ObjectPtr());
    place.member = place.object->DefaultMember();
    return true;
  });
}

bool SetPlace(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  Place place;
  if (!Open(cx, args, place)) return false;
  Session& session = *place.session;
  JS::RootedValue value(cx, args.get(0));
  place.arguments.emplace_back();
  if (!CallHost(session, [&] { return FromScript(session, value, place.arguments.back()); })) return false;
  bool isRefused = false;
  const auto put = [&] {
    try {
      const bool isObject = place.arguments.back().IsObject();
      place.object->Invoke(place.member, isObject ? CallKind::Set : CallKind::Let, place.arguments);
    } catch (const Error& error) {
      isRefused = place.isNamed && (error.Number() == static_cast<int>(ErrorNumber::NotSupported) ||
                                    error.Number() == static_cast<int>(ErrorNumber::WrongArgumentCount));
      if (!isRefused) throw;
    }
    return true;
  };
  if (!place.isNamed) return PutMember(session, *place.object, place.member, place.arguments);
  if (!CallHost(session, put)) return false;
  return !isRefused || (LeadsToCollection(session, place) &&
                        PutMember(session, *place.object, place.member, place.arguments));
}

}  // namespace

bool DefinePuts(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject prototype) {
  constexpr unsigned kFixed = JSPROP_PERMANENT | JSPROP_READONLY;
  constexpr std::u16string_view put = hidden::kPut, putMember = hidden::kPutMember;
  prototype.set(JS_NewPlainObject(cx));
  return prototype && JS_DefineProperty(cx, prototype, "v", &GetPlace, &SetPlace, 0) &&
         JS_DefineUCFunction(cx, global, put.data(), put.size(), &Put, 1, kFixed) &&
         JS_DefineUCFunction(cx, global, putMember.data(), putMember.size(), &PutNamed, 2, kFixed);
}

}  // namespace cardwright::jscript
