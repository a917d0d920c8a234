#include "cardwright/jscript/spidermonkey/Session.h"

#include <js/GCAPI.h>
#include <js/GlobalObject.h>
#include <js/Object.h>
#include <js/PropertyAndElement.h>
#include <js/RealmOptions.h>
#include <js/WeakMap.h>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/Calls.h"
#include "cardwright/jscript/spidermonkey/Faults.h"
#include "cardwright/jscript/spidermonkey/Globals.h"
#include "cardwright/jscript/spidermonkey/HostObjects.h"
#include "cardwright/jscript/spidermonkey/LineSpot.h"
#include "cardwright/jscript/spidermonkey/ScriptObject.h"
#include "cardwright/jscript/spidermonkey/Values.h"

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

Session* Session::Of(JSContext* cx) noexcept {
  JSObject* global = JS::CurrentGlobalOrNull(cx);
  if (!global || JS::GetClass(global) != &kGlobalClass) return nullptr;
  const JS::Value slot = JS::GetReservedSlot(global, kSessionSlot);
  return slot.isUndefined() ? nullptr : static_cast<Session*>(slot.toPrivate());
}

Session* Session::Required(JSContext* cx) {
  Session* session = Of(cx);
  if (!session) ThrowNumber(cx, kFreedScript);
  return session;
}

Session::Session(ScriptHost& host, const Limits& limits, std::shared_ptr<std::atomic<bool>> stopOrder)
    : m_Host(host),
      m_Limits(limits),
      m_Runtime(Runtime::OfThread()),
      m_Global(Context(), NewGlobal(Context())),
      m_ScriptObjectTable(Context()),
      m_ExactPrototype(Context()),
      m_ArrayPrototype(Context()),
      m_PutPrototype(Context()),
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

Session::~Session() { End(); }

// Every tie between the two sides is cut, so that cycles across them end too.
void Session::End() {
  JS::SetReservedSlot(m_Global, kSessionSlot, JS::UndefinedValue());
  for (ScriptObject* object : m_ScriptObjects) object->Forget();
  m_ScriptObjects.clear();
  for (const auto& [object, wrapper] : m_Wrappers) m_Runtime->Bury(ForgetWrapped(wrapper));
  m_Wrappers.clear();
  for (NamedObject& named : m_Objects) m_Runtime->Bury(std::move(named.object));
  m_Objects.clear();
  m_Runtime->ReleaseDead();
}

void Session::AddObject(std::u16string_view name, Ref<Object> object, bool sharesMembers) {
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

MemberId Session::NumberOf(std::u16string_view name) {
  const auto [entry, isNew] = m_MemberNumbers.try_emplace(std::u16string(name), 0);
  if (isNew) {
    m_MemberNames.emplace_back(name);
    entry->second = static_cast<MemberId>(m_MemberNames.size());
  }
  return entry->second;
}

int Session::AddChunk(Chunk chunk) {
  m_Chunks.try_emplace(++m_LastChunk, std::move(chunk));
  return m_LastChunk;
}

const Chunk* Session::FindChunk(std::string_view fileName) const noexcept {
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

Place Chunk::Original(int line, int column) const noexcept {
  return places.Original({line, static_cast<int>(SpotOf(text, line, column).unit)});
}

void Session::PollHost() {
  if (!m_HostPoll.IsDue()) return;
  CallHost(*this, [this] {
    if (m_HostPoll.Poll(m_Host)) Stop();
    return true;
  });
}

Session::Entry::Entry(Session& session)
    : m_Session(session),
      m_Alive(session.shared_from_this()),
      m_Realm(session.Context(), session.m_Global),
      m_Memory(session.m_Limits.memoryBytes) {
  session.m_Runtime->ReleaseDead();
  if (!session.m_Runtime->IsBusy()) session.m_Runtime->UseStack(session.m_Limits.stackBytes);
  if (session.m_Depth == 0) {
    using Clock = Watched::Clock;
    // The order to stop is for what was running; what begins now is another call.
    session.m_Stop.store(false, std::memory_order_relaxed);
    session.m_StopOrder->store(false, std::memory_order_relaxed);
    session.m_HostPoll.Restart();
    session.m_IsOutOfMemory = false;
    session.m_MemoryAtStart.reset();
    const auto deadline = session.m_Timeout < 0 ? Clock::time_point::max()
                                                : Clock::now() + std::chrono::milliseconds(session.m_Timeout);
    m_Watched.emplace(&Runtime::Nudge, session.Context(), session.m_Stop, deadline);
  }
  session.m_Runtime->Enter(session);
  ++session.m_Depth;
}

Session::Entry::~Entry() {
  if (m_Session.m_Depth == 1 && !m_Session.IsStopping()) m_Session.m_Runtime->RunJobs();
  --m_Session.m_Depth;
  m_Session.m_Runtime->Leave();
  if (m_Session.m_Depth == 0) m_Session.m_Runtime->ReleaseDead();
}

}  // namespace cardwright::jscript
