// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/automation/MemoryShare.h"
#include "cardwright/automation/Object.h"
#include "cardwright/vbscript/code/ClassInfo.h"

namespace cardwright::vbscript {

class Machine;

/// Links objects of scripts to their machine, which may end before them.
struct MachineLink : RefCounted {
  Machine* machine = nullptr;
};

/// An object of a script's class. The machine works on it directly; everybody else calls it by name.
class Instance final : public Object {
 public:
  Instance(Ref<ClassInfo> cls, Ref<MachineLink> link);
  ~Instance() override;

  static constexpr char kFamily = 0;
  /// The object as an instance of that machine; null for any other object. Instances of other machines are
  /// called by name, too.
  static Instance* From(Object* object, const MachineLink& link) noexcept {
    if (!object || object->Family() != &kFamily) return nullptr;
    auto* instance = static_cast<Instance*>(object);
    return instance->m_Link.get() == &link ? instance : nullptr;
  }

  const ClassInfo& Class() const noexcept { return *m_Class; }
  Variant& Field(std::size_t index) noexcept { return m_Fields[index]; }
  /// Runs Class_Terminate, once. Its errors are dropped, since no code is left to handle them.
  void Terminate() noexcept;
  /// Releases everything that the object holds.
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
  // Neighbours in the machine's list of all instances, so that cycles of objects end with the machine.
  Instance* m_Previous = nullptr;
  Instance* m_Next = nullptr;
};

/// The public field that a use of a member names, where `holder` is an object of the class that the use has
/// cached; null where it takes a look-up or a call.
inline Variant* OpenField(const MemberUse& use, const Variant& holder) noexcept {
  const Variant& held = holder.Deref();
  if (use.field < 0 || !held.IsObject()) return nullptr;
  Object* const object = held.ObjectPtr();
  if (!object || object->Family() != &Instance::kFamily) return nullptr;
  auto& instance = static_cast<Instance&>(*object);
  return &instance.Class() == use.cls ? &instance.Field(static_cast<std::size_t>(use.field)) : nullptr;
}

}  // namespace cardwright::vbscript
