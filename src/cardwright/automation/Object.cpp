// SPDX-License-Identifier: MIT
#include "cardwright/automation/Object.h"

#include <algorithm>

#include "cardwright/automation/Errors.h"

namespace cardwright {

struct Object::Connections {
  struct Entry {
    int number;
    EventHandler handler;
    bool connected = true;
  };

  // By pointer, as a handler that connects another one while it runs moves the list.
  std::vector<std::unique_ptr<Entry>> entries;
  int lastNumber = 0;
  int raising = 0;  // depth of RaiseEvent, during which entries are not removed

  void Sweep() {
    if (raising == 0) std::erase_if(entries, [](const auto& entry) { return !entry->connected; });
  }
};

Object::Object(const void* family) : m_Family(family) {}
Object::~Object() = default;

std::unique_ptr<Enumerator> Object::Enumerate() { Raise(ErrorNumber::NotACollection); }

int Object::Connect(EventHandler handler) {
  if (!m_Connections) m_Connections = std::make_unique<Connections>();
  auto entry = std::make_unique<Connections::Entry>();
  entry->number = ++m_Connections->lastNumber;
  entry->handler = std::move(handler);
  m_Connections->entries.push_back(std::move(entry));
  return m_Connections->lastNumber;
}

void Object::Disconnect(int connection) {
  if (!m_Connections) return;
  for (auto& entry : m_Connections->entries) {
    if (entry->number == connection) entry->connected = false;
  }
  m_Connections->Sweep();
}

void Object::RaiseEvent(std::u16string_view event, Args args) {
  if (!m_Connections || m_Connections->entries.empty()) return;
  // Keeps the object alive until all handlers ran. Not during construction: the release would delete it.
  const Ref<Object> held(IsHeld() ? this : nullptr);
  struct Raising {
    Connections& connections;
    explicit Raising(Connections& all) : connections(all) { ++connections.raising; }
    ~Raising() {
      --connections.raising;
      connections.Sweep();
    }
  } raising(*m_Connections);

  const std::size_t count = raising.connections.entries.size();
  for (std::size_t i = 0; i < count; ++i) {
    Connections::Entry& entry = *raising.connections.entries[i];
    if (entry.connected) entry.handler(event, args);
  }
}

namespace {

// A default value may be an object with a default member in turn. A longer chain is taken for an object that
// is its own default value.
constexpr int kMaxDefaultChain = 16;

MemberId RequireMember(const Object& object, std::u16string_view name) {
  const MemberId member = object.FindMember(name);
  if (member == kNoMember) Raise(ErrorNumber::NotSupported);
  return member;
}

Variant Call(Object& object, std::u16string_view name, CallKind kind, std::vector<Variant> args) {
  return object.Invoke(RequireMember(object, name), kind, args);
}

}  // namespace

Variant GetProperty(Object& object, std::u16string_view name, std::initializer_list<Variant> args) {
  return Call(object, name, CallKind::Get, args);
}

void LetProperty(Object& object, std::u16string_view name, const Variant& value,
                 std::initializer_list<Variant> args) {
  std::vector<Variant> all(args);
  all.push_back(value);
  Call(object, name, CallKind::Let, std::move(all));
}

void SetProperty(Object& object, std::u16string_view name, const Variant& value) {
  Call(object, name, CallKind::Set, {value});
}

Variant CallMethod(Object& object, std::u16string_view name, std::initializer_list<Variant> args) {
  return Call(object, name, CallKind::Method, args);
}

Variant DefaultValue(const Variant& value) {
  Variant result = value.Deref();
  for (int i = 0; result.IsObject(); ++i) {
    Object& object = RequireObject(result);
    const MemberId member = object.DefaultMember();
    if (member == kNoMember || i == kMaxDefaultChain) Raise(ErrorNumber::NotSupported);
    result = object.Invoke(member, CallKind::Get, {});
  }
  return result;
}

Object& RequireObject(const Variant& value) {
  const Variant& held = value.Deref();
  if (!held.IsObject()) Raise(ErrorNumber::ObjectRequired);
  if (!held.ObjectPtr()) Raise(ErrorNumber::ObjectNotSet);
  return *held.ObjectPtr();
}

}  // namespace cardwright
