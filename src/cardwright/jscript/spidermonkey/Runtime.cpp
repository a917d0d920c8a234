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
#include "cardwright/jscript/spidermonkey/Session.h"

namespace cardwright::jscript {
namespace {

constexpr int kLibraryNotLoaded = 48;
// No bound of the library's own: near it the collector would work without end. The session's is looked at
// several times a second.
constexpr std::uint32_t kHeapBound = 0xFFFFFFFF;
// Of each thread's stack, for what the host does in a call from a script.
constexpr std::size_t kStackReserve = std::size_t{512} << 10;

/// The library may be started once only, and is ended after the last thread left it.
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
    // With a thread still in it the process's end must do.
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

// The memory of the process that is resident, in bytes.
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
  // Sessions hold it too, so that one that outlives its thread's end finds it alive.
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
  m_Notes.clear();
  JS_DestroyContext(m_Context);
  ReleaseDead();
}

void Runtime::ReleaseDead() {
  while (!m_Dead.empty()) {
    // What is released may bury more.
    const std::vector<Variant> dead = std::move(m_Dead);
    m_Dead.clear();
  }
}

bool Runtime::MakeKeys() {
  while (m_Notes.size() < static_cast<std::size_t>(Note::Count)) {
    JS::Symbol* symbol = JS::NewSymbol(m_Context, nullptr);
    if (!symbol) return false;
    m_Notes.push_back(std::make_unique<JS::PersistentRooted<JS::Symbol*>>(m_Context, symbol));
  }
  return true;
}

JS::PropertyKey Runtime::Key(Note note) const {
  return JS::PropertyKey::Symbol(m_Notes[static_cast<std::size_t>(note)]->get());
}

void Runtime::Nudge(void* context) noexcept { JS_RequestInterruptCallback(static_cast<JSContext*>(context)); }

bool Runtime::OnInterrupt(JSContext* cx) {
  Runtime& runtime = Of(cx);
  if (!runtime.m_Running.empty()) runtime.m_Running.back()->PollHost();
  if (runtime.LooksGood()) return true;
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

// An outer call that is to stop ends those within it too.
bool Runtime::LooksGood() {
  return std::ranges::all_of(m_Running, [](Session* session) { return !session->IsStopping(); }) &&
         (m_Running.empty() || HasMemory(*m_Running.back()));
}

bool Runtime::HasMemory(Session& session) {
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
