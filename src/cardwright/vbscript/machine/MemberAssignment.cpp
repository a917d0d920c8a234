// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Elements.h"
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/machine/SlowPaths.h"

namespace cardwright::vbscript {

namespace {

// Without Set an object is replaced by its default value; with Set anything else is an error.
void PrepareValue(Variant& value, bool isSet) {
  const Variant& held = static_cast<const Variant&>(value).Deref();
  if (isSet) {
    if (!held.IsObject()) Raise(ErrorNumber::ObjectRequired);
  } else if (held.IsObject()) {
    value = DefaultValue(held);
  }
}

}  // namespace

void Machine::AssignIndexedSymbol(SymbolUse& use, Args arguments, std::uint16_t flags) {
  if (use.epoch != m_Epoch) Resolve(use);
  const bool isSet = (flags & kAsSet) != 0;
  if (use.symbol && use.symbol->kind == SymbolKind::HostMember) {
    PrepareValue(arguments.back(), isSet);
    const Ref<Object> object(&RequireObject(use.symbol->value));
    InvokeHost(*object, use.symbol->member, isSet ? CallKind::Set : CallKind::Let, arguments);
    return;
  }
  if (use.symbol && use.symbol->kind == SymbolKind::HostObject) {
    Variant object = use.symbol->value;
    AssignElement(object, arguments, isSet, names.Spelling(use.name));
    return;
  }
  AssignElement(VariableToWrite(use), arguments, isSet, names.Spelling(use.name));
}

bool Machine::AssignMember(RegisterView view, Instruction i, MemberUse& use) {
  Variant& place = view.R[i.b];
  const Args arguments(view.R + i.a, i.n);
  const bool isSet = (i.c & kAsSet) != 0;
  const Variant& held = static_cast<const Variant&>(place).Deref();
  if (!held.IsObject()) RaiseAbout(ErrorNumber::ObjectRequired, use.object);
  if (!held.ObjectPtr()) RaiseAbout(ErrorNumber::ObjectNotSet, use.object);
  const Ref<Object> object(held.ObjectPtr());
  view.ClearTemporary(i.b);
  PrepareValue(arguments.back(), isSet);
  if (Instance* instance = Instance::From(object.get(), *m_Link))
    return AssignInstanceMember(use, *instance, arguments, isSet);
  const MemberId member = FindMember(use, *object);
  InvokeHost(*object, member, isSet ? CallKind::Set : CallKind::Let, arguments);
  for (Variant& argument : arguments) argument.Reset();
  return false;
}

bool Machine::AssignInstanceMember(MemberUse& use, Instance& object, Args arguments, bool isSet) {
  const ClassMember& member = FindMember(use, object);
  const bool isInside = Current().me == &object;
  const ClassProcedure& procedure = isSet ? member.set : member.let;
  if (procedure.code && (procedure.isPublic || isInside)) {
    PushFrame(*procedure.code, &object, arguments, nullptr);
    return true;
  }
  if (member.field < 0 || !(member.fieldIsPublic || isInside))
    RaiseAbout(ErrorNumber::NotSupported, use.name);
  Variant& field = object.Field(static_cast<std::size_t>(member.field));
  if (arguments.size() > 1) {
    AssignElement(field, arguments, isSet, names.Spelling(use.name));
  } else if (isSet) {
    AssignObject(field, arguments.back(), true);
  } else {
    AssignPlain(field, arguments.back(), true);
  }
  for (Variant& argument : arguments) argument.Reset();
  return false;
}

}  // namespace cardwright::vbscript
