// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExp.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/machine/Elements.h"
#include "cardwright/vbscript/machine/FunctionReference.h"
#include "cardwright/vbscript/machine/Machine.h"
#include "cardwright/vbscript/machine/SlowPaths.h"

namespace cardwright::vbscript {

namespace {

void ClearArguments(Variant* arguments, std::size_t count) noexcept {
  for (std::size_t k = 0; k < count; ++k) arguments[k].Reset();
}

// The end of a call that pushed no frame: clears the arguments and puts the result where the caller wants it.
void FinishCall(Variant* arguments, std::size_t count, Variant* result, Variant outcome) {
  ClearArguments(arguments, count);
  if (result) *result = std::move(outcome);
}
// The library takes values, not references. Its work is charged by the size of its arguments.
void PrepareArguments(Variant* arguments, std::size_t count) {
  for (std::size_t k = 0; k < count; ++k) {
    Variant& argument = arguments[k];
    if (argument.IsByRef()) {
      Variant value = static_cast<const Variant&>(argument).Deref();
      argument = std::move(value);
    }
    if (argument.IsString()) {
      Context::ChargeWork(argument.StringView().size());
    } else if (argument.IsArray()) {
      Context::ChargeWork(argument.ArrayPtr()->Values().size());
    }
  }
}

}  // namespace

bool Machine::CallSymbol(SymbolUse& use, Variant* arguments, std::size_t count, std::uint16_t flags) {
  if (use.epoch != m_Epoch) Resolve(use);
  Variant* const result = (flags & kDropResult) ? nullptr : arguments;
  const Symbol* symbol = use.symbol;
  if (!symbol) {
    if (use.local == kNoRegister)
      RaiseAbout(use.isStrict ? ErrorNumber::UndefinedVariable : ErrorNumber::TypeMismatch, use.name);
    return CallValue(Current().registers[use.local].Deref(), arguments, count, result,
                     names.Spelling(use.name));
  }
  switch (symbol->kind) {
    case SymbolKind::Procedure:
      PushFrame(*symbol->procedure, nullptr, {arguments, count}, result);
      return true;
    case SymbolKind::Builtin: CallBuiltin(*symbol->builtin, arguments, count, result); return false;
    case SymbolKind::HostMember: {
      const Ref<Object> object(&RequireObject(symbol->value));
      FinishCall(arguments, count, result,
                 InvokeHost(*object, symbol->member, CallKind::MethodOrGet, {arguments, count}));
      return false;
    }
    case SymbolKind::Variable:
      return CallValue(*symbol->variable, arguments, count, result, names.Spelling(use.name));
    case SymbolKind::HostObject:
      return CallValue(symbol->value, arguments, count, result, names.Spelling(use.name));
    default: RaiseAbout(ErrorNumber::TypeMismatch, use.name);
  }
}

void Machine::CallBuiltin(const Builtin& builtin, Variant* arguments, std::size_t count, Variant* result) {
  if (count < builtin.minArguments || (count > builtin.maxArguments && builtin.maxArguments != kAnyCount))
    throw NamedError(ErrorNumber::WrongArgumentCount, builtin.name);
  ThrowIfStopping();
  PrepareArguments(arguments, count);
  try {
    FinishCall(arguments, count, result, builtin.call(*this, {arguments, count}));
  } catch (const Error& error) {
    // The report names the function, unless the error has a description of its own.
    if (typeid(error) != typeid(Error) || !error.Source().IsEmpty() ||
        error.Description() != StandardErrorText(error.Number()))
      throw;
    throw NamedError(error.Number(), builtin.name);
  }
}

// A stop may have ended a Class_Terminate, which lets nothing out. Then it ends the code that released the
// object here, before that code calls the host again. The library's functions can call the host too.
Variant Machine::InvokeHost(Object& object, MemberId member, CallKind kind, Args args) {
  ThrowIfStopping();
  Variant outcome = object.Invoke(member, kind, args);
  ThrowIfStopping();
  return outcome;
}

const ClassMember& Machine::FindMember(MemberUse& use, const Instance& object) const {
  if (use.cls != &object.Class()) {
    use.member = object.Class().Find(use.name);
    use.cls = use.member ? &object.Class() : nullptr;
    use.field = use.member && use.member->fieldIsPublic ? use.member->field : -1;
  }
  if (!use.member) RaiseAbout(ErrorNumber::NotSupported, use.name);
  return *use.member;
}

MemberId Machine::FindMember(MemberUse& use, const Object& object) const {
  const void* const shape = object.Shape();
  if (shape && shape == use.shape) return use.id;
  const MemberId id = object.FindMember(names.Spelling(use.name).View());
  if (id == kNoMember) RaiseAbout(ErrorNumber::NotSupported, use.name);
  use.shape = shape;
  use.id = id;
  return id;
}

bool Machine::CallMember(RegisterView view, Instruction i, MemberUse& use) {
  Variant& place = view.R[i.b];
  const bool isTemporary = view.IsTemporary(i.b);
  Variant* const arguments = view.R + i.a;
  Variant* const result = (i.c & kDropResult) ? nullptr : isTemporary ? &place : arguments;
  const Variant& held = static_cast<const Variant&>(place).Deref();
  if (!held.IsObject()) RaiseAbout(ErrorNumber::ObjectRequired, use.object);
  if (!held.ObjectPtr()) RaiseAbout(ErrorNumber::ObjectNotSet, use.object);
  if (Instance* instance = Instance::From(held.ObjectPtr(), *m_Link)) {
    const Ref<Instance> object(instance);
    if (isTemporary) place.Reset();
    return CallInstance(use, *instance, arguments, i.n, result);
  }
  const Ref<Object> object(held.ObjectPtr());
  const MemberId member = FindMember(use, *object);
  Variant outcome = InvokeHost(*object, member, CallKind::MethodOrGet, {arguments, i.n});
  if (isTemporary) place.Reset();
  FinishCall(arguments, i.n, result, std::move(outcome));
  return false;
}

bool Machine::CallInstance(MemberUse& use, Instance& object, Variant* arguments, std::size_t count,
                           Variant* result) {
  const ClassMember& member = FindMember(use, object);
  const bool isInside = Current().me == &object;
  const ClassProcedure& procedure = member.method.code ? member.method : member.get;
  if (procedure.code && (procedure.isPublic || isInside)) {
    PushFrame(*procedure.code, &object, {arguments, count}, result);
    return true;
  }
  if (member.field < 0 || !(member.fieldIsPublic || isInside))
    RaiseAbout(ErrorNumber::NotSupported, use.name);
  const Variant& field = object.Field(static_cast<std::size_t>(member.field));
  if (count) return CallValue(field, arguments, count, result, names.Spelling(use.name));
  if (result) *result = field;
  return false;
}

bool Machine::CallRegister(RegisterView view, Instruction i, const Procedure& procedure) {
  const Variant callee = static_cast<const Variant&>(view.R[i.b]).Deref();
  const bool isTemporary = view.IsTemporary(i.b);
  Variant* const arguments = view.R + i.a;
  Variant* const result = (i.c & kDropResult) ? nullptr : isTemporary ? &view.R[i.b] : arguments;
  view.ClearTemporary(i.b);
  return CallValue(callee, arguments, i.n, result, LocalName(procedure, i.b));
}

bool Machine::CallValue(const Variant& callee, Variant* arguments, std::size_t count, Variant* result,
                        const Text& name) {
  if (callee.IsArray()) {
    const Ref<Array> array(callee.ArrayPtr());
    if (count == 0) throw NamedError(ErrorNumber::SubscriptOutOfRange, name);
    FinishCall(arguments, count, result, ElementAt(*array, {arguments, count}));
    return false;
  }
  if (!callee.IsObject()) throw NamedError(ErrorNumber::TypeMismatch, name);
  if (!callee.ObjectPtr()) throw NamedError(ErrorNumber::ObjectNotSet, name);
  const Ref<Object> object(callee.ObjectPtr());
  if (const auto* function = dynamic_cast<const FunctionReference*>(object.get())) {
    if (function->Machine() == this) {
      PushFrame(function->Procedure(), nullptr, {arguments, count}, result);
      return true;
    }
  } else if (Instance* instance = Instance::From(object.get(), *m_Link)) {
    if (instance->DefaultMember() == kNoMember) throw NamedError(ErrorNumber::NotSupported, name);
    MemberUse use;
    use.name = instance->Class().members[static_cast<std::size_t>(instance->DefaultMember())].name;
    return CallInstance(use, *instance, arguments, count, result);
  }
  const MemberId member = object->DefaultMember();
  if (member == kNoMember) throw NamedError(ErrorNumber::NotSupported, name);
  FinishCall(arguments, count, result,
             InvokeHost(*object, member, CallKind::MethodOrGet, {arguments, count}));
  return false;
}

bool Machine::NewObject(SymbolUse& use, Variant& target) {
  if (use.epoch != m_Epoch) Resolve(use);
  // The language's only class. A script's own class of that name takes precedence.
  if (!use.symbol && EqualsNoCase(names.Spelling(use.name).View(), u"RegExp")) {
    target = MakeRef<scripting::RegExp>(maxTextUnits);
    return false;
  }
  if (!use.symbol || use.symbol->kind != SymbolKind::Class) RaiseAbout(ErrorNumber::UndefinedClass, use.name);
  const Ref<ClassInfo> cls = use.symbol->cls;
  const Ref<Instance> instance = MakeInstance(*cls);
  target = instance;
  if (!cls->initialize) return false;
  PushFrame(*cls->initialize, instance.get(), {}, nullptr);
  return true;
}

}  // namespace cardwright::vbscript
