#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include "cardwright/automation/Object.h"

namespace cardwright::jscript {

class Session;

/// An object or function of a script, as the host has it. Members are found by their exact name, else
/// whatever the case; a function's default member calls it, another object's is its plain value.
class ScriptObject final : public Object {
 public:
  /// The one for a script's object, as long as the host holds it.
  static Ref<ScriptObject> Of(Session& session, JS::HandleObject object);
  /// The script's object where `object` is one of the session's; else null.
  static JSObject* Unwrap(const Object& object, const Session& session) noexcept;

  ScriptObject(Session& session, JS::HandleObject object, JS::HandleObject holder);
  ~ScriptObject() override;
  /// The session ends: every call is error 5011 from then on.
  void Forget() noexcept;

  Text TypeName() const override { return u"JScriptTypeInfo"; }
  MemberId FindMember(std::u16string_view name) const override;
  MemberId DefaultMember() const override { return kDefault; }
  Variant Invoke(MemberId member, CallKind kind, Args args) override;
  std::vector<Text> MemberNames() const override;
  std::unique_ptr<Enumerator> Enumerate() override;

 private:
  friend class ElementWalk;
  static constexpr MemberId kDefault = 0;

  Session& Required() const;
  Variant InvokeDefault(Session& session, CallKind kind, Args args);

  Session* m_Session;
  JS::PersistentRooted<JSObject*> m_Object;
  JS::PersistentRooted<JSObject*> m_Holder;  // which the script's object leads to
};

}  // namespace cardwright::jscript
