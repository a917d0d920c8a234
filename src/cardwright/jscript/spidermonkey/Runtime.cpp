// SPDX-License-Identifier: MIT
#include "cardwright/jscript/spidermonkey/Runtime.h"

#include <js/Context.h>
#include <js/ContextOptions.h>
#include <js/GCAPI.h>
#include <js/Id.h>
#include <js/Initialization.h>
#include <js/Interrupt.h>
#include <js/Stack.h>
#include <js/Symbol.h>
#include <jsapi.h>
#include <jsfriendapi.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <mutex>

#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"

namespace cardwright::jscript {
namespace {

constexpr int kLibraryNotLoaded = 48;
// The library gets no limit of its own, because near it the collector would work without end. The session's
// limit is checked many times a second instead.
constexpr std::uint32_t kHeapBound = 0xFFFFFFFF;
// The part of each thread's stack that is left for what the host does in a call from a script.
constexpr std::size_t kStackReserve = std::size_t{512} << 10;

/// The library can be started only once. It is shut down after the last thread has left it.
class Library {
 public:
  static std::shared_ptr<void> Start() {
    static std::mutex mutex;
    static Library library;
    const std::lock_guard lock(mutex);
    if (!library.m_Users) {
      if (!JS_Init()) Raise(kLibraryNotLoaded, u"the JavaScript library cannot be started");
      library.m_Users = std::make_shared<int>(0);
    }
    return library.m_Users;
  }
  ~Library() {
    // While a thread still uses it, shutting down would crash; the process ends anyway.
    if (m_Users && m_Users.use_count() == 1) JS_ShutDown();
  }

 private:
  std::shared_ptr<int> m_Users;
};

std::size_t StackOfThread() noexcept {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return 2 * kStackReserve;
  void* address = nullptr;
  std::size_t size = 0;
  pthread_attr_getstack(&attributes, &address, &size);
  pthread_attr_destroy(&attributes);
  return size;
}

// The resident memory of the process, in bytes.
std::size_t ProcessMemory() noexcept {
  std::size_t pages = 0, resident = 0;
  if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(file, "%zu %zu", &pages, &resident) != 2) resident = 0;
    std::fclose(file);
  }
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

std::shared_ptr<Runtime> Runtime::OfThread() {
  // Sessions hold it too, because one may outlive the end of its thread.
  static thread_local std::shared_ptr<Runtime> runtime;
  if (!runtime) runtime = std::make_shared<Runtime>(Library::Start());
  return runtime;
}

Runtime& Runtime::Of(JSContext* cx) { return *static_cast<Runtime*>(JS_GetContextPrivate(cx)); }

Runtime::Runtime(std::shared_ptr<void> library)
    : m_Library(std::move(library)), m_Context(JS_NewContext(kHeapBound)) {
  if (!m_Context) Raise(kLibraryNotLoaded, u"the JavaScript library cannot be started");
  JS_SetContextPrivate(m_Context, this);
  JS::ContextOptionsRef(m_Context).setAsmJS(false).setWasm(false);
  const std::size_t stack = StackOfThread();
  m_StackRoom = stack > 2 * kStackReserve ? stack - kStackReserve : kStackReserve;
  UseStack(m_StackRoom);
  const bool isReady = js::UseInternalJobQueues(m_Context) && JS::InitSelfHostedCode(m_Context) &&
                       JS_AddInterruptCallback(m_Context, &OnInterrupt);
  if (isReady) return;
  JS_DestroyContext(m_Context);
  Raise(kLibraryNotLoaded, u"the JavaScript library cannot be started");
}

Runtime::~Runtime() {
  m_Prelude = nullptr;
  m_HiddenKeys.clear();
  JS_DestroyContext(m_Context);
  ReleaseDeferred();
}

void Runtime::ReleaseDeferred() {
  while (!m_Deferred.empty()) {
    // A release may defer more.
    const std::vector<Variant> dead = std::move(m_Deferred);
    m_Deferred.clear();
  }
}

bool Runtime::MakeHiddenKeys() {
  while (m_HiddenKeys.size() < static_cast<std::size_t>(HiddenProperty::Count)) {
    JS::Symbol* symbol = JS::NewSymbol(m_Context, nullptr);
    if (!symbol) return false;
    m_HiddenKeys.push_back(std::make_unique<JS::PersistentRooted<JS::Symbol*>>(m_Context, symbol));
  }
  return true;
}

JS::PropertyKey Runtime::Key(HiddenProperty property) const {
  return JS::PropertyKey::Symbol(m_HiddenKeys[static_cast<std::size_t>(property)]->get());
}

void Runtime::RequestInterrupt(void* context) noexcept {
  JS_RequestInterruptCallback(static_cast<JSContext*>(context));
}

bool Runtime::OnInterrupt(JSContext* cx) {
  Runtime& runtime = Of(cx);
  if (!runtime.m_Running.empty()) runtime.m_Running.back()->PollHost();
  if (runtime.MayContinue()) return true;
  if (runtime.m_IsDraining) js::StopDrainingJobQueue(cx);
  return false;
}

void Runtime::UseStack(std::size_t bytes) {
  bytes = std::min(bytes, m_StackRoom);
  if (bytes == m_StackUsed) return;
  JS_SetNativeStackQuota(m_Context, bytes);
  m_StackUsed = bytes;
}

void Runtime::RunJobs() {
  m_IsDraining = true;
  js::RunJobs(m_Context);
  m_IsDraining = false;
}

// An outer call that has to stop ends the calls within it too.
bool Runtime::MayContinue() {
  return std::ranges::all_of(m_Running, [](ScriptSession* session) { return !session->IsStopping(); }) &&
         (m_Running.empty() || HasMemory(*m_Running.back()));
}

bool Runtime::HasMemory(ScriptSession& session) {
  const std::size_t bound = session.GetLimits().memoryBytes;
  const auto isOver = [&] {
    const std::size_t now = ProcessMemory();
    return JS_GetGCParameter(m_Context, JSGC_BYTES) > bound || now > session.MemoryAtStart(now) + bound;
  };
  if (!isOver()) return true;
  JS_GC(m_Context);
  if (!isOver()) return true;
  session.StopForMemory();
  return false;
}

}  // namespace cardwright::jscript
