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
#include "cardwright/jscript/Engine.h"
#include "cardwright/jscript/spidermonkey/MemberCache.h"
#include "cardwright/jscript/spidermonkey/Runtime.h"
#include "cardwright/jscript/spidermonkey/Watchdog.h"
#include "cardwright/jscript/syntax/Rewriter.h"
#include "cardwright/platform/HostPoll.h"

namespace cardwright::jscript {

class ScriptObject;

/// A compiled source as its errors need it.
struct Chunk {
  Text module;
  std::u16string text;  ///< as the library compiled it
  PlaceMap places;

  /// The author's place for one of the library's; its columns, here from 0, count characters and not units.
  Place Original(int line, int column) const noexcept;
};

/// An object that the program gave under a name.
struct NamedObject {
  Text name;
  Ref<Object> object;
  bool sharesMembers = false;
};

/// Thrown through our own code where a script was stopped.
struct Interrupted {};

/// One engine's scripts: their global object, what they were given, the objects that went in and out.
class Session : public std::enable_shared_from_this<Session> {
 public:
  /// What raises `stopOrder` stops the script that runs; it may be raised at any moment, from anywhere.
  Session(ScriptHost& host, const Limits& limits, std::shared_ptr<std::atomic<bool>> stopOrder);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The session whose code runs; null once it has ended.
  static Session* Of(JSContext* cx) noexcept;
  /// The same where it must be there; otherwise an error is thrown to the script, and null.
  static Session* Required(JSContext* cx);

  JSContext* Context() const noexcept { return m_Runtime->Context(); }
  Runtime& GetRuntime() const noexcept { return *m_Runtime; }
  JS::HandleObject Global() const noexcept { return m_Global; }
  ScriptHost& Host() const noexcept { return m_Host; }
  const Limits& GetLimits() const noexcept { return m_Limits; }

  /// A call from outside into the scripts.
  class Entry {
   public:
    explicit Entry(Session& session);
    ~Entry();
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

   private:
    Session& m_Session;
    std::shared_ptr<Session> m_Alive;  // the engine may drop it meanwhile
    JSAutoRealm m_Realm;
    MemoryBudget::Limit m_Memory;
    std::optional<Watched> m_Watched;
  };

  /// @name Stopping
  /// @{
  void Stop() noexcept {
    m_Stop.store(true, std::memory_order_relaxed);
    Runtime::Nudge(Context());
  }
  bool IsRunning() const noexcept { return m_Depth != 0; }
  bool IsStopping() const noexcept {
    return m_Stop.load(std::memory_order_relaxed) || m_StopOrder->load(std::memory_order_relaxed);
  }
  /// Polls the host from time to time whether the running script should stop; the host may run scripts
  /// meanwhile. Called at the library's interrupts.
  void PollHost();
  void StopForMemory() noexcept { m_IsOutOfMemory = true; }
  /// The process's memory at the first look at it during a call.
  std::size_t MemoryAtStart(std::size_t now) noexcept {
    if (!m_MemoryAtStart) m_MemoryAtStart = now;
    return *m_MemoryAtStart;
  }
  void SetTimeout(std::int32_t milliseconds) noexcept { m_Timeout = milliseconds; }
  /// Whether a script was stopped for its memory since the last time.
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
  JS::HandleObject PutPrototype() const noexcept { return m_PutPrototype; }
  JS::HandleObject TimezoneOffset() const noexcept { return m_TimezoneOffset; }
  JS::HandleObject SharedMethods() const noexcept { return m_SharedMethods; }
  JS::HandleObject GlobalMethods() const noexcept { return m_GlobalMethods; }
  /// @}
  /// Number by which the host knows a member of the session's script objects, and its name.
  MemberId NumberOf(std::u16string_view name);
  const std::u16string& NameOf(MemberId number) const {
    return m_MemberNames[static_cast<std::size_t>(number) - 1];
  }

  /// A failure of ours that is none of a script's: it must not go through the library's frames, and goes on
  /// behind them.
  void Hold(std::exception_ptr failure) noexcept { m_Held = std::move(failure); }
  std::exception_ptr TakeHeld() noexcept { return std::exchange(m_Held, nullptr); }

 private:
  friend class Entry;
  friend bool DefineGlobals(Session& session);
  void End();

  ScriptHost& m_Host;
  const Limits m_Limits;
  std::shared_ptr<Runtime> m_Runtime;
  JS::PersistentRootedObject m_Global, m_ScriptObjectTable, m_ExactPrototype, m_ArrayPrototype,
      m_PutPrototype, m_TimezoneOffset, m_SharedMethods, m_GlobalMethods;
  std::unique_ptr<MemberCache> m_Members;
  std::vector<NamedObject> m_Objects;
  std::unordered_map<Object*, JSObject*> m_Wrappers;
  std::unordered_set<ScriptObject*> m_ScriptObjects;
  std::vector<std::u16string> m_MemberNames;
  std::unordered_map<std::u16string, MemberId> m_MemberNumbers;
  std::unordered_map<int, Chunk> m_Chunks;
  int m_LastChunk = 0;
  std::exception_ptr m_Held;

  const std::shared_ptr<std::atomic<bool>> m_StopOrder;
  std::atomic<bool> m_Stop = false;
  bool m_IsOutOfMemory = false;
  std::optional<std::size_t> m_MemoryAtStart;
  std::int32_t m_Timeout = -1;
  HostPoll m_HostPoll;
  int m_Depth = 0;
};

}  // namespace cardwright::jscript
