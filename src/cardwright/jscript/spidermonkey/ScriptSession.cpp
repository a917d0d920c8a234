// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/ScriptSession.h"

#include <js/GCAPI.h>
#include <js/GlobalObject.h>
#include <js/Object.h>
#include <js/PropertyAndElement.h>
#include <js/RealmOptions.h>
#include <js/WeakMap.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/Globals.h"
#include "cardwright/jscript/spidermonkey/HostCalls.h"
#include "cardwright/jscript/spidermonkey/HostProxies.h"
#include "cardwright/jscript/spidermonkey/LinePosition.h"
#include "cardwright/jscript/spidermonkey/ScriptErrors.h"
#include "cardwright/jscript/spidermonkey/ScriptObject.h"
#include "cardwright/jscript/spidermonkey/ValueConversion.h"

namespace cardwright::jscript {
namespace {

constexpr JSClass kGlobalClass = {
    "global", JSCLASS_GLOBAL_FLAGS, &JS::DefaultGlobalClassOps, nullptr, nullptr, nullptr};
constexpr std::size_t kSessionSlot = 0;

JSObject* NewGlobal(JSContext* cx) {
  JS::RealmOptions options;
  options.creationOptions().setSharedMemoryAndAtomicsEnabled(false).setNewCompartmentAndZone();
  return JS_NewGlobalObject(cx, &kGlobalClass, nullptr, JS::FireOnNewGlobalHook, options);
}

}  // namespace

ScriptSession* ScriptSession::Of(JSContext* cx) noexcept {
  JSObject* global = JS::CurrentGlobalOrNull(cx);
  if (!global || JS::GetClass(global) != &kGlobalClass) return nullptr;
  const JS::Value slot = JS::GetReservedSlot(global, kSessionSlot);
  return slot.isUndefined() ? nullptr : static_cast<ScriptSession*>(slot.toPrivate());
}

ScriptSession* ScriptSession::Required(JSContext* cx) {
  ScriptSession* session = Of(cx);
  if (!session) ThrowNumber(cx, kFreedScript);
  return session;
}

ScriptSession::ScriptSession(ScriptHost& host, const Limits& limits,
                             std::shared_ptr<std::atomic<bool>> stopOrder)
    : m_Host(host),
      m_Limits(limits),
      m_Runtime(Runtime::OfThread()),
      m_Global(Context(), NewGlobal(Context())),
      m_ScriptObjectTable(Context()),
      m_ExactPrototype(Context()),
      m_ArrayPrototype(Context()),
      m_TargetPrototype(Context()),
      m_TimezoneOffset(Context()),
      m_SharedMethods(Context()),
      m_GlobalMethods(Context()),
      m_Members(std::make_unique<MemberCache>(Context())),
      m_StopOrder(std::move(stopOrder)) {
  if (!m_Global) Raise(ErrorNumber::OutOfMemory);
  JS::SetReservedSlot(m_Global, kSessionSlot, JS::PrivateValue(this));
  const JSAutoRealm realm(Context(), m_Global);
  m_ScriptObjectTable = JS::NewWeakMapObject(Context());
  m_SharedMethods = JS_NewObjectWithGivenProto(Context(), nullptr, nullptr);
  m_GlobalMethods = JS_NewObjectWithGivenProto(Context(), nullptr, nullptr);
  if (m_ScriptObjectTable && m_SharedMethods && m_GlobalMethods && DefineGlobals(*this)) return;
  JS_ClearPendingException(Context());
  JS::SetReservedSlot(m_Global, kSessionSlot, JS::UndefinedValue());
  Raise(ErrorNumber::OutOfMemory);
}

ScriptSession::~ScriptSession() { End(); }

// Cuts all references between host and script, so that cycles across both are released too.
void ScriptSession::End() {
  JS::SetReservedSlot(m_Global, kSessionSlot, JS::UndefinedValue());
  for (ScriptObject* object : m_ScriptObjects) object->Detach();
  m_ScriptObjects.clear();
  for (const auto& [object, wrapper] : m_Wrappers) m_Runtime->DeferRelease(DetachProxy(wrapper));
  m_Wrappers.clear();
  for (NamedObject& named : m_Objects) m_Runtime->DeferRelease(std::move(named.object));
  m_Objects.clear();
  m_Runtime->ReleaseDeferred();
}

void ScriptSession::AddObject(std::u16string_view name, Ref<Object> object, bool sharesMembers) {
  if (!object || name.empty()) Raise(ErrorNumber::InvalidCall);
  for (const NamedObject& known : m_Objects)
    if (EqualsNoCase(known.name, name)) Raise(ErrorNumber::InvalidCall);
  const JSAutoRealm realm(Context(), m_Global);
  JSContext* cx = Context();
  bool isTaken = false;
  JS::RootedValue value(cx);
  if (!JS_AlreadyHasOwnUCProperty(cx, m_Global, name.data(), name.size(), &isTaken)) ThrowPending(*this);
  if (isTaken) Raise(ErrorNumber::InvalidCall);
  if (!ToScript(*this, Variant(object), &value) ||
      !JS_DefineUCProperty(cx, m_Global, name.data(), name.size(), value, 0))
    ThrowPending(*this);
  m_Objects.push_back({Text(name), std::move(object), sharesMembers});
}

MemberId ScriptSession::NumberOf(std::u16string_view name) {
  const auto [entry, isNew] = m_MemberNumbers.try_emplace(std::u16string(name), 0);
  if (isNew) {
    m_MemberNames.emplace_back(name);
    entry->second = static_cast<MemberId>(m_MemberNames.size());
  }
  return entry->second;
}

int ScriptSession::AddChunk(Chunk chunk) {
  m_Chunks.try_emplace(++m_LastChunk, std::move(chunk));
  return m_LastChunk;
}

const Chunk* ScriptSession::FindChunk(std::string_view fileName) const noexcept {
  constexpr std::string_view kPrefix = "jscript:";
  if (!fileName.starts_with(kPrefix)) return nullptr;
  int number = 0;
  for (const char c : fileName.substr(kPrefix.size())) {
    if (c < '0' || c > '9' || number > 100'000'000) return nullptr;
    number = number * 10 + (c - '0');
  }
  const auto found = m_Chunks.find(number);
  return found == m_Chunks.end() ? nullptr : &found->second;
}

SourcePosition Chunk::Original(int line, int column) const noexcept {
  return sourceMap.Original({line, static_cast<int>(FindLinePosition(text, line, column).unit)});
}

void ScriptSession::PollHost() {
  if (!m_HostPoll.IsDue()) return;
  CallHost(*this, [this] {
    if (m_HostPoll.Poll(m_Host)) Stop();
    return true;
  });
}

ScriptSession::Entry::Entry(ScriptSession& session)
    : m_Session(session),
      m_KeepAlive(session.shared_from_this()),
      m_Realm(session.Context(), session.m_Global),
      m_Memory(session.m_Limits.memoryBytes) {
  session.m_Runtime->ReleaseDeferred();
  if (!session.m_Runtime->IsBusy()) session.m_Runtime->UseStack(session.m_Limits.stackBytes);
  if (session.m_Depth == 0) {
    using Clock = WatchedCall::Clock;
    // An earlier order to stop was meant for an earlier call.
    session.m_Stop.store(false, std::memory_order_relaxed);
    session.m_StopOrder->store(false, std::memory_order_relaxed);
    session.m_HostPoll.Restart();
    session.m_IsOutOfMemory = false;
    session.m_MemoryAtStart.reset();
    const auto deadline = session.m_Timeout < 0 ? Clock::time_point::max()
                                                : Clock::now() + std::chrono::milliseconds(session.m_Timeout);
    m_WatchedCall.emplace(&Runtime::RequestInterrupt, session.Context(), session.m_Stop, deadline);
  }
  session.m_Runtime->Enter(session);
  ++session.m_Depth;
}

ScriptSession::Entry::~Entry() {
  if (m_Session.m_Depth == 1 && !m_Session.IsStopping()) m_Session.m_Runtime->RunJobs();
  --m_Session.m_Depth;
  m_Session.m_Runtime->Leave();
  if (m_Session.m_Depth == 0) m_Session.m_Runtime->ReleaseDeferred();
}

}  // namespace cardwright::jscript
