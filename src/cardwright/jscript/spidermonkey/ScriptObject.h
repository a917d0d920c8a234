// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include "cardwright/automation/Object.h"

namespace cardwright::jscript {

class ScriptSession;

/// An object or function of a script as the host sees it. Members are found by their exact name first, then
/// in any case. The default member of a function calls it; that of another object is its primitive value.
class ScriptObject final : public Object {
 public:
  /// The host's view of a script object, the same one for as long as the host holds it.
  static Ref<ScriptObject> Of(ScriptSession& session, JS::HandleObject object);
  /// The script object where `object` belongs to the session; else null.
  static JSObject* Unwrap(const Object& object, const ScriptSession& session) noexcept;

  ScriptObject(ScriptSession& session, JS::HandleObject object, JS::HandleObject holder);
  ~ScriptObject() override;
  /// Called when the session ends. Every later call is error 5011.
  void Detach() noexcept;

  Text TypeName() const override { return u"JScriptTypeInfo"; }
  MemberId FindMember(std::u16string_view name) const override;
  MemberId DefaultMember() const override { return kDefault; }
  Variant Invoke(MemberId member, CallKind kind, Args args) override;
  std::vector<Text> MemberNames() const override;
  std::unique_ptr<Enumerator> Enumerate() override;

 private:
  friend class ArrayEnumerator;
  static constexpr MemberId kDefault = 0;

  ScriptSession& Required() const;
  Variant InvokeDefault(ScriptSession& session, CallKind kind, Args args);

  ScriptSession* m_Session;
  JS::PersistentRooted<JSObject*> m_Object;
  JS::PersistentRooted<JSObject*> m_Holder;  // points back here; found through the session's weak map
};

}  // namespace cardwright::jscript
