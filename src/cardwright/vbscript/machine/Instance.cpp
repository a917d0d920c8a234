// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/Instance.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/machine/Elements.h"
#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

Instance::Instance(Ref<ClassInfo> cls, Ref<MachineLink> link)
    : Object(&kFamily),
      m_Class(std::move(cls)),
      m_Link(std::move(link)),
      m_Memory(static_cast<std::size_t>(m_Class->fields) * sizeof(Variant)),
      m_Fields(std::make_unique<Variant[]>(static_cast<std::size_t>(m_Class->fields))) {
  for (const ClassInfo::FieldArray& array : m_Class->arrays)
    m_Fields[static_cast<std::size_t>(array.field)] = NewArray(array.shape);
}

Instance::~Instance() {
  if (m_Link->machine) m_Link->machine->Forget(*this);
}

void Instance::OnLastRelease() const noexcept {
  auto& self = const_cast<Instance&>(*this);
  if (!m_Terminated && m_Class->terminate && m_Link->machine) {
    AddRef();  // Class_Terminate may use Me, and even keep it
    self.Terminate();
    if (!IsUnique()) {
      Release();
      return;
    }
  }
  delete this;
}

void Instance::Terminate() noexcept {
  if (m_Terminated) return;
  m_Terminated = true;
  if (!m_Class->terminate || !m_Link->machine) return;
  try {
    m_Link->machine->Call(*m_Class->terminate, this, {});
  } catch (const Error&) {
  } catch (const Interrupted&) {
  } catch (const std::bad_alloc&) {
  }
}

void Instance::ClearFields() noexcept {
  for (std::int32_t k = 0; k < m_Class->fields; ++k) m_Fields[static_cast<std::size_t>(k)].Reset();
}

MemberId Instance::FindMember(std::u16string_view name) const {
  if (!m_Link->machine) Raise(ErrorNumber::CannotPerform);
  const NameId id = m_Link->machine->names.Find(name);
  const auto found = m_Class->index.find(id);
  return found == m_Class->index.end() ? kNoMember : found->second;
}

Variant Instance::Invoke(MemberId member, CallKind kind, Args args) {
  if (!m_Link->machine) Raise(ErrorNumber::CannotPerform);
  if (member < 0 || static_cast<std::size_t>(member) >= m_Class->members.size())
    Raise(ErrorNumber::NotSupported);
  const ClassMember& found = m_Class->members[static_cast<std::size_t>(member)];
  Machine& machine = *m_Link->machine;
  const auto call = [&](const ClassProcedure& procedure) {
    return machine.Call(*procedure.code, this, args);
  };
  const auto isOpen = [](const ClassProcedure& procedure) { return procedure.code && procedure.isPublic; };
  if (Allows(kind, CallKind::MethodOrGet)) {
    if (isOpen(found.method)) return call(found.method);
    if (isOpen(found.get)) return call(found.get);
  } else {
    const ClassProcedure& procedure = kind == CallKind::Set ? found.set : found.let;
    if (isOpen(procedure)) return call(procedure);
  }
  if (found.field < 0 || !found.fieldIsPublic) Raise(ErrorNumber::NotSupported);
  Variant& field = m_Fields[static_cast<std::size_t>(found.field)];
  if (Allows(kind, CallKind::MethodOrGet)) return args.empty() ? field : ElementOf(field, args);
  if (args.size() == 1) {
    field = args.back().Deref();
  } else {
    AssignElement(field, args, kind == CallKind::Set, {});
  }
  return {};
}

std::vector<Text> Instance::MemberNames() const {
  std::vector<Text> spellings;
  if (!m_Link->machine) return spellings;
  for (const ClassMember& member : m_Class->members) {
    if (member.fieldIsPublic || member.method.isPublic || member.get.isPublic)
      spellings.push_back(m_Link->machine->names.Spelling(member.name));
  }
  return spellings;
}

}  // namespace cardwright::vbscript
