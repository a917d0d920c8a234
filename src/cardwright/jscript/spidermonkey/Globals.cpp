// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/Globals.h"

#include <js/Array.h>
#include <js/CallAndConstruct.h>
#include <js/CallArgs.h>
#include <js/CompilationAndEvaluation.h>
#include <js/CompileOptions.h>
#include <js/Conversions.h>
#include <js/Date.h>
#include <js/GCAPI.h>
#include <js/PropertyAndElement.h>
#include <js/Realm.h>
#include <js/SourceText.h>
#include <js/ValueArray.h>
#include <js/experimental/JSStencil.h>
#include <jsapi.h>
#include <jsfriendapi.h>

#include <cmath>
#include <string_view>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/jscript/spidermonkey/ErrorMapping.h"
#include "cardwright/jscript/spidermonkey/GlobalNames.h"
#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/IndexedTargets.h"
#include "cardwright/jscript/spidermonkey/Prelude.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"
#include "cardwright/jscript/spidermonkey/ValueWrappers.h"
#include "cardwright/jscript/syntax/SourceError.h"

namespace cardwright::jscript {
namespace {

/// Enumerates a collection or an array for the prelude's class Enumerator.
class CollectionEnumerator final : public TableObject {
 public:
  explicit CollectionEnumerator(const Variant& collection) : m_Collection(collection) {
    if (!collection.IsArray()) m_Enumerator = RequireObject(collection).Enumerate();
  }
  Text TypeName() const override { return u"Enumerator"; }
  bool Next() {
    if (m_Enumerator) return m_Enumerator->Next(m_Item);
    const std::span<const Variant> values = std::as_const(*m_Collection.ArrayPtr()).Values();
    if (m_Position >= values.size()) return false;
    m_Item = values[m_Position++];
    return true;
  }
  Variant Item() const { return m_Item; }

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {Method<&CollectionEnumerator::Next>(u"Next"),
                                          Property<&CollectionEnumerator::Item>(u"Item")};
    static const MemberTable table(kMembers);
    return table;
  }

 private:
  Variant m_Collection, m_Item;
  std::unique_ptr<cardwright::Enumerator> m_Enumerator;
  std::size_t m_Position = 0;
};

bool EnumeratorNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  return CallHost(*session, [&] {
    Variant collection;
    if (!FromScript(*session, args.get(0), collection)) return false;
    if (!collection.IsArray() && (!collection.IsObject() || !collection.ObjectPtr()))
      Raise(kNotACollection, ErrorText(kNotACollection));
    return ToScript(*session, Variant(MakeRef<CollectionEnumerator>(collection)), args.rval());
  });
}

// Parses a date in the forms of the locale, which the prelude tries after those of the language.
bool ParseLocal(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  args.rval().setNaN();
  return CallHost(*session, [&] {
    Variant text;
    if (!FromScript(*session, args.get(0), text)) return false;
    if (!IsDate(text)) return true;
    JS::RootedValue date(cx);
    double instant = 0;
    if (!DateToScript(*session, ToDate(text), &date)) return false;
    JS::RootedObject object(cx, &date.toObject());
    if (!js::DateGetMsecSinceEpoch(cx, object, &instant)) return false;
    args.rval().setNumber(instant);
    return true;
  });
}

// [number, description] of an error that the library raised, or undefined.
bool MapErrorNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  args.rval().setUndefined();
  if (!args.get(0).isObject()) return true;
  JS::RootedObject error(cx, &args[0].toObject());
  MappedError mapped;
  if (!MapError(*session, error, mapped)) return true;
  JS::RootedValueArray<2> pair(cx);
  pair[0].setInt32(ToScriptNumber(mapped.number));
  JSString* text = JS_NewUCStringCopyN(cx, mapped.text.View().data(), mapped.text.Size());
  if (!text) return false;
  pair[1].setString(text);
  JSObject* list = JS::NewArrayObject(cx, pair);
  if (list) args.rval().setObject(*list);
  return list != nullptr;
}

bool TextArgument(ScriptSession& session, const JS::CallArgs& args, unsigned index, Text& text) {
  if (args.get(index).isUndefined()) return true;
  JS::RootedString string(session.Context(), JS::ToString(session.Context(), args[index]));
  if (!string) return false;
  text = TextOf(session, string);
  return true;
}

bool NewActiveXObject(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  return CallHost(*session, [&] {
    Text progid, server;
    if (!TextArgument(*session, args, 0, progid) || !TextArgument(*session, args, 1, server)) return false;
    try {
      return ToScript(*session, Variant(session->Host().CreateObject(progid, server)), args.rval());
    } catch (const Error& error) {
      // JScript has a text of its own for this error. A host's own text is kept.
      const bool isPlain = error.Description() == StandardErrorText(error.Number());
      if (error.Number() != kCannotCreateObject || !isPlain) throw;
      Raise(kCannotCreateObject, ErrorText(kCannotCreateObject));
    }
  });
}

bool GetObject(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  return CallHost(*session, [&] {
    Text path, progid;
    if (!TextArgument(*session, args, 0, path) || !TextArgument(*session, args, 1, progid)) return false;
    return ToScript(*session, Variant(session->Host().GetObject(path, progid)), args.rval());
  });
}

bool CollectGarbage(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  JS_GC(cx);
  Runtime::Of(cx).ReleaseDeferred();
  args.rval().setUndefined();
  return true;
}

bool CaughtNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  args.rval().setUndefined();
  return session && AddErrorProperties(*session, args.get(0));
}

// A text for `eval` is rewritten like any source.
bool RewriteNative(JSContext* cx, unsigned count, JS::Value* vp) {
  const JS::CallArgs args = JS::CallArgsFromVp(count, vp);
  ScriptSession* session = ScriptSession::Required(cx);
  if (!session) return false;
  args.rval().set(args.get(0));
  if (!args.get(0).isString()) return true;
  return CallHost(*session, [&] {
    Text text;
    if (!TextArgument(*session, args, 0, text)) return false;
    try {
      const Rewritten source = Rewrite(text);
      JSString* string = JS_NewUCStringCopyN(cx, source.text.data(), source.text.size());
      if (string) args.rval().setString(string);
      return string != nullptr;
    } catch (const SourceError& fault) {
      Raise(fault.number, ErrorText(fault.number));
    }
  });
}

bool DefineHidden(JSContext* cx, JS::HandleObject global, std::u16string_view name, JSNative call) {
  return JS_DefineUCFunction(cx, global, name.data(), name.size(), call, 1,
                             JSPROP_PERMANENT | JSPROP_READONLY);
}

bool DefineFunctions(JSContext* cx, JS::HandleObject global) {
  return JS_DefineFunction(cx, global, "ActiveXObject", &NewActiveXObject, 1, JSFUN_CONSTRUCTOR) &&
         JS_DefineFunction(cx, global, "GetObject", &GetObject, 2, 0) &&
         JS_DefineFunction(cx, global, "CollectGarbage", &CollectGarbage, 0, 0) &&
         DefineHidden(cx, global, hidden::kCaught, &CaughtNative) &&
         DefineHidden(cx, global, hidden::kSource, &RewriteNative);
}

// Compiled for the first session of a thread and reused for the others.
JSScript* PreludeScript(JSContext* cx) {
  RefPtr<JS::Stencil>& stencil = Runtime::Of(cx).Prelude();
  if (!stencil) {
    JS::CompileOptions options(cx);
    options.setFileAndLine("prelude", 1).setForceFullParse();
    const std::u16string_view text = kPrelude;
    JS::SourceText<char16_t> source;
    if (!source.init(cx, text.data(), text.size(), JS::SourceOwnership::Borrowed)) return nullptr;
    stencil = JS::CompileGlobalScriptToStencil(cx, options, source);
    if (!stencil) return nullptr;
  }
  return JS::InstantiateGlobalStencil(cx, JS::InstantiateOptions(), stencil);
}

bool RunPrelude(JSContext* cx, JS::HandleObject global) {
  JS::RootedScript script(cx, PreludeScript(cx));
  JS::RootedValue prelude(cx), ignored(cx);
  if (!script || !JS_ExecuteScript(cx, script, &prelude)) return false;
  JS::RootedValueArray<4> arguments(cx);
  arguments[0].setObject(*global);
  const JSNative helpers[] = {&EnumeratorNative, &ParseLocal, &MapErrorNative};
  for (std::size_t k = 0; k < std::size(helpers); ++k) {
    JSFunction* function = JS_NewFunction(cx, helpers[k], 1, 0, "helper");
    if (!function) return false;
    arguments[k + 1].setObject(*JS_GetFunctionObject(function));
  }
  return JS_CallFunctionValue(cx, nullptr, prelude, arguments, &ignored);
}

bool KeepOriginals(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject timezoneOffset) {
  JS::RootedValue date(cx), prototype(cx), function(cx);
  if (!JS_GetProperty(cx, global, "Date", &date)) return false;
  JS::RootedObject constructor(cx, &date.toObject());
  if (!JS_GetProperty(cx, constructor, "prototype", &prototype)) return false;
  JS::RootedObject methods(cx, &prototype.toObject());
  if (!JS_GetProperty(cx, methods, "getTimezoneOffset", &function)) return false;
  timezoneOffset.set(&function.toObject());
  return true;
}

}  // namespace

bool DefineGlobals(ScriptSession& session) {
  JSContext* cx = session.Context();
  JS::HandleObject global = session.Global();
  if (!JS::InitRealmStandardClasses(cx) || !session.GetRuntime().MakeHiddenKeys()) return false;
  JS::RootedObject prototype(cx, JS::GetRealmObjectPrototype(cx));
  JS::RootedObject names(cx, prototype ? NewGlobalNames(cx, prototype) : nullptr);
  return names && JS_SetPrototype(cx, global, names) &&
         DefineValueWrappers(cx, global, &session.m_ArrayPrototype, &session.m_ExactPrototype) &&
         DefineIndexedTargets(cx, global, &session.m_TargetPrototype) && DefineFunctions(cx, global) &&
         KeepOriginals(cx, global, &session.m_TimezoneOffset) && RunPrelude(cx, global);
}

}  // namespace cardwright::jscript
