// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/Realm.h>
#include <js/RootingAPI.h>
#include <js/Value.h>
#include <jsapi.h>

#include <atomic>
#include <chrono>
#include <exception>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/jscript/JScriptEngine.h"
#include "cardwright/jscript/spidermonkey/MemberCache.h"
#include "cardwright/jscript/spidermonkey/Runtime.h"
#include "cardwright/jscript/spidermonkey/Watchdog.h"
#include "cardwright/jscript/syntax/Rewriter.h"
#include "cardwright/platform/HostPoll.h"

namespace cardwright::jscript {

class ScriptObject;

/// A compiled source, kept to locate its errors.
struct Chunk {
  Text module;
  std::u16string text;  ///< as the library compiled it
  SourceMap sourceMap;

  /// The position in the author's source for a position that the library reports. `column` counts from 0, in
  /// code points.
  SourcePosition Original(int line, int column) const noexcept;
};

/// An object that the host added under a name.
struct NamedObject {
  Text name;
  Ref<Object> object;
  bool sharesMembers = false;
};

/// Thrown where a script was stopped; it passes through our own frames only.
struct Interrupted {};

/// The scripts of one engine: their global object, the host's objects in it, and the wrappers of objects that
/// crossed between host and script. An engine starts a new session when it is closed.
class ScriptSession : public std::enable_shared_from_this<ScriptSession> {
 public:
  /// Setting `stopOrder` stops the running script. It may be set from another thread or a signal handler.
  ScriptSession(ScriptHost& host, const Limits& limits, std::shared_ptr<std::atomic<bool>> stopOrder);
  ~ScriptSession();
  ScriptSession(const ScriptSession&) = delete;
  ScriptSession& operator=(const ScriptSession&) = delete;

  /// The session whose code is running; null once that session has ended.
  static ScriptSession* Of(JSContext* cx) noexcept;
  /// The same, but throws an error in the script where there is none.
  static ScriptSession* Required(JSContext* cx);

  JSContext* Context() const noexcept { return m_Runtime->Context(); }
  Runtime& GetRuntime() const noexcept { return *m_Runtime; }
  JS::HandleObject Global() const noexcept { return m_Global; }
  ScriptHost& Host() const noexcept { return m_Host; }
  const Limits& GetLimits() const noexcept { return m_Limits; }

  /// A call from the host into the scripts. Entries nest; the outermost starts the deadline.
  class Entry {
   public:
    explicit Entry(ScriptSession& session);
    ~Entry();
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

   private:
    ScriptSession& m_Session;
    std::shared_ptr<ScriptSession> m_KeepAlive;  // the engine may be closed during the call
    JSAutoRealm m_Realm;
    MemoryBudget::Limit m_Memory;
    std::optional<WatchedCall> m_WatchedCall;
  };

  /// @name Stopping
  /// @{
  void Stop() noexcept {
    m_Stop.store(true, std::memory_order_relaxed);
    Runtime::RequestInterrupt(Context());
  }
  bool IsRunning() const noexcept { return m_Depth != 0; }
  bool IsStopping() const noexcept {
    return m_Stop.load(std::memory_order_relaxed) || m_StopOrder->load(std::memory_order_relaxed);
  }
  /// Polls the host from time to time whether the running script should stop; the host may run scripts
  /// meanwhile. Called at the library's interrupts.
  void PollHost();
  void StopForMemory() noexcept { m_IsOutOfMemory = true; }
  /// The process's memory when it was first checked during the current call.
  std::size_t MemoryAtStart(std::size_t now) noexcept {
    if (!m_MemoryAtStart) m_MemoryAtStart = now;
    return *m_MemoryAtStart;
  }
  void SetTimeout(std::int32_t milliseconds) noexcept { m_Timeout = milliseconds; }
  /// Whether a script was stopped for its memory since the last call of this.
  bool TakeOutOfMemory() noexcept { return std::exchange(m_IsOutOfMemory, false); }
  /// @}

  /// @name Sources
  /// @{
  int AddChunk(Chunk chunk);
  void DropChunk(int number) { m_Chunks.erase(number); }
  const Chunk* FindChunk(std::string_view fileName) const noexcept;
  static std::string ChunkName(int number) { return "jscript:" + std::to_string(number); }
  /// @}

  /// @name Names
  /// @{
  void AddObject(std::u16string_view name, Ref<Object> object, bool sharesMembers);
  const std::vector<NamedObject>& Objects() const noexcept { return m_Objects; }
  /// @}

  MemberCache& Members() noexcept { return *m_Members; }

  /// @name Objects on both sides
  /// @{
  std::unordered_map<Object*, JSObject*>& Wrappers() noexcept { return m_Wrappers; }
  std::unordered_set<ScriptObject*>& ScriptObjects() noexcept { return m_ScriptObjects; }
  JS::HandleObject ScriptObjectTable() const noexcept { return m_ScriptObjectTable; }
  JS::HandleObject ExactPrototype() const noexcept { return m_ExactPrototype; }
  JS::HandleObject ArrayPrototype() const noexcept { return m_ArrayPrototype; }
  JS::HandleObject TargetPrototype() const noexcept { return m_TargetPrototype; }
  JS::HandleObject TimezoneOffset() const noexcept { return m_TimezoneOffset; }
  JS::HandleObject SharedMethods() const noexcept { return m_SharedMethods; }
  JS::HandleObject GlobalMethods() const noexcept { return m_GlobalMethods; }
  /// @}
  /// The id by which the host knows a member name of the session's script objects, and back.
  MemberId NumberOf(std::u16string_view name);
  const std::u16string& NameOf(MemberId number) const {
    return m_MemberNames[static_cast<std::size_t>(number) - 1];
  }

  /// A C++ exception that is no script error. It must not unwind the library's frames, so it is kept here and
  /// thrown again once they have returned.
  void SetPendingError(std::exception_ptr failure) noexcept { m_PendingError = std::move(failure); }
  std::exception_ptr TakePendingError() noexcept { return std::exchange(m_PendingError, nullptr); }

 private:
  friend class Entry;
  friend bool DefineGlobals(ScriptSession& session);
  void End();

  ScriptHost& m_Host;
  const Limits m_Limits;
  std::shared_ptr<Runtime> m_Runtime;
  JS::PersistentRootedObject m_Global, m_ScriptObjectTable, m_ExactPrototype, m_ArrayPrototype,
      m_TargetPrototype, m_TimezoneOffset, m_SharedMethods, m_GlobalMethods;
  std::unique_ptr<MemberCache> m_Members;
  std::vector<NamedObject> m_Objects;
  std::unordered_map<Object*, JSObject*> m_Wrappers;
  std::unordered_set<ScriptObject*> m_ScriptObjects;
  std::vector<std::u16string> m_MemberNames;
  std::unordered_map<std::u16string, MemberId> m_MemberNumbers;
  std::unordered_map<int, Chunk> m_Chunks;
  int m_LastChunk = 0;
  std::exception_ptr m_PendingError;

  const std::shared_ptr<std::atomic<bool>> m_StopOrder;
  std::atomic<bool> m_Stop = false;
  bool m_IsOutOfMemory = false;
  std::optional<std::size_t> m_MemoryAtStart;
  std::int32_t m_Timeout = -1;
  HostPoll m_HostPoll;
  int m_Depth = 0;
};

}  // namespace cardwright::jscript
