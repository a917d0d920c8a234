#pragma once

#include <memory>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/code/ClassInfo.h"

namespace cardwright::vbscript {

class Machine;

/// Link from what a script made to its machine, which may go first.
struct MachineLink : RefCounted {
  Machine* machine = nullptr;
};

/// An object of a script's class. The machine works on it directly; everybody else calls it by name.
class Instance final : public Object {
 public:
  Instance(Ref<ClassInfo> cls, Ref<MachineLink> link);
  ~Instance() override;

  static constexpr char kFamily = 0;
  /// The instance that the object is, where it is one of that machine. Those of other machines are objects
  /// like any other.
  static Instance* From(Object* object, const MachineLink& link) noexcept {
    if (!object || object->Family() != &kFamily) return nullptr;
    auto* instance = static_cast<Instance*>(object);
    return instance->m_Link.get() == &link ? instance : nullptr;
  }

  const ClassInfo& Class() const noexcept { return *m_Class; }
  Variant& Field(std::size_t index) noexcept { return m_Fields[index]; }
  /// Runs Class_Terminate once; its errors go nowhere, as nobody is left to hear them.
  void Terminate() noexcept;
  /// Lets go of everything that the object holds.
  void ClearFields() noexcept;

  Text TypeName() const override { return m_Class->spelling; }
  MemberId FindMember(std::u16string_view name) const override;
  MemberId DefaultMember() const override { return m_Class->defaultMember; }
  Variant Invoke(MemberId member, CallKind kind, Args args) override;
  std::vector<Text> MemberNames() const override;

 protected:
  void OnLastRelease() const noexcept override;

 private:
  friend class Machine;
  Ref<ClassInfo> m_Class;
  Ref<MachineLink> m_Link;
  MemoryShare m_Memory;
  std::unique_ptr<Variant[]> m_Fields;
  bool m_Terminated = false;
  // All instances of a machine in a ring, so that cycles end with it.
  Instance* m_Previous = nullptr;
  Instance* m_Next = nullptr;
};

/// The field that the use of a member names, where `holder` has an object of the class met last and the field
/// is open to all; null where it takes a look-up or a call.
inline Variant* OpenField(const MemberUse& use, const Variant& holder) noexcept {
  const Variant& held = holder.Deref();
  if (use.field < 0 || !held.IsObject()) return nullptr;
  Object* const object = held.ObjectPtr();
  if (!object || object->Family() != &Instance::kFamily) return nullptr;
  auto& instance = static_cast<Instance&>(*object);
  return &instance.Class() == use.cls ? &instance.Field(static_cast<std::size_t>(use.field)) : nullptr;
}

}  // namespace cardwright::vbscript
